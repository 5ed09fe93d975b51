#include "invoice.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace InvoiceDemo {
namespace {

constexpr std::array<std::string_view, 15> kColumns = {
    "number",        "customer code", "customer",         "date",          "condition type",
    "delivery days", "net days",      "discount percent", "discount days", "barcode",
    "amount",        "item",          "quantity",         "price",         "cost"};

constexpr std::size_t IndexOf(std::string_view column) {
  return static_cast<std::size_t>(std::ranges::find(kColumns, column) - kColumns.begin());
}

constexpr double kLargestAmount = 9999999999999.99;  // the largest that has words

/// What is wrong with a row: `date: "5/13/2567" is no date`.
struct Mistake : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// The fields of one row and the checks that they must pass.
///
/// The library's readers take what they can from a text, as screens want it while a user
/// types: "12x" is 12, "abc" is 0. An invoice must not be guessed, so here a field is
/// looked at first and must be a date or a number as a whole.
class RowReader {
 public:
  RowReader(const StandardObject& standard, const CsvRow& row,
            const std::optional<Text>& default_net_days)
      : standard_(standard), fields_(row.fields), may_lack_number_(default_net_days.has_value()) {
    const std::size_t count = fields_.size();
    if (!row.mistake.empty()) throw Mistake("row: " + row.mistake);
    if (count != IndexOf("item") && count != IndexOf("cost") && count != kColumns.size()) {
      throw Mistake("row: has " + std::to_string(count) + " fields instead of 11, 14 or 15");
    }
    fields_.resize(kColumns.size());
    Text& net_days = fields_[IndexOf("net days")];
    if (net_days.empty()) net_days = default_net_days.value_or(u"");
  }

  Invoice ReadInvoice() const {
    const bool lacks_number = may_lack_number_ && Field("number").empty();
    return {.number = lacks_number ? Text() : ReadText("number"),
            .customer_code = ReadCode("customer code"),
            .customer = ReadText("customer"),
            .date = ReadDate("date"),
            .condition_type =
                static_cast<ZQ7ConditionType>(ReadWhole("condition type", ZQ7AfterEndOfSPTMonth)),
            .delivery_days = ReadWhole("delivery days"),
            .net_days = ReadWhole("net days"),
            .discount_percent = ReadNumber("discount percent", 100),
            .discount_days = ReadWhole("discount days")};
  }

  /// The words and the figures are both made from the one rounded amount.
  InvoiceLine ReadLine() const {
    InvoiceLine line;
    line.barcode = ReadBarcode("barcode");
    line.amount = standard_.FixNumber(ReadNumber("amount"), 2);
    line.price = line.amount;
    if (!Field("cost").empty()) line.cost = ReadNumber("cost");
    if ((Field("item") + Field("quantity") + Field("price")).empty()) return line;
    line.item = ReadText("item");
    line.quantity = ReadNumber("quantity");
    line.price = ReadNumber("price");
    if (standard_.FixNumber(line.quantity * line.price, 2) != line.amount) {
      Fail("amount", "is not " + Utf8(Field("quantity")) + " times " + Utf8(Field("price")));
    }
    return line;
  }

 private:
  const Text& Field(std::string_view column) const { return fields_[IndexOf(column)]; }

  [[noreturn]] void Fail(std::string_view column, const std::string& reason) const {
    throw Mistake(std::string(column) + ": \"" + Utf8(OneLine(Field(column))) + "\" " + reason);
  }

  const Text& ReadText(std::string_view column) const {
    const Text& text = Field(column);
    if (text.empty()) Fail(column, "is empty");
    if (text.find(u'\uFFFD') != Text::npos) Fail(column, "is not in UTF-8");
    return text;
  }

  Text ReadCode(std::string_view column) const {
    Text code = standard_.FormatPrimaryKey(ReadText(column), 0, 0, 0, 0, 1);  // upper case
    if (code.empty()) Fail(column, "holds no code");
    return code;
  }

  /// The digits come first: the check digit takes a letter, which cleaning keeps, for a 0.
  Text ReadBarcode(std::string_view column) const {
    Text code = standard_.FormatBarCode(ReadText(column));
    if (code.size() != 13 || standard_.Numb(code) != code) Fail(column, "is no EAN-13 (13 digits)");
    if (code.back() - u'0' != standard_.GetEAN13ChekDigit(code)) {
      Fail(column, "has a wrong check digit");
    }
    return code;
  }

  /// Whether each field between "/" is digits alone, with blanks around them at most: the
  /// date reader itself passes over what follows a number.
  bool HasDateDigits(TextView text) const {
    while (!text.empty()) {
      const TextView field = text.substr(0, text.find(u'/'));
      text.remove_prefix(std::min(field.size() + 1, text.size()));
      if (field.find(standard_.Numb(field)) == TextView::npos) return false;
      if (field.find_first_not_of(u" 0123456789") != TextView::npos) return false;
    }
    return true;
  }

  OleDate ReadDate(std::string_view column) const {
    const Text& text = Field(column);
    if (!HasDateDigits(text) || !standard_.IsTDate(text)) {
      const Text layout = standard_.GetDateFormatString(standard_.GetDateFormat());
      const std::string era = standard_.GetEraDif() == 0 ? "Gregorian" : "Buddhist";
      Fail(column, "is no date (" + Utf8(layout) + ", " + era + " year of four digits)");
    }
    const OleDate date = standard_.CTDATE(text);
    // The dates that stand for no date, and those too far ahead, print otherwise.
    const int typed_year = date.Year() + standard_.GetEraDif();
    if (standard_.isBlankDate(date) || standard_.Year2000(date) != typed_year) {
      Fail(column, "is not the date of an invoice");
    }
    return date;
  }

