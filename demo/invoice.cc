#include "invoice.h"

#include <ZQ7Standard/RunTimeError.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <span>

#include "amount_text.h"
#include "terminal_text.h"

namespace InvoiceDemo {
namespace {

using ZQ7Standard::Currency;
using ZQ7Standard::OleDate;
using ZQ7Standard::RunTimeError;
using ZQ7Standard::StandardObject;
using ZQ7Standard::Text;
using ZQ7Standard::TextView;
using ZQ7Standard::Utf8;
using ZQ7Standard::ZQ7ConditionType;

enum Column : std::size_t {
  kNumber,
  kCustomerCode,
  kCustomer,
  kDate,
  kConditionType,
  kDeliveryDays,
  kNetDays,
  kDiscountPercent,
  kDiscountDays,
  kBarcode,
  kAmount,
  kItem,
  kQuantity,
  kPrice,
  kCost,
  kColumnCount,
};

constexpr std::size_t kColumnsWithoutItem = kItem;
constexpr std::size_t kColumnsWithoutCost = kCost;

constexpr std::array<const char*, kColumnCount> kColumnNames = {
    "number",        "customer code", "customer",         "date",          "condition type",
    "delivery days", "net days",      "discount percent", "discount days", "barcode",
    "amount",        "item",          "quantity",         "price",         "cost"};

constexpr double kLastConditionType = ZQ7Standard::ZQ7AfterEndOfSPTMonth;
constexpr double kMostDays = std::numeric_limits<std::int16_t>::max();
constexpr double kFullPercent = 100;
constexpr double kLargestAmount = 9999999999999.99;  // the largest that has words

constexpr std::size_t kBarcodeDigits = 13;
constexpr std::int16_t kOn = 1;  // what switches an option of FormatPrimaryKey on

constexpr int kOverflow = 6;  // the run-time error of a number too large for its type

enum class Digits { kWhole, kDecimal };

/// The fields of one row and the checks that they must pass.
class RowReader {
 public:
  RowReader(const StandardObject& standard, const std::vector<Text>& fields)
      : standard_(standard), fields_(fields) {}

  void CheckColumnCount() const;
  Text ReadText(Column column) const;
  Text ReadCode(Column column) const;
  Text ReadBarcode(Column column) const;
  OleDate ReadDate(Column column) const;
  double ReadNumber(Column column, Digits digits, double largest) const;
  std::int16_t ReadDays(Column column) const;
  InvoiceLine ReadLine() const;

 private:
  [[noreturn]] void Fail(Column column, const std::string& reason) const;
  bool HasDateDigits(TextView text) const;

