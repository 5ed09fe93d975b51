// Runs the tool with the test's own streams.

#include <ZQ7Standard/automation/invoke.h>
#include <gtest/gtest.h>

#include <limits>
#include <nlohmann/json.hpp>
#include <sstream>

#include "command_line.h"
#include "json_value.h"
#include "line_reader.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

struct CommandRow {
  std::vector<std::string> words;
  int status;
  std::string out;  ///< all of it, or up to "..."
  std::string err;  ///< part of it
  std::string in = {};
};

TEST(Tool, StreamsAndStatus) {
  const std::string x = "StandardObject.";
  const std::string e = "--example";
  const CommandRow rows[] = {
      {{"call", e, x + "CTDATE", "15/1/2567"}, 0, "2024-01-15\n", ""},
      {{"call", "standardobject.ctdate", "--json", "ITEXT=15/1/2567", e},
       0,
       "{\"date\":\"2024-01-15 00:00:00\",\"days\":45306}\n",
       ""},
      {{"call", e, x + "CTDATE", "1/15/2567"},
       1,
       "",
       "zq7: run-time error 13: StandardObject.CTDATE: type"},
      {{"call", "--convention=mdy", x + "CTDATE", "1/15/2024"}, 0, "2024-01-15\n", ""},
      {{"call", x + "CTYEAR", "--convention", "dmy-buddhist", "--now", "2023-12-31 23:59:59"},
       0,
       "2566\n",
       ""},
      {{"call", x + "FormatTDate2", e, "5/1/2567 18:30", "zq7dmmbbbb", "ZeroLeader=True"},
       0,
       "05 ม.ค. 2567\n",
       ""},
      {{"call", x + "FormatTDate2", e, "5/1/2567", "ZQ7DMMBB"}, 2, "", "Did you mean ZQ7DMMBBBB?"},
      {{"call", x + "d2Str", "-.5"}, 0, "-0.5\n", ""},
      {{"call", x + "FixNumber", "-1", "0"}, 0, "-1\n", ""},
      {{"call", x + "h2d", "8"}, 0, "0.3333333333333333\n", ""},
      {{"call", x + "d2h", "1e18"}, 0, "2.4e+19\n", ""},
      {{"call", x + "d2h", "100000"}, 0, "2400000\n", ""},
      {{"call", x + "FixMoneyDecimal", "10.3", "False"}, 0, "10.0000\n", ""},
      {{"call", x + "ArrayString", "กข", "", "[a,b]", "list"}, 0, "กข\n[a,b]\nlist\n", ""},
      {{"call", x + "CalculateMD5", ""}, 0, "d41d8cd98f00b204e9800998ecf8427e\n", ""},
      {{"call", x + "ReverseString", "--", "a=b"}, 0, "b=a\n", ""},
      {{"call", x + "ReverseString", "iString=a=b"}, 0, "b=a\n", ""},
      {{"call", x + "ReverseString", "--", "--json"}, 0, "nosj--\n", ""},
      {{"call", x + "ReverseString", "a=b"}, 2, "", "\"a\" is not a parameter of ReverseString."},
      {{"call", x + "ReverseString", "iStrin=b"}, 2, "", "Did you mean iString?"},
      {{"call", x + "ReverseString", "\xFF"}, 2, "", "not UTF-8"},
      {{"call", x + "ReverseString", "a", "iString=b"}, 2, "", "(error 450)"},
      {{"call", x + "CTDATE"}, 2, "", "(error 449): iText\nusage: StandardObject.CTDATE(iText As"},
      {{"call", x + "CTDAT", "1"}, 2, "", "Did you mean CTDATE?"},
      {{"call", "CTDATE", "1"}, 2, "", "Did you mean StandardObject.CTDATE?"},
      {{"call", "GridValueObject.Rows"}, 2, "", "is a property"},
      {{"call", "GridValueObject.Clear"}, 0, "", ""},
      {{"call", "--json", "GridValueObject.Clear"}, 0, "null\n", ""},
      {{"call", "--jsn", x + "CTYEAR"}, 2, "", "Did you mean --json?"},
      {{"call", "--now", "today", x + "CTYEAR"}, 2, "", "--now \"today\" is not a date"},
      {{"call", "--now", "2024-02-30", x + "CTYEAR"}, 2, "", "is not a date"},
      {{"call", "--convention", "ymd", x + "CTYEAR"}, 2, "", "is not one of mdy,"},
      {{"call"}, 2, "", "CLASS.OPERATION is required."},
      {{}, 2, "", "A subcommand is required."},
      {{"lst"}, 2, "", "Did you mean list?"},
      {{"list", "Grid"}, 2, "", "Did you mean GridValueObject?"},
      {{"list"}, 0, "ASCIIObject  ...", ""},
      {{"list", "gridvalueobject"}, 0, "GridValueObject: The numbers behind a grid...", ""},
      {{"help", "GridValueObject.rows"},
       0,
       "GridValueObject.Rows: The number of rows; 1 on a new grid.\n\n"
       "  GridValueObject.Rows As Long, read-only\n",
       ""},
      {{"help", x + "ReverseString"},
       0,
       "StandardObject.ReverseString: The characters from last to first.\n\n"
       "  StandardObject.ReverseString(iString As Text) As Text\n\n"
       "They are UTF-16 code units: surrogates and Thai marks come out in front of what\n"
       "they belong to.\n\n"
       "Parameters\n  iString  Text\n\nResult\n  Text\n\n"
       "Examples, on 2024-01-15 09:30, dates typed day first in the Buddhist Era\n"
       "  zq7 call --example StandardObject.ReverseString abc\n  cba\n",
       ""},
      {{"--version"}, 0, "zq7 0...", ""},
      {{"call", "--help"}, 0, "Call an operation of a new object.\n...", ""},
      {{"batch"}, 0, "{\"error\":{\"message\":\"not JSON at byte 1\"}}\n", "", " \n\nx"},
      {{"batch", "/no such file"}, 2, "", "cannot read /no such file: No such file"},
  };
  for (const CommandRow& row : rows) {
    std::istringstream in(row.in);
    std::ostringstream out;
    std::ostringstream err;
    std::string line = "zq7";
    for (const std::string& word : row.words) line += " " + word;
    EXPECT_EQ(ZQ7Tool::Run(row.words, {in, out, err}), row.status) << line;
    const std::size_t shown = std::min(row.out.find("..."), out.str().size());
    EXPECT_EQ(out.str().substr(0, shown), row.out.substr(0, row.out.find("..."))) << line;
    EXPECT_EQ(err.str().empty(), row.err.empty()) << line << ": " << err.str();
    EXPECT_NE(err.str().find(row.err), std::string::npos) << line << ": " << err.str();
  }
}

