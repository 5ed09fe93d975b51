#include "formats/serial_settings.h"

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

std::string SettingsText(TextView text) {
  const auto settings = ReadSerialSettings(text);
  if (!settings) return "none";
  const auto& [baud, parity, data_bits, stop_bits] = *settings;
  return std::to_string(baud) + " " + "noems"[static_cast<int>(parity)] + " " +
         std::to_string(data_bits) + " " + std::to_string(static_cast<int>(stop_bits) + 1);
}

TEST(ReadSerialSettings, ReadsExactlyTheFourFields) {
  // clang-format off
  ExpectTexts(SettingsText, {
      {"9600 n 8 1", {u"9600,N,8,1", u"9600,n,8,1"}}, {"4000000 o 4 2", {u"4000000,O,4,1.5"}},
      {"50 e 5 3", {u"50,e,5,2"}}, {"115200 m 6 1", {u"115200,M,6,1"}},
      {"14400 s 7 1", {u"14400,S,7,1"}},
      {"none", {u"", u",,,", u"9600", u"9600,N,8", u"9600,N,8,", u"9600,N,8,1,", u",9600,N,8,1",
      u"9601,N,8,1", u"09600,N,8,1", u"+9600,N,8,1", u"0,N,8,1", u"9.6E+03,N,8,1",
      u"9600,X,8,1", u"9600,,8,1", u"9600,NN,8,1", u"9600,N,3,1", u"9600,N,9,1",
      u"9600,N,08,1", u"9600,N,8,0", u"9600,N,8,1.0", u"9600,N,8,1.", u"9600,N,8,3",
      u" 9600,N,8,1", u"9600,N,8,1 ", u"9600, N,8,1", u"9600;N;8;1", u"9600,N,8,๑",
      TextView(u"9600,N,8,1\0", 11)}}});
  // clang-format on
}