  const StandardObject& standard_;
  const std::vector<Text>& fields_;
};

void RowReader::Fail(Column column, const std::string& reason) const {
  throw FieldError(kColumnNames[column], '"' + Utf8(OneLine(fields_[column])) + "\" " + reason);
}

Text RowReader::ReadText(Column column) const {
  const Text& text = fields_[column];
  if (text.empty()) Fail(column, "is empty");
  if (text.find(u'\uFFFD') != Text::npos) Fail(column, "is not in UTF-8");
  return text;
}

Text RowReader::ReadCode(Column column) const {
  Text code = standard_.FormatPrimaryKey(ReadText(column), 0, 0, 0, 0, kOn);
  if (code.empty()) Fail(column, "holds no code");
  return code;
}

/// The digits come first: the check digit takes a letter, which cleaning keeps,
/// for a 0.
Text RowReader::ReadBarcode(Column column) const {
  Text code = standard_.FormatBarCode(ReadText(column));
  if (code.size() != kBarcodeDigits || standard_.Numb(code) != code) {
    Fail(column, "is no EAN-13 (13 digits)");
  }
  if (code.back() - u'0' != standard_.GetEAN13ChekDigit(code)) {
    Fail(column, "has a wrong check digit");
  }
  return code;
}

/// Whether each field between "/" is digits alone, with blanks around them at
/// most: the date reader itself passes over what follows a number.
bool RowReader::HasDateDigits(TextView text) const {
  while (!text.empty()) {
    const TextView field = text.substr(0, text.find(u'/'));
    text.remove_prefix(std::min(field.size() + 1, text.size()));
    if (field.find(standard_.Numb(field)) == TextView::npos) return false;
    if (field.find_first_not_of(u" 0123456789") != TextView::npos) return false;
  }
  return true;
}

OleDate RowReader::ReadDate(Column column) const {
  const Text& text = fields_[column];
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

double RowReader::ReadNumber(Column column, Digits digits, double largest) const {
  const std::string out_of_range = "is not from 0 to " + Utf8(standard_.d2Str(largest));
  const Text& text = fields_[column];
  Text plain = text;
  std::erase(plain, u',');
  try {
    Currency::FromText(plain);
  } catch (const RunTimeError& error) {
    Fail(column, error.Number() == kOverflow ? out_of_range : "is no number");
  }
  if (plain != text && GroupThousands(plain) != text) Fail(column, "has a comma out of place");
  if (digits == Digits::kWhole && plain.find(u'.') != Text::npos) {
    Fail(column, "is no whole number");
  }
  const double value = standard_.StrVal(plain);
  if (value < 0 || value > largest) Fail(column, out_of_range);
  return value;
}

std::int16_t RowReader::ReadDays(Column column) const {
  return static_cast<std::int16_t>(ReadNumber(column, Digits::kWhole, kMostDays));
}

void RowReader::CheckColumnCount() const {
  const std::size_t count = fields_.size();
  if (count == kColumnCount || count == kColumnsWithoutCost || count == kColumnsWithoutItem) return;
  throw FieldError("row", "has " + std::to_string(count) + " fields instead of " +
                              std::to_string(kColumnsWithoutItem) + ", " +
                              std::to_string(kColumnsWithoutCost) + " or " +
                              std::to_string(kColumnCount));
}

/// The words and the figures are both made from the one rounded amount.
InvoiceLine RowReader::ReadLine() const {
  InvoiceLine line;
  line.barcode = ReadBarcode(kBarcode);
  line.amount = standard_.FixNumber(ReadNumber(kAmount, Digits::kDecimal, kLargestAmount), 2);
  line.price = line.amount;
  if (fields_.size() > kCost && !fields_[kCost].empty()) {
    line.cost = ReadNumber(kCost, Digits::kDecimal, kLargestAmount);
  }
  const bool has_item =
      fields_.size() > kPrice && !(fields_[kItem] + fields_[kQuantity] + fields_[kPrice]).empty();
  if (!has_item) return line;
  line.item = ReadText(kItem);
  line.quantity = ReadNumber(kQuantity, Digits::kDecimal, kLargestAmount);
  line.price = ReadNumber(kPrice, Digits::kDecimal, kLargestAmount);
  if (standard_.FixNumber(line.quantity * line.price, 2) != line.amount) {
    Fail(kAmount, "is not " + Utf8(fields_[kQuantity]) + " times " + Utf8(fields_[kPrice]));
  }
  return line;
}

}  // namespace

bool IsHeader(const StandardObject& standard, const std::vector<Text>& fields) {
  return fields.size() > kDate && standard.Numb(fields[kDate]).empty();
}

bool IsFurtherLine(const std::vector<Text>& fields) {
  return fields.size() >= kBarcode &&
         std::ranges::all_of(std::span(fields).first(kBarcode), &Text::empty);
}

Invoice ReadInvoice(const StandardObject& standard, const std::vector<Text>& typed_fields,
                    const InvoiceDefaults& defaults) {
  std::vector<Text> fields = typed_fields;
  const RowReader row(standard, fields);
  row.CheckColumnCount();
  if (fields[kNetDays].empty()) fields[kNetDays] = defaults.net_days;
  const bool lacks_number = defaults.may_lack_number && fields[kNumber].empty();
  Invoice invoice = {
      .number = lacks_number ? Text() : row.ReadText(kNumber),
      .customer_code = row.ReadCode(kCustomerCode),
      .customer = row.ReadText(kCustomer),
      .date = row.ReadDate(kDate),
      .condition_type = static_cast<ZQ7ConditionType>(
          row.ReadNumber(kConditionType, Digits::kWhole, kLastConditionType)),
      .delivery_days = row.ReadDays(kDeliveryDays),
      .net_days = row.ReadDays(kNetDays),
      .discount_percent = row.ReadNumber(kDiscountPercent, Digits::kDecimal, kFullPercent),
      .discount_days = row.ReadDays(kDiscountDays),
      .lines = {row.ReadLine()},
      .amount = 0,
  };
  invoice.amount = invoice.lines.front().amount;
  return invoice;
}

void ReadFurtherLine(const StandardObject& standard, const std::vector<Text>& fields,
                     Invoice& invoice) {
  const RowReader row(standard, fields);
  row.CheckColumnCount();
  if (invoice.lines.size() == kMostLines) {
    throw FieldError(
        "row", "is one line more than an invoice has room for, " + std::to_string(kMostLines));
  }
  invoice.lines.push_back(row.ReadLine());
  invoice.amount = standard.FixNumber(invoice.amount + invoice.lines.back().amount, 2);
  if (invoice.amount > kLargestAmount) {
    throw FieldError("amount",
                     "all lines come to more than " + Utf8(standard.d2Str(kLargestAmount)));
  }
}

}  // namespace InvoiceDemo
