#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/sodium_block_cipher.h>
#include <gtest/gtest.h>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

constexpr TextView kPassword = u"รหัสผ่าน 1";
constexpr TextView kPlain = u"ใบกำกับภาษี 1,234.50 ฿";

StandardObject Object() {
  return StandardObject({.block_cipher = SodiumBlockCipher(KeyCost::kLeast)});
}

void ExpectUnread(const Text& text, TextView password) {
  ASSERT_EQ(Object().Decrypt(text, password), text) << Utf8(password);
}

TEST(SodiumBlockCipher, WritesLettersThatSurviveAnyCarrier) {
  for (std::size_t length = 1; length < 5000; length += 1 + length / 2) {
    const Text plain(length, u'ก');
    const Text text = Object().Encrypt(plain, kPassword);
    EXPECT_EQ(text.find_first_not_of(u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"
                                     u"0123456789-_"),
              Text::npos);
    EXPECT_NE(text.substr(6, 20), Object().Encrypt(plain, kPassword).substr(6, 20));  // the salt
    const Text folded = u" " + text.substr(0, 2) + u"\r\n\t" + text.substr(2) + u"\n";
    EXPECT_EQ(Object().Decrypt(folded, kPassword), plain) << length;
  }
}

TEST(SodiumBlockCipher, GivesBackEveryDamagedText) {
  const Text text = Object().Encrypt(kPlain, kPassword);
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto above_ascii = static_cast<char16_t>(text[at] + 0x100);
    for (const char16_t other : {u'A', u'Z', u'1', u'9', u'-', u'_', u'=', u'+', above_ascii}) {
      Text damaged = text;
      damaged[at] = other;
      if (other != text[at]) ExpectUnread(damaged, kPassword);
    }
    ExpectUnread(text.substr(0, at), kPassword);
    ExpectUnread(text.substr(0, at) + text.substr(at + 1), kPassword);
  }
  for (const TextView password : {u"รหัสผ่าน 2", u"รหัสผ่าน", u"?"}) ExpectUnread(text, password);
  for (const TextView never : {kPlain, TextView(u"ZQ71"), TextView(u"ZQ71AAAA"), TextView(u" ")}) {
    ExpectUnread(Text(never), kPassword);
  }
  ExpectUnread(text + u"A", kPassword);
}

// Texts that hosts have stored must stay readable. Made from the description in docs/security.md,
// with libsodium called from Python.
TEST(SodiumBlockCipher, ReadsTextsOfEveryCost) {
  for (const char16_t* const text :
       {u"ZQ71AAABAgMEBQYHCAkKCwwNDg9kZWZnaGlqa2xtbm9wcXJzdHV2d3h5entu6izJmnfjU8-UbBPj"
        u"RbwPaUvW0HYbsLL-QpidnxcmBMAJIw5lrg",
        u"ZQ71AQABAgMEBQYHCAkKCwwNDg9kZWZnaGlqa2xtbm9wcXJzdHV2d3h5env_WdK05SVJ1cTYHpp1"
        u"qiWl-PxEQcBZanYMa06NfjNi_HoCHSDgSA",
        u"ZQ71AgABAgMEBQYHCAkKCwwNDg9kZWZnaGlqa2xtbm9wcXJzdHV2d3h5ensmEIb-7nKE07gV9ObY"
        u"YQST21bCpcGK-GnaS8H0kblUcmxT4eoWRw"}) {
    EXPECT_EQ(Object().Decrypt(text, kPassword), kPlain) << Utf8(text);
  }
  EXPECT_EQ(ErrorOf([] { SodiumBlockCipher(static_cast<KeyCost>(3)); }), 5);
}

}  // namespace
}  // namespace ZQ7Standard
