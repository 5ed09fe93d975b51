#include "tests/support/fakes.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace ZQ7Standard {
namespace {

SecretBytes SecretOf(std::string_view text) {
  SecretBytes secret(text.size());
  std::ranges::copy(text, secret.Bytes().begin());
  return secret;
}

std::string TextOf(const SecretBytes& secret) {
  return {secret.Bytes().begin(), secret.Bytes().end()};
}

class RecordingCipher final : public BlockCipher {
 public:
  explicit RecordingCipher(FakeCipherState& state) : state_(state) { Record("made"); }
  ~RecordingCipher() override { Record("released"); }

  void Initialise(SecretBytes key, SecretBytes vector) override {
    password_ = TextOf(key);
    Record("Initialise " + password_ + " " + TextOf(vector));
  }
  std::string EncryptBlocks(std::string_view plain) override {
    Record("EncryptBlocks " + std::string(plain));
    return std::string(plain) + '\0';
  }
  std::optional<std::string> DecryptBlocks(std::string_view cipher) override {
    Record("DecryptBlocks");
    return password_ == "wrong" ? std::nullopt : std::optional<std::string>(cipher);
  }
  void SetUpKey(TextView password, SecretBytes& key, SecretBytes& vector) override {
    Record("SetUpKey " + Utf8(password));
    key = SecretOf(Utf8(password));
    vector = SecretOf("vector");
  }
  Text Encode(std::string_view cipher) override {
    Record("Encode");
    Text text = u"#";
    for (const char byte : cipher) text.push_back(static_cast<unsigned char>(byte));
    return text;
  }
  std::optional<std::string> Decode(TextView text) override {
    Record("Decode");
    if (!text.starts_with(u'#')) return std::nullopt;
    std::string cipher;
    for (const char16_t c : text.substr(1)) cipher.push_back(static_cast<char>(c));
    return cipher;
  }

 private:
  void Record(std::string call) { state_.calls.push_back(std::move(call)); }

  FakeCipherState& state_;
  std::string password_;
};

}  // namespace

OleDate TestNow() {
  return OleDate::FromParts(2024, 1, 15, 9, 30);
}

StandardObject ObjectWith(DateConvention convention, OleDate now) {
  return StandardObject(
      {.clock = FixedClock(now), .date_convention = FixedDateConvention(convention)});
}

BlockCipherFactory FakeBlockCipher(FakeCipherState& state) {
  return [&state] { return std::make_unique<RecordingCipher>(state); };
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
  char text[80];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", date.Year(), date.Month(),
                date.Day(), date.Hour(), date.Minute(), date.Second());
  return {text, date.TimeOfDay() == 0 ? 10U : 19U};
}

void PrintTo(OleDate date, std::ostream* stream) {
  *stream << IsoText(date);
}

void PrintTo(Currency amount, std::ostream* stream) {
  *stream << Utf8(amount.ToText());
}

}  // namespace ZQ7Standard
