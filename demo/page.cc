#include "page.h"

#include <ZQ7Standard/BahtStringObject.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/print_picture.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "amount_text.h"
#include "terminal_text.h"
#include "totals.h"

namespace InvoiceDemo {
namespace {

using namespace std::literals;
using ZQ7Standard::BahtStringObject;
using ZQ7Standard::FromUtf8;
using ZQ7Standard::OleDate;
using ZQ7Standard::PrintObject;
using ZQ7Standard::PrintPicture;
using ZQ7Standard::StandardObject;
using ZQ7Standard::Text;
using ZQ7Standard::TextView;

// All places and lengths are millimetres.
constexpr std::int32_t kLeft = 15;
constexpr std::int32_t kRight = 195;
constexpr float kHair = 0.2F;
constexpr float kBold = 0.6F;

constexpr TextView kFamily = u"Laksaman";

enum Alignment : std::int32_t { kStart, kCentre, kEnd };

struct Style {
  double size = 12;  ///< points
  bool bold = false;
};

constexpr Style kSmall = {.size = 10};
constexpr Style kStrong = {.size = 12, .bold = true};

// A PNG of one black dot, and one of a light grey dot.
constexpr auto kBlackDot =
    "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\1\0\0\0\0\x37n\xF9\x24"
    "\0\0\0\nIDAT\x08\xD7\x63\x60\0\0\0\2\0\1\xE2!\xBC\x33\0\0\0\0IEND\xAE\x42\x60\x82"sv;
constexpr auto kGreyDot =
    "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\0\0\0\0:~\x9B\x55"
    "\0\0\0\nIDAT\x08\xD7\x63x\n\0\0\xE7\0\xE6\x86\xCC(l\0\0\0\0IEND\xAE\x42\x60\x82"sv;

/// A dot that a stretch of any size makes a rule, or an area.
class Ink final : public PrintPicture {
 public:
  explicit Ink(std::string_view dot) : dot_(dot) {}

  float Width() override { return kHair; }
  float Height() override { return kHair; }
  std::string_view Picture() override { return dot_; }

 private:
  std::string_view dot_;
};

/// The page, with what a form needs besides lines of text.
class Sheet {
 public:
  explicit Sheet(PrintObject& printer) : printer_(printer) {}

  /// One line of text, cut to `width` unless that is 0. The font counts for the
  /// cut only when it is set before: an empty text does that.
  void Write(TextView text, std::int32_t x, std::int32_t y, Alignment alignment = kStart,
             Style style = {}, double width = 0) {
    if (width > 0) Put({}, x, y, alignment, style, 0);
    Put(OneLine(text), x, y, alignment, style, width);
  }

  void RuleAcross(std::int32_t x, std::int32_t y, std::int32_t length, float thickness = kHair) {
    printer_.PrintGraphicObject(black_, x, y, static_cast<float>(length), thickness);
  }
  void RuleDown(std::int32_t x, std::int32_t y, std::int32_t length) {
    printer_.PrintGraphicObject(black_, x, y, kHair, static_cast<float>(length));
  }
  void Frame(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) {
    RuleAcross(x, y, width);
    RuleAcross(x, y + height, width);
    RuleDown(x, y, height);
    RuleDown(x + width, y, height);
  }
  void Shade(std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) {
    printer_.PrintGraphicObject(grey_, x, y, static_cast<float>(width), static_cast<float>(height));
  }
  void Picture(const std::filesystem::path& file, std::int32_t x, std::int32_t y,
               std::int32_t width, std::int32_t height) {
    printer_.PrintGraphicObject(ZQ7Standard::PictureFromFile(FromUtf8(file.string())), x, y,
                                static_cast<float>(width), static_cast<float>(height));
  }

 private:
  void Put(TextView text, std::int32_t x, std::int32_t y, Alignment alignment, Style style,
           double width) {
    printer_.PrintGraphicText(text, x, y, 1, alignment, width, kFamily, style.size, style.bold);
  }

