#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/block_cipher.h>
#include <gtest/gtest.h>

#include <tuple>

#include "base/code_page.h"
#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

using namespace std::string_literals;
using Cipher = std::function<Text(const Text&, const Text&)>;

const Cipher kExclusiveOr[] = {
    [](auto& text, auto& password) { return StandardObject().EncryptBS(text, password); },
    [](auto& text, auto& password) { return StandardObject().DecryptBS(text, password); },
    [](auto& text, auto& password) { return RegistryObject().Encrypt(text, password); },
    [](auto& text, auto& password) { return RegistryObject().Decrypt(text, password); }};

TEST(EncryptBS, CombinesWithTheRepeatedPassword) {
  const std::tuple<Text, Text, Text> rows[] = {
      {u"ABC", u"A", u"\0\3\2"s},
      {u"abcde", u"\1\2\3", u"```eg"},
      {u"a", u"\1zzz", u"`"},
      {u"日A😀", u"\1", u">@>>"},  // "?" for characters outside the code page
      {u"AA", u"日", u"~~"},
      {u"", u"", u""},
  };
  for (const Cipher& cipher : kExclusiveOr) {
    for (const auto& [text, password, expected] : rows) {
      EXPECT_EQ(cipher(text, password), expected) << Utf8(text) << " under " << Utf8(password);
    }
    EXPECT_EQ(ErrorOf([&] { cipher(u"x", u""); }), 11);
  }
}

TEST(EncryptBS, TakesEveryByteUnderPasswordsOfAnyLength) {
  std::string bytes;
  for (int i = 0; i < 3 * 256; ++i) bytes.push_back(static_cast<char>(i + i / 256));
  const Text text = FromCodePage(bytes);
  for (std::size_t length = 1; length <= text.size(); length += 1 + length / 4) {
    const Text password = text.substr(text.size() - length);
    std::string expected = bytes;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      expected[i] = static_cast<char>(bytes[i] ^ bytes[bytes.size() - length + i % length]);
    }
    const Text encrypted = StandardObject().EncryptBS(text, password);
    ASSERT_EQ(ToCodePage(encrypted), expected) << length;
    ASSERT_EQ(StandardObject().DecryptBS(encrypted, password), text) << length;
  }
}

TEST(EncryptBS, CountsIn16Bits) {
  const Text text(32768, u'x');
  EXPECT_EQ(StandardObject().EncryptBS(text.substr(1), u"x"), Text(32767, u'\0'));
  EXPECT_EQ(ErrorOf([&] { StandardObject().EncryptBS(text, u"x"); }), 6);
  EXPECT_EQ(ErrorOf([&] { StandardObject().DecryptBS(text, u""); }), 6);
  EXPECT_EQ(RegistryObject().Encrypt(text, u"x"), Text(32768, u'\0'));
}

TEST(Encrypt, MakesOneCipherForACallAndKeepsTheOrder) {
  const auto encrypt = &StandardObject::Encrypt;
  const auto decrypt = &StandardObject::Decrypt;
  const std::string decrypted = "made, SetUpKey pw, Decode, Initialise pw 3, DecryptBlocks, gone";
  const std::tuple<decltype(encrypt), Text, Text, Text, std::string> rows[] = {
      {encrypt, u"กx日", u"pw", u"#กx?\0"s,
       "made, SetUpKey pw, Initialise pw 3, EncryptBlocks \xA1x?, Encode, gone"},
      {decrypt, u"#กx?\0"s, u"pw", u"กx?", decrypted},
      {decrypt, u"#\0wrong"s, u"pw", u"#wrong", decrypted},
      {decrypt, u"plain\0日"s, u"pw", u"plain日", "made, SetUpKey pw, Decode, gone"},
      {encrypt, u"", u"pw", u"", ""},
      {encrypt, u"a\0b"s, u"", u"a\0b"s, ""},
      {decrypt, u"", u"pw", u"", ""},
      {decrypt, u"a\0b"s, u"", u"ab", ""},
  };
  for (const auto& [operation, text, password, expected, expected_calls] : rows) {
    std::string calls;
    const StandardObject object({.block_cipher = FakeBlockCipher(calls)});
    EXPECT_EQ((object.*operation)(text, password), expected);
    EXPECT_EQ(calls, expected_calls) << Utf8(text);
  }
}

TEST(Encrypt, LetsTheErrorsOfTheCipherThrough) {
  const std::pair<int, BlockCipherFactory> rows[] = {
      {429, nullptr},
      {429, [] { return nullptr; }},
      {7, []() -> std::unique_ptr<BlockCipher> { throw RunTimeError(Error::kOutOfMemory); }},
  };
  for (const auto& [number, factory] : rows) {
    const StandardObject object({.block_cipher = factory});
    EXPECT_EQ(ErrorOf([&] { object.Encrypt(u"x", u"pw"); }), number);
    EXPECT_EQ(ErrorOf([&] { object.Decrypt(u"x", u"pw"); }), number);
  }
}

}  // namespace
}  // namespace ZQ7Standard
