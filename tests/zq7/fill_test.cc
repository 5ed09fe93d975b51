// Columns added to CSV files: rows and cells, expressions, and whole runs with the test's own
// streams.

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "command_line.h"
#include "fill/csv_cells.h"
#include "fill/csv_scanner.h"
#include "fill/progress.h"

namespace ZQ7Tool {
namespace {

struct ScanRow {
  std::string bytes;
  std::vector<std::string> rows;  ///< cells between "/", or a mistake in brackets
  char delimiter = ',';
};

std::string Shown(const CsvScanner& scanner, CsvMistake mistake) {
  if (mistake == CsvMistake::kTextAfterQuote) return "[text]";
  if (mistake == CsvMistake::kOpenQuote) return "[open]";
  if (mistake == CsvMistake::kTooLong) return "[long]";
  std::string shown;
  std::string buffer;
  for (const auto cell : scanner.Cells()) {
    shown.append(cell.data() == scanner.Cells().front().data() ? "" : "/");
    shown.append(CellContent(cell, buffer));
  }
  return shown;
}

TEST(CsvScanner, Rows) {
  const std::string long_cell(kMaxRow, 'x');
  const ScanRow rows[] = {
      {"a,b\nc,\n", {"a/b", "c/"}},
      {"a, b \r\n\r\nlast", {"a/ b ", "", "last"}},
      {"\"a,b\",\"c\"\"d\",\"\"\n", {"a,b/c\"d/"}},
      {"\"a\r\nb\",c\r\nd\n", {"a\r\nb/c", "d"}},
      {"5\" pipe,a\"b\"\n", {"5\" pipe/a\"b\""}},
      {"a;\"b;c\"\n", {"a/b;c"}, ';'},
      {"a\rb,\r\n", {"a\rb/"}},
      // A wrong row is its first line, whatever follows.
      {"1,\"x\"y\n2,z\n", {"[text]", "2/z"}},
      {"1,\"x\n2,\"y\",z\n", {"[open]", "2/y/z"}},
      {"1,\"x\n2,y", {"[open]", "2/y"}},
      {"\"x\" ,1\n", {"[text]"}},
      {long_cell + "\nb\n", {"[long]", "b"}},
      {"a\n\"" + long_cell.substr(2) + "\n\"\nb\n", {"a", "[open]", "[open]", "b"}},
      {long_cell.substr(1) + "\nb\n", {long_cell.substr(1), "b"}},
  };
  for (const auto& [bytes, expected, delimiter] : rows) {
    CsvScanner scanner(delimiter);
    std::vector<std::string> found;
    for (std::size_t at = 0; at < bytes.size();) {
      const auto row = scanner.Next(std::string_view(bytes).substr(at), true);
      ASSERT_TRUE(row) << bytes.substr(0, 40);
      found.push_back(Shown(scanner, row->mistake));
      at += row->size;
    }
    EXPECT_EQ(found, expected) << bytes.substr(0, 40);
  }
}

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

Outcome Fill(const std::string& input, const std::vector<std::string>& options) {
  std::vector<std::string> words = {"fill", "--example"};
  words.insert(words.end(), options.begin(), options.end());
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  const int status = Run(words, {in, out, err});
  return {status, out.str(), err.str()};
}

struct MistakeRow {
  std::string expression;
  std::string message;  ///< part of it
  std::size_t place;    ///< of the caret
};

TEST(Fill, RefusesExpressions) {
  const std::string call = "w=StandardObject.ReverseString(";
  const std::string baht = "w=BahtStringObject.BahtString(";
  const std::string nested = "w=StandardObject.ReverseString(StandardObject.NewFilename(";
  const MistakeRow rows[] = {
      {"words", "Expected \"=\" after the name of the new column at the end.", 5},
      {"=BahtStringObject.BahtString(amount)", "Expected the name of the new column", 0},
      {"[]=BahtStringObject.BahtString(amount)", "A new column needs a name.", 0},
      {"amount=BahtStringObject.BahtString(amount)", "already a column \"amount\"", 0},
      {"w=amount", "Expected CLASS.OPERATION(...).", 2},
      {"w=BahtString(amount)", "Did you mean BahtStringObject.BahtString?", 2},
      {"w=BahtStringObject.BahtStrng(amount)", "Did you mean BahtString?", 2},
      {"w=GridValueObject.Rows()", "is not an operation", 2},
      {baht + "amont)", "There is no column \"amont\". Did you mean amount?", 30},
      {baht + "ราคา)", "There is no column \"ราคา\"", 30},
      {baht + "[ราคา x], 1, 2, 3, 4, 5)", "There is no column \"ราคา x\"", 30},
      {baht + ")", "also needs inDouble", 2},
      {baht + "amount,True,True,'','',1)", "takes at most 5 arguments", 53},
      {baht + "amount, inDouble=1)", "inDouble is given twice", 38},
      {baht + "useEnglish=True, amount)", "by position go before", 47},
      {baht + "amount, useEnglsh=True)", "Did you mean useEnglish?", 38},
      {baht + "'12')", "takes a value of type Double, not a text in quotes", 30},
      {baht + "twice)", "several columns \"twice\"", 30},
      {baht + "amount", "Expected \",\" or \")\" at the end.", 36},
      {baht + "amount,)", "Expected a value instead of \")\"", 37},
      {baht + "amount) x", "Expected nothing more instead of \"x\"", 38},
      {baht + "12x)", "is not a number and not a date", 30},
      {baht + "-inf)", "is not a number and not a date", 30},
      {baht + "1e999)", "too large", 30},
      {call + "'it''s)", "There is no closing '.", 31},
      {call + "[a)", "There is no closing ].", 31},
      {call + "'a'='b')", "Only the name of a parameter", 34},
      {"w=StandardObject.AddMonth(d, 40000)", "Integer, which 40000 does not fit", 29},
      {"w=StandardObject.FormatTDate2(d, ZQ7DMMBBB)", "no such member of CTDateType", 33},
      {"w=ASCIIObject.GetValue('a', 'b')", "it reaches outside the program", 2},
      {"w=StandardObject.Random(1, 2)", "it draws random numbers", 2},
      {"w=GridValueObject.Clear()", "it has no result", 2},
  };
  for (const auto& [expression, message, place] : rows) {
    const Outcome outcome = Fill("amount,d,twice,twice\nx\n", {"--with", expression});
    EXPECT_EQ(outcome.status, kWrongUse) << expression;
    EXPECT_TRUE(outcome.out.empty()) << expression;
    EXPECT_NE(outcome.err.find(message), std::string::npos) << outcome.err;
    const std::string caret = "\n  " + std::string(place, ' ') + "^\n";
    EXPECT_TRUE(outcome.err.ends_with(caret)) << outcome.err;
  }
}

struct FillRow {
  std::string input;
  std::vector<std::string> options;
  std::string out;  ///< all of it
  int status = kDone;
  std::string err = {};  ///< part of it
};

TEST(Fill, RowsAndSettings) {
  const std::string with = "--with";
  const std::string twice = "n=StandardObject.d2h(a)";  // hours of days: times 24
  const std::string reversed = "r=StandardObject.ReverseString(a)";
  const std::string month = "m=StandardObject.AddMonth(a, 1)";
  const FillRow rows[] = {
      {"a,b\n1,x\n", {with, twice}, "a,b,n\n1,x,24\n"},
      {"\xEF\xBB\xBF\"a\";b\r\n\"1,000.5\"; x \r\n \r\n2;y",
       {with, twice},
       "\xEF\xBB\xBF\"a\";b;n\r\n\"1,000.5\"; x ;24012\r\n \r\n2;y;48"},
      {"a\tb\n\t\n1\t2\n", {with, reversed}, "a\tb\tr\n\t\t\n1\t2\t1\n"},
      {"a\n\"x,\"\"y\"\n", {with, reversed}, "a,r\n\"x,\"\"y\",\"y\"\",x\"\n"},
      {"a|b\n1|2\n", {with, twice, "--delimiter", "|"}, "a|b|n\n1|2|24\n"},
      // A column of an earlier expression, names in brackets, and no state between rows.
      {"a b,[c]\nxy,z\n",
       {with, "n 1=StandardObject.ReverseString([a b])"},
       "",
       kWrongUse,
       "Expected \"=\""},
      {"a b,[c]\nxy,z\nx,\n",
       {with, "[n 1]=StandardObject.ReverseString([a b])", with,
        "o=StandardObject.AddList(`n 1`, [[c]]])"},
       "a b,[c],n 1,o\nxy,z,yx,yx;z\nx,,x,x;\n"},
      // Rows that fail keep their place.
      {"a,b\nx,1\n2\n3,4,5\n\"6\"7,8\n9,9\n",
       {with, twice},
       "a,b,n\nx,1,\n2,\n3,4,5,\n\"6\"7,8,\n9,9,216\n",
       kFailed,
       "4 of 5 rows failed:\n  line 2: n: StandardObject.d2h: type mismatch (error 13): iDay: "
       "\"x\"\n  line 3: 1 cell instead of the 2 of the header\n  line 4: 3 cells"},
      {"a,b\n1,\"\n\n\"\nx,\ny,\nx,\n",
       {with, twice, "--stop"},
       "a,b,n\n1,\"\n\n\",24\n",
       kFailed,
       "stopped at a row that fails:\n  line 5: n:"},
      // Dates by the year's place, and by what the user says.
      {"a\n31/1/2567\n2024-01-31\n",
       {with, month},
       "a,m\n31/1/2567,2024-02-29\n2024-01-31,\n",
       kFailed,
       "--dates iso"},
      {"a\n31/1/2567\n2024-01-31\n",
       {with, month, "--dates", "iso"},
       "a,m\n31/1/2567,\n2024-01-31,2024-02-29\n",
       kFailed,
       "is not a date such as"},
      {"a\n1/31/2024\n",
       {with, month, "--dates", "typed", "--convention", "mdy"},
       "a,m\n1/31/2024,2024-02-29\n"},
      {"a\n1\n",
       {with, "d=StandardObject.FormatTDate2(2024-01-31, ZQ7DMMMBBBB)", with,
        "m=StandardObject.AddMonth(2024-01-31, NumberOfMonth=-1)"},
       "a,d,m\n1,31 มกราคม 2567,2023-12-31\n"},
      // Encodings.
      {"a\n\xA1\xA2\n\xE2\n",
       {with, reversed, "--encoding", "windows-874"},
       "a,r\n\xA1\xA2,\xA2\xA1\n\xE2,\xE2\n"},
      {"a\n\xA1\n", {with, reversed}, "a,r\n\xA1,\n", kFailed, "is not UTF-8"},
      {"a\n1\n",
       {with, "e=StandardObject.ReverseString('\xC3\xA9')", "--encoding", "windows-874"},
       "a,e\n1,\n",
       kFailed,
       "\"é\" has a character that the encoding lacks"},
      {"a\nก\n", {with, reversed, "--guard"}, "a,r\nก,ก\n"},
      {"a\n1=\n2\n", {with, reversed, "--guard"}, "a,r\n1=,'=1\n2,2\n"},
      // What is wrong with the file or the options.
      {"", {with, twice}, "", kWrongUse, "The file has no header."},
      {"\n", {with, twice}, "", kWrongUse, "The file has no header."},
      {"\"a\n", {with, twice}, "", kWrongUse, "The header is wrong: a quote"},
      {"\xA1\n", {with, twice}, "", kWrongUse, "--encoding windows-874"},
      {"a\n", {}, "", kWrongUse, "--with is required"},
      {"a\n", {with, twice, "--dates", "ymd"}, "", kWrongUse, "is not one of iso and typed"},
      {"a\n", {with, twice, "--delimiter", "\""}, "", kWrongUse, "is not a character"},
      {"a\n", {with, twice, "--encoding", "utf-16"}, "", kWrongUse, "utf-8 and windows-874"},
      {"a\n", {with, twice, "--jobs", "0"}, "", kWrongUse, "--jobs"},
      {"a,date\nx\n",
       {with, "w=BahtStringObject.BahtString(a, useEnglish=True)", with,
        "d=StandardObject.FormatTDate2(StandardObject.CTDATE(date), ZQ7DMMMBBBB)", "--explain"},
       "w = BahtStringObject.BahtString, Text\n"
       "  inDouble <- column 1, \"a\", read as Double\n"
       "  useBreak <- False, the default\n"
       "  useEnglish <- True\n"
       "  NewUnit <- \"\", the default\n"
       "  NewSubUnit <- \"\", the default\n"
       "d = StandardObject.FormatTDate2, Text\n"
       "  InDate <- StandardObject.CTDATE, Date\n"
       "    iText <- column 2, \"date\", as it is\n"
       "    NoUsedBackwardSupportOnly <- False, the default\n"
       "  DateType <- ZQ7DMMMBBBB\n"
       "  ZeroLeader <- False, the default\n"
       "Dates in cells: typed as dmy-buddhist; with the year first the row fails. Dates are "
       "written as 2024-01-31.\n"},
  };
  for (const auto& [input, options, out, status, err] : rows) {
    const Outcome outcome = Fill(input, options);
    EXPECT_EQ(outcome.status, status) << input << outcome.err;
    EXPECT_EQ(outcome.out, out);
    EXPECT_NE(outcome.err.find(err), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.err.empty(), err.empty()) << outcome.err;
  }
}

/// What the chunks of a file would be taken apart to: rows of all kinds, over many chunks.
TEST(Fill, IsTheSameWithAnyNumberOfThreads) {
  std::string input = "a,b\n";
  std::string expected = "a,b,n\n";
  const auto add = [&](const std::string& row, const std::string& cell, const std::string& end) {
    input += row + end;
    expected += row + cell + end;
  };
  for (int i = 0; i < 20000; ++i) {
    const std::string number = std::to_string(i);
    add(number + ",plain", "," + std::to_string(i * 24), "\n");
    add("\"" + number + "\",\"two\nlines, \"\"\"", "," + std::to_string(i * 24), "\r\n");
    if (i % 1000 == 0) add(number + ",\"open", ",", "\n");
    if (i % 1000 == 1) add("", "", "\n");
    if (i == 15000) add(std::string(3 << 20, 'x') + "\"", ",", "\r\n");
    if (i == 15001) add("1," + std::string(kMaxRow + 7, 'y'), ",", "\n");
  }
  for (const char* const jobs : {"1", "2", "7"}) {
    const Outcome outcome = Fill(input, {"--with", "n=StandardObject.d2h(a)", "--jobs", jobs});
    EXPECT_TRUE(outcome.out == expected) << jobs;
    EXPECT_NE(outcome.err.find("22 of 40022 rows failed"), std::string::npos) << outcome.err;
    EXPECT_NE(outcome.err.find("line 45036 and 1 more: a row of more than 1 MiB"),
              std::string::npos)
        << outcome.err;
  }
}

TEST(Fill, ShowsProgress) {
  EXPECT_EQ(ProgressLine({1234567, 50, 2}, 100),
            "[##########----------] 50 %  1,234,567 rows  617,283 rows/s  0:02 left");
  EXPECT_EQ(ProgressLine({100, 1, 1}, 1000),
            "[--------------------] 0 %  100 rows  100 rows/s  "
            "16:39 left");
  EXPECT_EQ(ProgressLine({1000, 50, 1}, std::nullopt), "1,000 rows  1,000 rows/s");
}

}  // namespace
}  // namespace ZQ7Tool