/// The JSON text of a value read from JSON; the error if it cannot be read.
std::string ThereAndBack(const std::string& json) {
  static const NamedObjects objects = {{"it", Create("GridValueObject")}};
  try {
    const Value value = ValueOfJson(ReadJson(json), objects);
    constexpr const char* kKinds[] = {"left out", "null",   "text",      "int16",
                                      "long",     "single", "double",    "Boolean",
                                      "date",     "money",  "text list", "object"};
    return std::string(kKinds[value.index()]) + " " + WriteJson(JsonOfValue(value, objects));
  } catch (const JsonError& error) {
    return std::string("error: ") + error.what();
  }
}

TEST(Tool, JsonValues) {
  const std::string day = R"({"date":"2024-01-15 12:00:00","days":45306.5})";
  const std::string advice = R"(write the text as {"utf16":"d83d 0041"})";
  const std::pair<std::string, std::string> rows[] = {
      {"null", "left out null"},
      {"true", "Boolean true"},
      {"-2147483648", "long -2147483648"},
      {"2147483648", "double 2147483648.0"},
      {"18446744073709551616", "double 1.8446744073709552e+19"},
      {"7.0", "double 7.0"},
      {"-0.0", "double -0.0"},
      {"0.1", "double 0.1"},
      {"5e-324", "double 5e-324"},
      {"-1e400", "error: a number is too large"},
      {R"({"double":"NaN"})", R"(double {"double":"NaN"})"},
      {R"({"double":"-Infinity"})", R"(double {"double":"-Infinity"})"},
      {R"({"double":"inf"})", R"(error: "inf" is not a double)"},
      {R"({"days":45306.5})", "date " + day},
      {R"({"date":"2024-01-15T12:00"})", "date " + day},
      {day, "date " + day},
      {R"({"date":"2024-01-15","days":45306.5})",
       R"(error: {"date":"2024-01-15","days":45306.5} is two different dates)"},
      {R"({"days":-657434})", R"(date {"date":"0100-01-01 00:00:00","days":-657434})"},
      {R"({"days":-657435})", "error: -657435 is beyond the range of dates"},
      {R"({"date":"15/1/2567"})",
       R"(error: "15/1/2567" is not a date such as "2024-01-15 09:30:00")"},
      {R"({"currency":"-10.3"})", R"(money {"currency":"-10.3000"})"},
      {R"({"currency":10.3})", "error: 10.3 is not a string"},
      {R"(["a",""])", R"(text list ["a",""])"},
      {R"(["a",1])", "error: 1 is not a string"},
      {R"({"object":"it"})", R"(object {"object":"it"})"},
      {R"({"object":"other"})", R"(error: "other" is not the name of an object)"},
      {R"({"object":"it","x":1})", R"(error: {"object":"it","x":1} is not a value)"},
      {R"("ก\u0e02\u0000\n")", R"(text "กข\u0000\n")"},
      {R"("\ud83d\ude00 \\ud83d \udbff\udfff")", "text \"😀 \\\\ud83d \U0010FFFF\""},
      {R"("\ud83d")", "error: a lone surrogate at byte 8: " + advice},
      {R"(["\ud83d\u0041"])", "error: a lone surrogate at byte 14: " + advice},
      {R"("\ude00\ud83d")", "error: a lone surrogate at byte 7: " + advice},
      {R"("surrogate \x")", "error: not JSON at byte 13"},
      {R"({"utf16":"D83d  0041 0e01"})", R"(text {"utf16":"d83d 0041 0e01"})"},
      {R"({"utf16":"d83d de00 0000"})", R"(text "😀\u0000")"},
      {R"({"utf16":""})", R"(text "")"},
      {R"(["a",{"utf16":"de00 d83d"}])", R"(text list ["a",{"utf16":"de00 d83d"}])"},
      {R"({"utf16":"d83d0041"})", R"(error: "d83d0041" is not UTF-16 such as "d83d 0041")"},
      {R"({"utf16":"d83d 41"})", R"(error: "d83d 41" is not UTF-16 such as "d83d 0041")"},
      {R"({"utf16":"d83d 0x41"})", R"(error: "d83d 0x41" is not UTF-16 such as "d83d 0041")"},
      {R"({"utf16":"d83d\t0041"})", R"(error: "d83d\t0041" is not UTF-16 such as "d83d 0041")"},
      {R"({"utf16":"d83d "})", R"(error: "d83d " is not UTF-16 such as "d83d 0041")"},
      {R"({"utf16":" d83d"})", R"(error: " d83d" is not UTF-16 such as "d83d 0041")"},
      {R"({"utf16":55357})", "error: 55357 is not a string"},
      {R"({"currency":{"utf16":"0031"}})", R"(error: {"utf16":"0031"} is not a string)"},
      {"\"\xF4\x8F\xA0\"", "error: not JSON at byte 5"},
      {"\"\xED\xA0\x80\"", "error: not JSON at byte 3"},
      {std::string("1\0", 2), "error: a NUL byte in the line"},
      {R"({"a":1,"a":1})", R"(error: "a" appears twice)"},
      {std::string(101, '['), "error: nested too deep"},
  };
  for (const auto& [json, expected] : rows) EXPECT_EQ(ThereAndBack(json), expected) << json;
  const float single = std::numeric_limits<float>::max();
  EXPECT_EQ(WriteJson(JsonOfValue(single)), "3.4028235e+38");
  EXPECT_EQ(static_cast<float>(std::get<double>(ValueOfJson(JsonOfValue(single)))), single);
}