  PrintObject& printer_;
  std::shared_ptr<PrintPicture> black_ = std::make_shared<Ink>(kBlackDot);
  std::shared_ptr<PrintPicture> grey_ = std::make_shared<Ink>(kGreyDot);
};

// --- The parts of the page, from the top ---

void DrawSender(Sheet& sheet, const Company& sender) {
  constexpr std::int32_t kLogoHeight = 24;
  std::int32_t x = kLeft;
  if (sender.logo) {
    const std::int32_t width = kLogoHeight * sender.logo->width / sender.logo->height;
    sheet.Picture(sender.logo->file, kLeft, 12, width, kLogoHeight);
    x += width + 5;
  }
  sheet.Write(sender.name, x, 11, kStart, {.size = 17, .bold = true}, kRight - 50 - x);
  sheet.Write(sender.english_name, x, 19, kStart, {.size = 12}, kRight - 50 - x);
  sheet.Write(sender.address, x, 25, kStart, kSmall, kRight - x);
  if (!sender.tax_id.empty()) {
    sheet.Write(u"เลขประจำตัวผู้เสียภาษี " + sender.tax_id, x, 31, kStart, kSmall, kRight - x);
  }
  sheet.Write(u"ใบแจ้งหนี้", kRight, 10, kEnd, {.size = 22, .bold = true});
  sheet.Write(u"INVOICE", kRight, 19, kEnd, {.size = 14, .bold = true});
  sheet.RuleAcross(kLeft, 39, kRight - kLeft, kBold);
}

/// A date of day, month and year with one digit in each box, from `x` on.
void DrawDateBoxes(Sheet& sheet, const StandardObject& standard, OleDate date, std::int32_t x,
                   std::int32_t y) {
  constexpr std::int32_t kWidth = 5;
  constexpr std::int32_t kHeight = 7;
  constexpr std::int32_t kGap = 2;  // behind day and month
  int box = 0;
  for (const char16_t digit : standard.FormatTDate2(date, ZQ7Standard::ZQ7D_D_M_M_B_B_B_B)) {
    if (digit == u' ') continue;
    sheet.Frame(x, y, kWidth, kHeight);
    sheet.Write(TextView(&digit, 1), x + 1, y - 1, kStart, {.size = 14});
    x += kWidth + (box == 1 || box == 3 ? kGap : 0);
    ++box;
  }
}

void DrawCustomer(Sheet& sheet, const StandardObject& standard, const Invoice& invoice,
                  OleDate due) {
  constexpr std::int32_t kLabels = 120;
  sheet.Write(u"ลูกค้า / Customer", kLeft, 43, kStart, kSmall);
  sheet.Write(invoice.customer, kLeft, 49, kStart, {.size = 15, .bold = true}, 105);
  sheet.Write(u"รหัสลูกค้า / Code  " + invoice.customer_code, kLeft, 58, kStart, {}, 105);

  sheet.Write(u"เลขที่ / No.", kLabels, 43);
  sheet.Write(invoice.number, kRight, 43, kEnd, kStrong, kRight - kLabels - 20);
  sheet.Write(u"วันที่ / Date", kLabels, 51);
  DrawDateBoxes(sheet, standard, invoice.date, kRight - 44, 51);
  sheet.Write(u"ครบกำหนด / Due", kLabels, 60);
  sheet.Write(standard.FormatThai(due), kRight, 60, kEnd);
}

struct TableColumn {
  TextView thai;
  TextView english;
  std::int32_t x;  ///< where its texts start, are centred or end
  Alignment alignment;
};

constexpr std::array<TableColumn, 6> kTable = {{
    {u"ลำดับ", u"No.", 21, kCentre},
    {u"รหัสสินค้า", u"Barcode", 28, kStart},
    {u"รายการ", u"Description", 56, kStart},
    {u"จำนวน", u"Quantity", 126, kEnd},
    {u"ราคาต่อหน่วย", u"Unit price", 158, kEnd},
    {u"จำนวนเงิน (บาท)", u"Amount", 193, kEnd},
}};

constexpr std::array<std::int32_t, 7> kTableRules = {kLeft, 26, 54, 108, 128, 160, kRight};
constexpr std::int32_t kTableTop = 72;
constexpr std::int32_t kHeadHeight = 14;
constexpr std::int32_t kRowHeight = 8;
constexpr std::int32_t kTableBottom =
    kTableTop + kHeadHeight + static_cast<std::int32_t>(kMostLines) * kRowHeight + 1;
constexpr Style kTableHead = {.size = 11, .bold = true};
constexpr double kItemWidth = 51;
constexpr Style kCostCode = {.size = 9};
constexpr double kCostLetterWidth = 1.8;

/// Numbers are never cut: a long one is written smaller, on the same base line.
void WriteNumber(Sheet& sheet, const TableColumn& column, TextView number, std::int32_t y,
                 bool bold = false) {
  constexpr std::size_t kFitting = 14;
  const bool is_long = number.size() > kFitting;
  sheet.Write(number, column.x, is_long ? y + 1 : y, column.alignment,
              {.size = is_long ? 8.5 : 12.0, .bold = bold});
}

Text Number(const StandardObject& standard, double value) {
  return GroupThousands(standard.d2Str(value));
}

/// With the satang, and with more decimals where the price has them.
Text Price(const StandardObject& standard, double price) {
  return standard.FixNumber(price, 2) == price ? FormatAmount(price) : Number(standard, price);
}

void DrawTableHead(Sheet& sheet) {
  sheet.Shade(kLeft, kTableTop, kRight - kLeft, kHeadHeight);
  for (const TableColumn& column : kTable) {
    sheet.Write(column.thai, column.x, kTableTop, column.alignment, kTableHead);
    sheet.Write(column.english, column.x, kTableTop + 7, column.alignment, kSmall);
  }
  sheet.RuleAcross(kLeft, kTableTop, kRight - kLeft);
  sheet.RuleAcross(kLeft, kTableTop + kHeadHeight, kRight - kLeft);
  sheet.RuleAcross(kLeft, kTableBottom, kRight - kLeft);
  for (const std::int32_t x : kTableRules) sheet.RuleDown(x, kTableTop, kTableBottom - kTableTop);
}

/// What one of a line cost, in the letters that staff can read.
Text CostCode(const StandardObject& standard, const Company& sender, const InvoiceLine& line) {
  if (!line.cost || sender.code_word.empty()) return {};
  return standard.FormatCostCode(*line.cost, sender.code_word);
}

/// The item, and its cost code at the end of the column.
void WriteItem(Sheet& sheet, TextView item, TextView cost_code, std::int32_t y) {
  const double code_width = kCostLetterWidth * static_cast<double>(cost_code.size());
  sheet.Write(item, kTable[2].x, y, kStart, {}, kItemWidth - code_width);
  sheet.Write(cost_code, kTableRules[3] - 1, y + 1, kEnd, kCostCode);
}

void DrawTable(Sheet& sheet, const StandardObject& standard, const Company& sender,
               const Invoice& invoice) {
  DrawTableHead(sheet);
  std::int32_t y = kTableTop + kHeadHeight + 1;
  for (std::size_t i = 0; i < invoice.lines.size(); ++i, y += kRowHeight) {
    const InvoiceLine& line = invoice.lines[i];
    WriteNumber(sheet, kTable[0], FromUtf8(std::to_string(i + 1)), y);
    sheet.Write(line.barcode, kTable[1].x, y + 1, kStart, kSmall);
    WriteItem(sheet, line.item.empty() ? u"สินค้าตามรหัส" : line.item,
              CostCode(standard, sender, line), y);
    WriteNumber(sheet, kTable[3], Number(standard, line.quantity), y);
    WriteNumber(sheet, kTable[4], Price(standard, line.price), y);
    WriteNumber(sheet, kTable[5], FormatAmount(line.amount), y);
  }
}

void DrawTotals(Sheet& sheet, const StandardObject& standard, const Invoice& invoice) {
  std::int32_t y = kTableBottom + 1;
  sheet.Write(u"รวมทั้งสิ้น / Total", kTable[4].x, y, kEnd, kStrong);
  WriteNumber(sheet, kTable[5], FormatAmount(invoice.amount), y, true);
  sheet.RuleAcross(kTableRules[5], y + 8, kRight - kTableRules[5], kBold);
  const double discount = DiscountOf(standard, invoice);
  if (discount == 0) return;
  y += 9;
  const Text days = Number(standard, invoice.discount_days);
  sheet.Write(u"ส่วนลดเมื่อชำระภายใน " + days + u" วัน / Discount if paid within " + days + u" days",
              kTable[4].x, y, kEnd, kSmall);
  sheet.Write(FormatAmount(discount), kTable[5].x, y, kEnd, kSmall);
}

struct Halves {
  Text first;
  Text second;
};

/// A text that is too long for a line in two, at a blank.
Halves InTwo(const Text& text) {
  constexpr std::size_t kFitting = 84;
  const std::size_t blank = text.rfind(u' ', kFitting);
  if (text.size() <= kFitting || blank == Text::npos) return {text, {}};
  return {text.substr(0, blank), text.substr(blank + 1)};
}

void DrawWords(Sheet& sheet, const Invoice& invoice) {
  constexpr std::int32_t kTop = kTableBottom + 19;
  constexpr std::int32_t kMiddle = (kLeft + kRight) / 2;
  constexpr int kFitting = 60;
  constexpr double kSize = 14;
  constexpr Style kEnglish = {.size = 10.5};
  BahtStringObject baht;
  const Text words = baht.BahtString(invoice.amount);
  const Text thai = u"(" + words + u")";
  const Halves english = InTwo(baht.BahtString(invoice.amount, false, true));
  const double shrinkage = std::min(1.0, 1.0 * kFitting / ZQ7Standard::TerminalWidth(thai));
  sheet.Shade(kLeft, kTop, kRight - kLeft, 21);
  sheet.Write(thai, kMiddle, kTop + 1, kCentre, {.size = kSize * shrinkage, .bold = true});
  sheet.Write(english.first, kMiddle, kTop + (english.second.empty() ? 11 : 9), kCentre, kEnglish);
  sheet.Write(english.second, kMiddle, kTop + 14, kCentre, kEnglish);
}

void DrawPayment(Sheet& sheet, const StandardObject& standard, const Company& sender,
                 const Invoice& invoice, OleDate due) {
  const Text term = standard.FormatCondition2(
      static_cast<float>(invoice.discount_percent), invoice.discount_days, invoice.condition_type,
      ZQ7Standard::ZQ7ConditionOutputTypeFull, invoice.net_days);
  constexpr std::int32_t kValues = 86;
  sheet.Write(u"เงื่อนไขการชำระเงิน / Payment term", kLeft, 226);
  sheet.Write(term, kValues, 226);
  if (!sender.name.empty()) {
    sheet.Write(u"เช็คสั่งจ่าย / Cheque payable to", kLeft, 234);
    sheet.Write(sender.name, kValues, 234, kStart, kStrong, kRight - kValues);
  }
  sheet.Write(u"เช็คลงวันที่ / Cheque date", kLeft, 243);
  DrawDateBoxes(sheet, standard, due, kValues, 243);
}

void DrawSignatures(Sheet& sheet) {
  constexpr std::int32_t kLine = 270;
  constexpr std::int32_t kLength = 65;
  sheet.RuleAcross(kLeft, kLine, kLength);
  sheet.Write(u"ผู้รับใบแจ้งหนี้ / Received by", kLeft + kLength / 2, kLine + 1, kCentre, kSmall);
  sheet.RuleAcross(kRight - kLength, kLine, kLength);
  sheet.Write(u"ผู้มีอำนาจลงนาม / Authorised signature", kRight - kLength / 2, kLine + 1, kCentre,
              kSmall);
}

}  // namespace

void DrawPage(PrintObject& printer, const StandardObject& standard, const Company& sender,
              const Invoice& invoice) {
  const OleDate due = standard.GetConditionDueDate(invoice.date, invoice.condition_type,
                                                   invoice.net_days, invoice.delivery_days);
  Sheet sheet(printer);
  DrawSender(sheet, sender);
  DrawCustomer(sheet, standard, invoice, due);
  DrawTable(sheet, standard, sender, invoice);
  DrawTotals(sheet, standard, invoice);
  DrawWords(sheet, invoice);
  DrawPayment(sheet, standard, sender, invoice, due);
  DrawSignatures(sheet);
}

}  // namespace InvoiceDemo
