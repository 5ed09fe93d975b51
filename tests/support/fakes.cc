#include "tests/support/fakes.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <cstdio>
#include <utility>

#include "text/code_page.h"

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

}  // namespace

OleDate TestNow() {
  return OleDate::FromParts(2024, 1, 15, 9, 30);
}

StandardObject ObjectWith(DateConvention convention, OleDate now) {
  return StandardObject(
      {.clock = FixedClock(now), .date_convention = FixedDateConvention(convention)});
}

BlockCipherFactory FakeBlockCipher(std::string& calls) {
  return [&calls] { return std::make_unique<RecordingCipher>(calls); };
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
