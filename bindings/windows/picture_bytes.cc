#include "picture_bytes.h"

#include <ZQ7Standard/RunTimeError.h>
#include <wincodec.h>

namespace ZQ7Windows {
namespace {

using ZQ7Standard::Error;
using ZQ7Standard::RunTimeError;

void Check(HRESULT result, std::string_view step) {
  if (FAILED(result)) throw RunTimeError(Error::kInvalidPicture, step);
}

ComPtr<IWICImagingFactory> Factory() {
  ComPtr<IWICImagingFactory> factory;
  Check(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                         IID_IWICImagingFactory, factory.OutVoid()),
        "the system's picture codecs");
  return factory;
}

std::string StreamBytes(IStream& stream) {
  STATSTG status = {};
  Check(stream.Stat(&status, STATFLAG_NONAME), "size");
  std::string bytes(static_cast<std::size_t>(status.cbSize.QuadPart), '\0');
  Check(stream.Seek({}, STREAM_SEEK_SET, nullptr), "start");
  Check(stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr), "bytes");
  return bytes;
}

std::string PngBytes(IWICImagingFactory& factory, IWICBitmapSource& source) {
  ComPtr<IStream> stream;
  ComPtr<IWICBitmapEncoder> encoder;
  ComPtr<IWICBitmapFrameEncode> frame;
  Check(CreateStreamOnHGlobal(nullptr, TRUE, stream.Out()), "memory");
  Check(factory.CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.Out()), "PNG encoder");
  Check(encoder->Initialize(stream.get(), WICBitmapEncoderNoCache), "PNG encoder");
  Check(encoder->CreateNewFrame(frame.Out(), nullptr), "PNG frame");
  Check(frame->Initialize(nullptr), "PNG frame");
  Check(frame->WriteSource(&source, nullptr), "PNG picture");
  Check(frame->Commit(), "PNG picture");
  Check(encoder->Commit(), "PNG file");
  return StreamBytes(*stream.get());
}

std::string IconBytes(HICON icon) {
  const auto factory = Factory();
  ComPtr<IWICBitmap> source;
  Check(factory->CreateBitmapFromHICON(icon, source.Out()), "icon");
  return PngBytes(*factory.get(), *source.get());
}

}  // namespace

std::string BitmapBytes(HBITMAP bitmap) {
  const auto factory = Factory();
  ComPtr<IWICBitmap> source;
  Check(factory->CreateBitmapFromHBITMAP(bitmap, nullptr, WICBitmapIgnoreAlpha, source.Out()),
        "Handle is not that of a bitmap");
  return PngBytes(*factory.get(), *source.get());
}

std::string PictureBytes(IPicture& picture) {
  SHORT type = PICTYPE_UNINITIALIZED;
  OLE_HANDLE handle = 0;
  Check(picture.get_Type(&type), "type");
  Check(picture.get_Handle(&handle), "handle");
  void* const whole = LongToHandle(static_cast<LONG>(handle));
  if (type == PICTYPE_BITMAP) return BitmapBytes(static_cast<HBITMAP>(whole));
  if (type == PICTYPE_ICON) return IconBytes(static_cast<HICON>(whole));
  throw RunTimeError(Error::kInvalidPicture, "neither a bitmap nor an icon");
}

}  // namespace ZQ7Windows