TEST(Tool, EchoesIds) {
  const std::pair<std::string, std::string> rows[] = {
      {"1.50", "1.50"},
      {"1E400", "1E400"},
      {"-0", "-0"},
      {"-9223372036854775808", "-9223372036854775808"},
      {"12345678901234567890123", "12345678901234567890123"},
      {" null ", "null"},
      {R"("\u0E01\ud83d\ude00\/\u0022[,\u0000")", R"("ก😀/\"[,\u0000")"},
      {R"({"b":[ ], "a":[[],{},"{",1.0,true], "id":{"id":2}})",
       R"({"b":[],"a":[[],{},"{",1.0,true],"id":{"id":2}})"},
  };
  for (const auto& [id, expected] : rows) {
    for (const std::string& line :
         {R"({"i\u0064":)" + id + R"(,"x":{"id":7}})", R"({"x":[{"id":7}],"id":)" + id + "}"}) {
      std::string echoed;
      ReadJson(line, &echoed);
      EXPECT_EQ(echoed, expected) << line;
    }
  }
  std::string none;
  ReadJson(R"([{"id":1}])", &none);
  EXPECT_EQ(none, "");
}

TEST(Tool, ReadsLinesOfAnyLength) {
  const std::string longest(LineReader::kMaxLine, 'x');
  std::stringbuf source(longest + "\n" + longest + "x\nshort\n" + longest + "xx");
  LineReader reader(source, [] {});
  std::string found;
  std::string_view line;
  for (auto kind = reader.Next(line); kind != LineReader::Found::kEnd; kind = reader.Next(line)) {
    found +=
        kind == LineReader::Found::kTooLong ? "too long, " : std::to_string(line.size()) + ", ";
  }
  EXPECT_EQ(found, "16777216, too long, 5, too long, ");
}

}  // namespace
}  // namespace ZQ7Tool
