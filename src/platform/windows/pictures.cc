#include "platform/windows/pictures.h"

#include <ZQ7Standard/RunTimeError.h>
#include <wincodec.h>

#include <algorithm>
#include <cstdint>
#include <limits>

#include "formats/jpeg.h"
#include "formats/jpeg_settings.h"
#include "platform/windows/com.h"

namespace ZQ7Standard {
namespace {

constexpr std::string_view kJpegScan = "\xFF\xDA";
constexpr std::string_view kJpegEnd = "\xFF\xD9";

constexpr unsigned kWhite = 255;
constexpr std::size_t kOpaquePixelSize = 4;  // with a byte of opacity after the colours

/// Calls `get` with the address of a pointer to an interface, and returns what it put there; null
/// if it failed.
template <typename Interface>
ComPointer<Interface> TryGet(const auto& get) {
  Interface* object = nullptr;
  const HRESULT result = get(&object);
  return ComPointer<Interface>(SUCCEEDED(result) ? object : nullptr);
}

[[noreturn]] void RaiseDamaged() {
  throw RunTimeError(Error::kInvalidPicture, "a damaged file");
}

void Require(HRESULT result) {
  if (FAILED(result)) RaiseDamaged();
}

/// `TryGet` of what no sound picture lacks.
template <typename Interface>
ComPointer<Interface> Get(const auto& get) {
  auto object = TryGet<Interface>(get);
  if (!object) RaiseDamaged();
  return object;
}

ComPointer<IWICImagingFactory> Factory() {
  auto factory = TryGet<IWICImagingFactory>([](IWICImagingFactory** made) {
    return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                            IID_PPV_ARGS(made));
  });
  if (!factory) {
    throw RunTimeError(Error::kCannotCreateObject, "the system has no imaging component");
  }
  return factory;
}

/// Whether a JPEG file has its end, without which decoders make up the rest. In the picture, after
/// its last scan, no other bytes look like it.
bool IsWholeJpeg(std::string_view file) {
  const auto scan = file.rfind(kJpegScan);
  const auto end = file.rfind(kJpegEnd);
  return scan != std::string_view::npos && end != std::string_view::npos && scan < end;
}

/// The first picture of a file, with blue, green, red and opacity for each pixel.
ComPointer<IWICFormatConverter> OpenPicture(IWICImagingFactory& factory, IStream& stream) {
  const auto decoder = Get<IWICBitmapDecoder>([&](IWICBitmapDecoder** made) {
    return factory.CreateDecoderFromStream(&stream, nullptr, WICDecodeMetadataCacheOnDemand, made);
  });
  const auto frame = Get<IWICBitmapFrameDecode>(
      [&](IWICBitmapFrameDecode** made) { return decoder->GetFrame(0, made); });
  auto converter = Get<IWICFormatConverter>(
      [&](IWICFormatConverter** made) { return factory.CreateFormatConverter(made); });
  Require(converter->Initialize(frame.get(), GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                nullptr, 0, WICBitmapPaletteTypeCustom));
  return converter;
}

BYTE OnWhite(unsigned colour, unsigned opacity) {
  return static_cast<BYTE>((colour * opacity + kWhite / 2) / kWhite + kWhite - opacity);
}

/// Puts each pixel on white, in place: no row becomes longer.
void LayOnWhite(Bitmap& picture) {
  const std::size_t old_size = picture.columns * kOpaquePixelSize;
  for (std::size_t row = 0; row < picture.rows; ++row) {
    const BYTE* from = &picture.bytes[row * old_size];
    BYTE* to = &picture.bytes[row * picture.RowSize()];
    for (std::size_t column = 0; column < picture.columns; ++column) {
      const unsigned opacity = from[Bitmap::kPixelSize];
      for (std::size_t i = 0; i < Bitmap::kPixelSize; ++i) *to++ = OnWhite(*from++, opacity);
      ++from;
    }
  }
  picture.bytes.resize(picture.rows * picture.RowSize());
}

Bitmap Decode(IWICImagingFactory& factory, std::string_view file, const PictureSize& size) {
  if (size.format == PictureFormat::kJpeg && !IsWholeJpeg(file)) RaiseDamaged();
  if (file.size() > std::numeric_limits<DWORD>::max()) RaiseDamaged();
  std::string copy(file);  // the stream's type is not const
  const auto stream =
      Get<IWICStream>([&](IWICStream** made) { return factory.CreateStream(made); });
  Require(stream->InitializeFromMemory(reinterpret_cast<BYTE*>(copy.data()),
                                       static_cast<DWORD>(copy.size())));
  const auto pixels = OpenPicture(factory, *stream);
  UINT columns = 0;
  UINT rows = 0;
  Require(pixels->GetSize(&columns, &rows));
  if (columns != size.columns || rows != size.rows) RaiseDamaged();
  Bitmap picture{.columns = columns, .rows = rows};
  const std::size_t row_size = columns * kOpaquePixelSize;
  picture.bytes.resize(row_size * rows);
  Require(pixels->CopyPixels(nullptr, static_cast<UINT>(row_size),
                             static_cast<UINT>(picture.bytes.size()), picture.bytes.data()));
  LayOnWhite(picture);
  return picture;
}

void WriteOption(IPropertyBag2& options, const wchar_t* name, float value) {
  std::wstring writable(name);
  PROPBAG2 option{};
  option.pstrName = writable.data();
  VARIANT variant{};
  variant.vt = VT_R4;
  variant.fltVal = value;
  Require(options.Write(1, &option, &variant));
}

/// Writes a picture to a stream as a JPEG file.
void Encode(IWICImagingFactory& factory, Bitmap& picture, const JpegSettings& settings,
            IStream& stream) {
  const auto encoder = Get<IWICBitmapEncoder>([&](IWICBitmapEncoder** made) {
    return factory.CreateEncoder(GUID_ContainerFormatJpeg, nullptr, made);
  });
  Require(encoder->Initialize(&stream, WICBitmapEncoderNoCache));
  IPropertyBag2* made_options = nullptr;
  const auto frame = Get<IWICBitmapFrameEncode>(
      [&](IWICBitmapFrameEncode** made) { return encoder->CreateNewFrame(made, &made_options); });
  const ComPointer<IPropertyBag2> options(made_options);
  WriteOption(*options, L"ImageQuality", static_cast<float>(settings.quality) / 100);
  Require(frame->Initialize(options.get()));
  Require(frame->SetSize(static_cast<UINT>(picture.columns), static_cast<UINT>(picture.rows)));
  Require(frame->SetResolution(settings.columns_per_inch, settings.rows_per_inch));
  WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
  Require(frame->SetPixelFormat(&format));
  Require(frame->WritePixels(static_cast<UINT>(picture.rows), static_cast<UINT>(picture.RowSize()),
                             static_cast<UINT>(picture.bytes.size()), picture.bytes.data()));
  Require(frame->Commit());
  Require(encoder->Commit());
}

/// The bytes of a stream in memory.
std::string BytesOf(IStream& stream) {
  STATSTG status{};
  Require(stream.Stat(&status, STATFLAG_NONAME));
  Require(stream.Seek({}, STREAM_SEEK_SET, nullptr));
  std::string bytes(static_cast<std::size_t>(status.cbSize.QuadPart), '\0');
  ULONG read = 0;
  Require(stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), &read));
  bytes.resize(read);
  return bytes;
}

}  // namespace

Bitmap DecodePicture(std::string_view file) {
  const PictureSize size = SizeForJpeg(file);
  const ComUse com(COINIT_MULTITHREADED);
  return Decode(*Factory(), file, size);
}

std::string PictureAsJpeg(std::string_view picture, int quality) {
  const PictureSize size = SizeForJpeg(picture);
  const ComUse com(COINIT_MULTITHREADED);
  const auto factory = Factory();
  Bitmap pixels = Decode(*factory, picture, size);
  const auto stream =
      Get<IStream>([](IStream** made) { return CreateStreamOnHGlobal(nullptr, TRUE, made); });
  Encode(*factory, pixels, JpegSettingsFor(size, quality), *stream);
  return BytesOf(*stream);
}

}  // namespace ZQ7Standard
