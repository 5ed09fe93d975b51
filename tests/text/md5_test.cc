#include "text/md5.h"

#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <tuple>

namespace ZQ7Standard {
namespace {

TEST(CalculateMD5, GivesTheDigestOfTheCodePageBytes) {
  const Text letters = u"abcdefghijklmnopqrstuvwxyz";
  Text digests;  // of every length up to slightly over two blocks
  for (Text text; text.size() <= 130; text += letters[text.size() % 26]) {
    digests += StandardObject().CalculateMD5(text);
  }
  // The first seven are from RFC 1321, the others made with iconv and md5sum.
  const std::tuple<Text, TextView> rows[] = {
      {u"", u"d41d8cd98f00b204e9800998ecf8427e"},
      {u"a", u"0cc175b9c0f1b6a831c399e269772661"},
      {u"abc", u"900150983cd24fb0d6963f7d28e17f72"},
      {u"message digest", u"f96b697d7cb7938d525a2f31aaf161d0"},
      {letters, u"c3fcd3d76192e4007dfb496cca67e13b"},
      {u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789",
       u"d174ab98d277d9f5a5611c2c9f419d9f"},
      {u"12345678901234567890123456789012345678901234567890123456789012345678901234567890",
       u"57edf4a22be3c955ac49da2e2107b67a"},
      {u"ใบกำกับภาษี 1,234.50 ฿", u"b930252bb7575b303e025456db23f8a2"},
      {u"?", u"d1457b72c3fb323a2671125aef3eab5d"},
      {u"日", u"d1457b72c3fb323a2671125aef3eab5d"},
      {Text(1'000'000, u'a'), u"7707d6ae4e027c70eea2a935c2296f21"},
      {digests, u"16cbcedfce9d8b8ba5102d6ca621d54c"},
  };
  for (const auto& [text, expected] : rows) {
    EXPECT_EQ(StandardObject().CalculateMD5(text), expected) << text.size();
  }
}

TEST(Md5, TakesTheBytesInPieces) {
  std::string bytes;
  while (bytes.size() < 200) bytes += static_cast<char>(bytes.size());
  Md5 whole;
  whole.Update(bytes);
  const Md5Digest expected = whole.Finish();
  for (std::size_t piece = 1; piece < bytes.size(); ++piece) {
    Md5 md5;
    for (std::size_t at = 0; at < bytes.size(); at += piece) md5.Update(bytes.substr(at, piece));
    EXPECT_EQ(md5.Finish(), expected) << piece;
  }
}

}  // namespace
}  // namespace ZQ7Standard
