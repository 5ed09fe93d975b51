#include "host_objects.h"

#include <ZQ7Standard/RunTimeError.h>

#include <cstdint>

#include "failures.h"
#include "picture_bytes.h"
#include "platform/windows/wide_text.h"
#include "values.h"

namespace ZQ7Windows {

using namespace ZQ7Standard;

namespace {

VARIANT Number(std::int16_t number) {
  VARIANT value;
  value.vt = VT_I2;
  value.iVal = number;
  return value;
}

VARIANT Flag(bool flag) {
  VARIANT value;
  value.vt = VT_BOOL;
  value.boolVal = flag ? VARIANT_TRUE : VARIANT_FALSE;
  return value;
}

VARIANT Borrowed(const Bstr& text) {
  VARIANT value;
  value.vt = VT_BSTR;
  value.bstrVal = text.get();
  return value;
}

class Control final : public SerialPort {
 public:
  explicit Control(IDispatch* control) : control_(control) {}

  void SetCommPort(std::int16_t port) override { control_.Put(L"CommPort", Number(port)); }
  void SetSettings(TextView settings) override { PutText(L"Settings", settings); }
  void SetInputLen(std::int16_t length) override { control_.Put(L"InputLen", Number(length)); }
  void SetPortOpen(bool open) override { control_.Put(L"PortOpen", Flag(open)); }
  void SetOutput(TextView text) override { PutText(L"Output", text); }

  bool PortOpen() const override {
    Variant open;
    control_.Get(L"PortOpen", open);
    return SUCCEEDED(VariantChangeType(&open, &open, 0, VT_BOOL)) && open.boolVal != VARIANT_FALSE;
  }

 private:
  void PutText(const std::wstring& name, TextView text) {
    const Bstr value(Wide(text));
    control_.Put(name, Borrowed(value));
  }

  HostObject control_;
};

/// A picture with the size that its object says.
class SizedPicture final : public PrintPicture {
 public:
  explicit SizedPicture(IDispatch* object) : object_(object) {}

  float Width() override { return Length(L"Width"); }
  float Height() override { return Length(L"Height"); }
  std::string_view Picture() override {
    if (bytes_.empty()) bytes_ = Read();
    return bytes_;
  }

 private:
  float Length(const std::wstring& name) const {
    Variant length;
    object_.Get(name, length);
    if (FAILED(VariantChangeType(&length, &length, 0, VT_R4))) {
      throw RunTimeError(Error::kInvalidPicture, Utf8(FromWide(name)));
    }
    return length.fltVal;
  }

  std::string Read() const {
    Variant held;
    if (object_.Has(L"Picture")) {
      object_.Get(L"Picture", held);
      const bool object = held.vt == VT_DISPATCH || held.vt == VT_UNKNOWN;
      const auto picture = Query<IPicture>(object ? held.punkVal : nullptr, IID_IPicture);
      if (!picture) throw RunTimeError(Error::kInvalidPicture, "Picture is not a picture");
      return PictureBytes(*picture.get());
    }
    object_.Get(L"Handle", held);
    // Handles have 32 bits that count, in programs of 64 too.
    if (FAILED(VariantChangeType(&held, &held, 0, VT_I4))) {
      throw RunTimeError(Error::kInvalidPicture, "Handle is not a number");
    }
    return BitmapBytes(static_cast<HBITMAP>(LongToHandle(held.lVal)));
  }

  HostObject object_;
  std::string bytes_;
};

/// One of the system's own pictures, which measure in hundredths of a millimetre.
class SystemPicture final : public PrintPicture {
 public:
  explicit SystemPicture(ComPtr<IPicture> picture) : picture_(std::move(picture)) {}

  float Width() override { return Length(&IPicture::get_Width); }
  float Height() override { return Length(&IPicture::get_Height); }
  std::string_view Picture() override {
    if (bytes_.empty()) bytes_ = PictureBytes(*picture_.get());
    return bytes_;
  }

 private:
  float Length(HRESULT (STDMETHODCALLTYPE IPicture::*get)(OLE_XSIZE_HIMETRIC*)) {
    OLE_XSIZE_HIMETRIC hundredths = 0;
    if (FAILED((picture_.get()->*get)(&hundredths))) throw RunTimeError(Error::kInvalidPicture);
    return static_cast<float>(hundredths) / 100;
  }

  ComPtr<IPicture> picture_;
  std::string bytes_;
};

}  // namespace

std::optional<DISPID> HostObject::Find(const std::wstring& name) const {
  DISPID id = DISPID_UNKNOWN;
  if (const auto extended = Query<IDispatchEx>(object_.get(), __uuidof(IDispatchEx))) {
    const Bstr text(name);
    if (SUCCEEDED(extended->GetDispID(text.get(), fdexNameCaseInsensitive, &id))) return id;
  }
  auto* text = const_cast<wchar_t*>(name.c_str());
  if (SUCCEEDED(object_->GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id))) return id;
  return std::nullopt;
}

DISPID HostObject::Need(const std::wstring& name) const {
  if (const auto id = Find(name)) return *id;
  throw RunTimeError(Error::kUnsupportedMember, Utf8(FromWide(name)));
}

void HostObject::Get(const std::wstring& name, VARIANT& value) const {
  DISPPARAMS none = {};
  ExceptionInfo info;
  const HRESULT result = object_->Invoke(Need(name), IID_NULL, LOCALE_USER_DEFAULT,
                                         DISPATCH_PROPERTYGET, &none, &value, &info, nullptr);
  if (FAILED(result)) RaiseHostFailure(result, info, Utf8(FromWide(name)));
}

void HostObject::Put(const std::wstring& name, VARIANT value) const {
  DISPID put = DISPID_PROPERTYPUT;
  DISPPARAMS given = {&value, &put, 1, 1};
  ExceptionInfo info;
  const HRESULT result = object_->Invoke(Need(name), IID_NULL, LOCALE_USER_DEFAULT,
                                         DISPATCH_PROPERTYPUT, &given, nullptr, &info, nullptr);
  if (FAILED(result)) RaiseHostFailure(result, info, Utf8(FromWide(name)));
}

bool HostObject::GetDefault(VARIANT& value) const {
  DISPPARAMS none = {};
  return SUCCEEDED(object_->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT,
                                   DISPATCH_PROPERTYGET | DISPATCH_METHOD, &none, &value, nullptr,
                                   nullptr));
}

std::shared_ptr<SerialPort> HostSerialPort(IDispatch* control) {
  return std::make_shared<Control>(control);
}

std::shared_ptr<PrintPicture> HostPicture(IDispatch* picture) {
  if (auto own = Query<IPicture>(picture, IID_IPicture)) {
    return std::make_shared<SystemPicture>(std::move(own));
  }
  return std::make_shared<SizedPicture>(picture);
}

}  // namespace ZQ7Windows
