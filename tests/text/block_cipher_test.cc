#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/sodium_block_cipher.h>
#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

using namespace std::string_literals;

constexpr TextView kPassword = u"รหัสผ่าน 1";
constexpr TextView kPlain = u"ใบกำกับภาษี 1,234.50 ฿";

StandardObject Object() {
  return StandardObject({.block_cipher = SodiumBlockCipher(KeyCost::kLeast)});
}

TEST(SodiumBlockCipher, DeciphersTextsOfAnyLength) {
  for (std::size_t length = 1; length < 5000; length += 1 + length / 2) {
    const Text plain(length, u'ก');
    EXPECT_EQ(Object().Decrypt(Object().Encrypt(plain, kPassword), kPassword), plain) << length;
  }
  EXPECT_EQ(Object().Decrypt(Object().Encrypt(u"a\0b日"s, u"pw"), u"pw"), u"ab?");
}

TEST(SodiumBlockCipher, WritesLettersThatSurviveAnyCarrier) {
  const Text text = Object().Encrypt(kPlain, kPassword);
  EXPECT_TRUE(text.starts_with(u"ZQ71"));
  constexpr TextView kLetters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
  EXPECT_EQ(TextView(text).find_first_not_of(kLetters), Text::npos);
  EXPECT_NE(text, Object().Encrypt(kPlain, kPassword));
  const Text folded = u" " + text.substr(0, 2) + u"\r\n\t" + text.substr(2) + u"\n";
  EXPECT_EQ(Object().Decrypt(folded, kPassword), kPlain);
}

TEST(SodiumBlockCipher, GivesBackEveryDamagedText) {
  const Text text = Object().Encrypt(kPlain, kPassword);
  for (std::size_t at = 0; at < text.size(); ++at) {
    for (const char16_t other : TextView(u"AZ19-_=+é\u0E01")) {
      Text damaged = text;
      damaged[at] = other;
      const TextView expected = other == text[at] ? kPlain : TextView(damaged);
      ASSERT_EQ(Object().Decrypt(damaged, kPassword), expected) << at;
    }
    const Text cut = text.substr(0, at);
    ASSERT_EQ(Object().Decrypt(cut, kPassword), cut) << at;
    const Text shortened = text.substr(0, at) + text.substr(at + 1);
    ASSERT_EQ(Object().Decrypt(shortened, kPassword), shortened) << at;
  }
  EXPECT_EQ(Object().Decrypt(text + u"A", kPassword), text + u"A");
}

TEST(SodiumBlockCipher, GivesBackWhatItCannotRead) {
  const Text text = Object().Encrypt(kPlain, kPassword);
  for (const TextView password : {TextView(u"รหัสผ่าน 2"), TextView(u"รหัสผ่าน"), TextView(u"?")}) {
    EXPECT_EQ(Object().Decrypt(text, password), text) << Utf8(password);
  }
  for (const TextView never : {kPlain, TextView(u"ZQ71"), TextView(u"ZQ71AAAA"), TextView(u" ")}) {
    EXPECT_EQ(Object().Decrypt(never, kPassword), never) << Utf8(never);
  }
}

// Passwords are told apart beyond the code page, in which all of these are "?".
TEST(SodiumBlockCipher, UsesTheWholePassword) {
  const Text text = Object().Encrypt(kPlain, u"日");
  EXPECT_EQ(Object().Decrypt(text, u"日"), kPlain);
  EXPECT_EQ(Object().Decrypt(text, u"本"), text);
}

// Texts that hosts keep have to stay readable. Made from the description of the
// form in docs/security.md, with libsodium called from Python.
TEST(SodiumBlockCipher, ReadsTextsOfEveryCost) {
  const TextView texts[] = {
      u"ZQ71AAABAgMEBQYHCAkKCwwNDg9kZWZnaGlqa2xtbm9wcXJzdHV2d3h5entu6izJmnfjU8-UbBPj"
      u"RbwPaUvW0HYbsLL-QpidnxcmBMAJIw5lrg",
      u"ZQ71AQABAgMEBQYHCAkKCwwNDg9kZWZnaGlqa2xtbm9wcXJzdHV2d3h5env_WdK05SVJ1cTYHpp1"
      u"qiWl-PxEQcBZanYMa06NfjNi_HoCHSDgSA",
      u"ZQ71AgABAgMEBQYHCAkKCwwNDg9kZWZnaGlqa2xtbm9wcXJzdHV2d3h5ensmEIb-7nKE07gV9ObY"
      u"YQST21bCpcGK-GnaS8H0kblUcmxT4eoWRw",
  };
  for (const TextView text : texts) {
    EXPECT_EQ(Object().Decrypt(text, kPassword), kPlain) << Utf8(text);
  }
  EXPECT_EQ(ErrorOf([] { SodiumBlockCipher(static_cast<KeyCost>(3)); }), 5);
}

}  // namespace
}  // namespace ZQ7Standard
