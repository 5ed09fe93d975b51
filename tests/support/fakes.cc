#include "tests/support/fakes.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <cstdio>
#include <utility>

#include "base/code_page.h"

namespace ZQ7Standard {
namespace {

class RecordingCipher final : public BlockCipher {
 public:
  explicit RecordingCipher(std::string& calls) : calls_(calls) { calls_ += "made"; }
  ~RecordingCipher() override { calls_ += ", gone"; }

  void SetUpKey(TextView password, SecretBytes& key, SecretBytes& vector) override {
    const std::string bytes = Utf8(password);
    calls_ += ", SetUpKey " + bytes;
    key = SecretBytes(bytes.size());
    std::ranges::copy(bytes, key.Bytes().begin());
    vector = SecretBytes(3);
  }
  void Initialise(SecretBytes key, SecretBytes vector) override {
    calls_.append(", Initialise ").append(key.Bytes().begin(), key.Bytes().end());
    calls_ += " " + std::to_string(vector.Bytes().size());
  }
  std::string EncryptBlocks(std::string_view plain) override {
    calls_.append(", EncryptBlocks ").append(plain);
    return std::string(plain) + '\0';
  }
  std::optional<std::string> DecryptBlocks(std::string_view cipher) override {
    calls_ += ", DecryptBlocks";
    return cipher.ends_with("wrong") ? std::nullopt : std::optional<std::string>(cipher);
  }
  Text Encode(std::string_view cipher) override {
    calls_ += ", Encode";
    return u"#" + FromCodePage(cipher);
  }
  std::optional<std::string> Decode(TextView text) override {
    calls_ += ", Decode";
    if (!text.starts_with(u'#')) return std::nullopt;
    return ToCodePage(text.substr(1));
  }

 private:
  std::string& calls_;
};

/// Records a call; returns whether it should succeed.
bool Record(RegistryScript& script, const std::string& call, const std::vector<Text>& arguments) {
  script.calls += call;
  for (const Text& argument : arguments) script.calls += " " + Utf8(argument);
  script.calls += "; ";
  if (call == script.failing && script.raises) throw RunTimeError(Error::kDeviceIoError);
  return call != script.failing;
}

Text Decimal(auto number) {
  return FromUtf8(std::to_string(number));
}

class ScriptedKey final : public RegistryKey {
 public:
  explicit ScriptedKey(RegistryScript& script) : script_(script) {}
  ~ScriptedKey() override { Record(script_, "close", {}); }

  std::optional<QueriedValue> Query(TextView name, std::span<char> buffer) override {
    if (!Record(script_, "Query", {Text(name), u"of", Decimal(buffer.size())})) return {};
    buffer.front() = 7;
    return QueriedValue{kRegistryNumber, 4};
  }
  bool Set(TextView name, std::uint32_t type, std::string_view data) override {
    return Record(script_, "Set", {Text(name), u"as", Decimal(type), u"bytes", FromCodePage(data)});
  }

 private:
  RegistryScript& script_;
};

class ScriptedRegistry final : public Registry {
 public:
  explicit ScriptedRegistry(RegistryScript& script) : script_(script) {}

  std::unique_ptr<RegistryKey> Open(std::int32_t root, TextView path,
                                    std::uint32_t access) override {
    return KeyIf(Record(script_, "Open", {Decimal(root), Text(path), Decimal(access)}));
  }
  std::unique_ptr<RegistryKey> Create(std::int32_t root, TextView path,
                                      const KeyCreation& creation) override {
    const auto& [key_class, options, access, security] = creation;
    return KeyIf(
        Record(script_, "Create",
               {Decimal(root), Text(path), Text(key_class), Decimal(options), Decimal(access),
                Decimal(security.length), security.descriptor == nullptr ? u"null" : u"descriptor",
                security.inherit ? u"inherit" : u"keep"}));
  }

 private:
  std::unique_ptr<RegistryKey> KeyIf(bool succeeds) {
    return succeeds ? std::make_unique<ScriptedKey>(script_) : nullptr;
  }

  RegistryScript& script_;
};

}  // namespace

OleDate TestNow() {
  return OleDate::FromParts(2024, 1, 15, 9, 30);
}

std::string NameOf(DateConvention convention) {
  return "convention " + std::to_string(ObjectWith(convention).GetDateFormat());
}

StandardObject ObjectWith(DateConvention convention, OleDate now) {
  return StandardObject(
      {.clock = FixedClock(now), .date_convention = FixedDateConvention(convention)});
}

BlockCipherFactory FakeBlockCipher(std::string& calls) {
  return [&calls] { return std::make_unique<RecordingCipher>(calls); };
}

std::shared_ptr<Registry> FakeRegistry(RegistryScript& script) {
  return std::make_shared<ScriptedRegistry>(script);
}

int ErrorOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

std::string IsoText(OleDate date) {
  return Utf8(date.ToText());
}

void PrintTo(OleDate date, std::ostream* stream) {
  *stream << IsoText(date);
}

void PrintTo(Currency amount, std::ostream* stream) {
  *stream << Utf8(amount.ToText());
}

}  // namespace ZQ7Standard
