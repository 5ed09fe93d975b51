#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/fakes.h"
#include "text/code_page.h"

namespace ZQ7Standard {
namespace {

using namespace std::string_literals;

struct CombineCase {
  const char* reason;
  TextView text;
  TextView password;
  TextView expected;
};

TEST(EncryptBS, CombinesWithTheRepeatedPassword) {
  using namespace std::string_view_literals;
  const CombineCase cases[] = {
      {"a character equal to its password character is 0", u"ABC", u"A", u"\0\3\2"sv},
      {"the password repeats from its first character", u"abcde", u"\1\2\3", u"```eg"},
      {"a password longer than the text", u"a", u"\1zzz", u"`"},
      {"Thai on Thai", u"กข", u"ก", u"\0\3"sv},
      {"Thai goes to the C1 controls", u"กฒ", u"11", u"\x0090\x0083"},
      {"and to the bytes that Windows-874 leaves open", u"ปฟ", u"`C", u"\xF8C1\xF8C5"},
      {"what is not in the code page is '?'", u"日A😀", u"\1", u">@>>"},
      {"also in the password", u"AA", u"日", u"~~"},
      {"no text, whatever the password", u"", u"pw", u""},
      {"no text and no password", u"", u"", u""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(StandardObject().EncryptBS(c.text, c.password), c.expected) << c.reason;
    EXPECT_EQ(StandardObject().DecryptBS(c.text, c.password), c.expected) << c.reason;
    EXPECT_EQ(RegistryObject().Encrypt(c.text, c.password), c.expected) << c.reason;
    EXPECT_EQ(RegistryObject().Decrypt(c.text, c.password), c.expected) << c.reason;
  }
}

TEST(EncryptBS, UndoesItselfForEveryByteUnderPasswordsOfAnyLength) {
  std::string bytes;
  for (int i = 0; i < 3 * 256; ++i) bytes.push_back(static_cast<char>(i + i / 256));
  const Text text = FromCodePage(bytes);
  for (std::size_t length = 1; length <= text.size(); length += 1 + length / 4) {
    Text password = text.substr(text.size() - length);
    const Text encrypted = StandardObject().EncryptBS(text, password);
    for (std::size_t i = 0; i < text.size(); ++i) {
      const char expected = static_cast<char>(bytes[i] ^ bytes[text.size() - length + i % length]);
      ASSERT_EQ(ToCodePage(encrypted)[i], expected) << length << " at " << i;
    }
    EXPECT_EQ(StandardObject().DecryptBS(encrypted, password), text) << length;
  }
}

TEST(EncryptBS, RaisesForNoPasswordAndPast16Bits) {
  const StandardObject object;
  const RegistryObject registry;
  EXPECT_EQ(ErrorOf([&] { object.EncryptBS(u"x", u""); }), 11);
  EXPECT_EQ(ErrorOf([&] { object.DecryptBS(u"x", u""); }), 11);
  EXPECT_EQ(ErrorOf([&] { registry.Encrypt(u"x", u""); }), 11);
  EXPECT_EQ(ErrorOf([&] { registry.Decrypt(u"x", u""); }), 11);
  const Text longest(32767, u'x');
  EXPECT_EQ(object.EncryptBS(longest, u"pw"), registry.Encrypt(longest, u"pw"));
  const Text longer(32768, u'x');
  EXPECT_EQ(ErrorOf([&] { object.EncryptBS(longer, u"pw"); }), 6);
  EXPECT_EQ(ErrorOf([&] { object.DecryptBS(longer, u""); }), 6);
  EXPECT_EQ(registry.Decrypt(registry.Encrypt(longer, u"pw"), u"pw"), longer);
}

using Calls = std::vector<std::string>;

TEST(Encrypt, MakesOneCipherForACallAndKeepsTheOrder) {
  FakeCipherState state;
  const StandardObject object({.block_cipher = FakeBlockCipher(state)});
  EXPECT_EQ(object.Encrypt(u"กx日", u"pw"), u"#¡x?\0"s);
  EXPECT_EQ(state.calls, (Calls{"made", "SetUpKey pw", "Initialise pw vector",
                                "EncryptBlocks \xA1x?", "Encode", "released"}));
  state.calls.clear();
  EXPECT_EQ(object.Decrypt(u"#¡x?\0"s, u"pw"), u"กx?");
  EXPECT_EQ(state.calls, (Calls{"made", "SetUpKey pw", "Decode", "Initialise pw vector",
                                "DecryptBlocks", "released"}));
}

TEST(Encrypt, NeedsNoCipherWithoutTextOrPassword) {
  const StandardObject object;
  EXPECT_EQ(object.Encrypt(u"", u"pw"), u"");
  EXPECT_EQ(object.Encrypt(u"a\0b"s, u""), u"a\0b"s);
  EXPECT_EQ(object.Decrypt(u"", u"pw"), u"");
  EXPECT_EQ(object.Decrypt(u"a\0b"s, u""), u"ab");
}

TEST(Decrypt, GivesBackWhatTheCipherCannotRead) {
  FakeCipherState state;
  const StandardObject object({.block_cipher = FakeBlockCipher(state)});
  EXPECT_EQ(object.Decrypt(u"plain\0日"s, u"pw"), u"plain日");
  EXPECT_EQ(state.calls, (Calls{"made", "SetUpKey pw", "Decode", "released"}));
  EXPECT_EQ(object.Decrypt(u"#x\0y"s, u"wrong"), u"#xy");
}

TEST(Encrypt, LetsTheErrorsOfTheCipherThrough) {
  StandardObject object;
  EXPECT_EQ(ErrorOf([&] { object.Encrypt(u"x", u"pw"); }), 429);
  EXPECT_EQ(ErrorOf([&] { object.Decrypt(u"x", u"pw"); }), 429);
  object = StandardObject({.block_cipher = [] { return nullptr; }});
  EXPECT_EQ(ErrorOf([&] { object.Encrypt(u"x", u"pw"); }), 429);
  object = StandardObject(
      {.block_cipher = []() -> std::unique_ptr<BlockCipher> { throw std::domain_error("none"); }});
  EXPECT_THROW(object.Decrypt(u"x", u"pw"), std::domain_error);
}

}  // namespace
}  // namespace ZQ7Standard