  double ReadNumber(std::string_view column, double largest = kLargestAmount) const {
    const std::string out_of_range = "is not from 0 to " + Utf8(standard_.d2Str(largest));
    const Text& text = Field(column);
    Text plain = text;
    std::erase(plain, u',');
    try {
      Currency::FromText(plain);
    } catch (const RunTimeError& error) {
      const bool is_too_large = error.Number() == static_cast<int>(Error::kOverflow);
      Fail(column, is_too_large ? out_of_range : "is no number");
    }
    if (plain != text && GroupThousands(plain) != text) Fail(column, "has a comma out of place");
    const double value = standard_.StrVal(plain);
    if (value < 0 || value > largest) Fail(column, out_of_range);
    return value;
  }

  std::int16_t ReadWhole(std::string_view column, std::int16_t largest = INT16_MAX) const {
    const double value = ReadNumber(column, largest);
    if (Field(column).find(u'.') != Text::npos) Fail(column, "is no whole number");
    return static_cast<std::int16_t>(value);
  }

  const StandardObject& standard_;
  std::vector<Text> fields_;
  bool may_lack_number_;
};

void AddLine(const StandardObject& standard, const RowReader& row, Invoice& invoice) {
  if (invoice.lines.size() == kMostLines) {
    throw Mistake("row: is one line more than an invoice has room for, " +
                  std::to_string(kMostLines));
  }
  invoice.lines.push_back(row.ReadLine());
  invoice.amount = standard.FixNumber(invoice.amount + invoice.lines.back().amount, 2);
  if (invoice.amount > kLargestAmount) {
    throw Mistake("amount: all lines come to more than " + Utf8(standard.d2Str(kLargestAmount)));
  }
}

/// A discount goes to nobody who has to pay at once or has no days to earn it in. A term
/// from the end of a month is due some 150 years ahead: stored documents hold such dates,
/// and the library keeps them.
void SetPayment(const StandardObject& standard, Invoice& invoice) {
  if (invoice.net_days != 0 && invoice.discount_days != 0) {
    invoice.discount = standard.FixNumber(invoice.amount * invoice.discount_percent / 100, 2);
  }
  invoice.due = standard.GetConditionDueDate(invoice.date, invoice.condition_type, invoice.net_days,
                                             invoice.delivery_days);
}

void AddInvoice(const StandardObject& standard, std::span<const CsvRow> rows,
                const std::optional<Text>& default_net_days, InvoiceList& list) {
  const std::vector<Text>& first = rows.front().fields;
  if (!first.empty() && !first.front().empty()) list.typed_numbers.insert(first.front());
  int line = 0;
  try {
    std::optional<Invoice> invoice;
    for (const CsvRow& row : rows) {
      line = row.line;
      const RowReader reader(standard, row, default_net_days);
      if (!invoice) invoice = reader.ReadInvoice();
      AddLine(standard, reader, *invoice);
    }
    SetPayment(standard, *invoice);
    list.invoices.push_back(*std::move(invoice));
  } catch (const Mistake& mistake) {
    list.mistakes.push_back("line " + std::to_string(line) + ", " + mistake.what());
  }
}

bool IsFurtherLine(const CsvRow& row) {
  constexpr std::size_t kBarcode = IndexOf("barcode");
  return row.fields.size() >= kBarcode &&
         std::ranges::all_of(std::span(row.fields).first(kBarcode), &Text::empty);
}

bool IsControl(char16_t c) {
  return c < 0x20 || (c >= 0x7F && c <= 0x9F) || c == 0x2028 || c == 0x2029;
}

}  // namespace

InvoiceList ReadInvoices(const StandardObject& standard, std::span<const CsvRow> rows,
                         const std::optional<Text>& default_net_days) {
  InvoiceList list;
  constexpr std::size_t kDate = IndexOf("date");
  const bool has_header = !rows.empty() && rows.front().mistake.empty() &&
                          rows.front().fields.size() > kDate &&
                          standard.Numb(rows.front().fields[kDate]).empty();
  if (has_header) rows = rows.subspan(1);
  while (!rows.empty()) {
    const auto next = std::find_if_not(rows.begin() + 1, rows.end(), IsFurtherLine);
    const auto own = rows.first(static_cast<std::size_t>(next - rows.begin()));
    AddInvoice(standard, own, default_net_days, list);
    rows = rows.subspan(own.size());
  }
  return list;
}

Text TermOf(const StandardObject& standard, const Invoice& invoice, ZQ7ConditionOutputType type) {
  return standard.FormatCondition2(static_cast<float>(invoice.discount_percent),
                                   invoice.discount_days, invoice.condition_type, type,
                                   invoice.net_days);
}

Text GroupThousands(Text number) {
  const std::size_t first_digit = number.starts_with(u'-') || number.starts_with(u'+') ? 1 : 0;
  std::size_t position = std::min(number.find(u'.'), number.size());
  for (; position > first_digit + 3; number.insert(position, 1, u',')) position -= 3;
  return number;
}

// Counted in satang: `d2Str` writes 15 digits, and a total may have more.
Text FormatAmount(double amount) {
  Text digits = FromUtf8(std::to_string(std::llround(amount * 100)));
  if (digits.size() < 3) digits.insert(0, 3 - digits.size(), u'0');
  return GroupThousands(digits.insert(digits.size() - 2, 1, u'.'));
}

Text OneLine(TextView text) {
  Text line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!IsControl(text[i])) {
      line += text[i];
    } else if (i == 0 || !IsControl(text[i - 1])) {
      line += u' ';
    }
  }
  return line;
}

}  // namespace InvoiceDemo
