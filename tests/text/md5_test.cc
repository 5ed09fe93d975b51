#include "text/md5.h"

#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <string>

namespace ZQ7Standard {
namespace {

std::string DigestOf(TextView text) {
  return Utf8(StandardObject().CalculateMD5(text));
}

Text LettersOf(std::size_t length) {
  Text text;
  for (std::size_t i = 0; i < length; ++i) text.push_back(static_cast<char16_t>(u'a' + i % 26));
  return text;
}

struct DigestCase {
  const char* reason;
  Text text;
  const char* expected;
};

TEST(CalculateMD5, GivesTheDigestOfTheCodePageBytes) {
  const DigestCase cases[] = {
      {"RFC 1321, empty", u"", "d41d8cd98f00b204e9800998ecf8427e"},
      {"RFC 1321", u"a", "0cc175b9c0f1b6a831c399e269772661"},
      {"RFC 1321", u"abc", "900150983cd24fb0d6963f7d28e17f72"},
      {"RFC 1321", u"message digest", "f96b697d7cb7938d525a2f31aaf161d0"},
      {"RFC 1321", LettersOf(26), "c3fcd3d76192e4007dfb496cca67e13b"},
      {"RFC 1321", u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789",
       "d174ab98d277d9f5a5611c2c9f419d9f"},
      {"RFC 1321",
       u"1234567890123456789012345678901234567890"
       u"1234567890123456789012345678901234567890",
       "57edf4a22be3c955ac49da2e2107b67a"},
      {"Thai, by iconv and md5sum", u"ใบกำกับภาษี 1,234.50 ฿", "b930252bb7575b303e025456db23f8a2"},
      {"a million characters", Text(1'000'000, u'a'), "7707d6ae4e027c70eea2a935c2296f21"},
  };
  for (const auto& c : cases) EXPECT_EQ(DigestOf(c.text), c.expected) << c.reason;
  EXPECT_EQ(DigestOf(u"日"), DigestOf(u"?"));
}

// The digest of the 131 digests was made with md5sum.
TEST(CalculateMD5, PadsEveryLengthFrom0To130) {
  Text digests;
  for (std::size_t length = 0; length <= 130; ++length) {
    digests += StandardObject().CalculateMD5(LettersOf(length));
  }
  EXPECT_EQ(DigestOf(digests), "16cbcedfce9d8b8ba5102d6ca621d54c");
}

TEST(Md5, TakesTheBytesInPieces) {
  const std::string bytes = Utf8(LettersOf(200));
  Md5 whole;
  whole.Update(bytes);
  const Md5Digest expected = whole.Finish();
  for (std::size_t piece = 1; piece <= bytes.size(); ++piece) {
    Md5 md5;
    for (std::size_t at = 0; at < bytes.size(); at += piece) {
      md5.Update(std::string_view(bytes).substr(at, piece));
    }
    EXPECT_EQ(md5.Finish(), expected) << piece;
  }
}

}  // namespace
}  // namespace ZQ7Standard
