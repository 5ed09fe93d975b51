#include <ZQ7Standard/BahtStringObject.h>
#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/path_text.h>
#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/printers.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "output.h"

namespace InvoiceDemo {
namespace {

namespace fs = std::filesystem;
using namespace std::literals;

constexpr std::int16_t kA4 = 9;

// All places and lengths are millimetres.
constexpr int kLeft = 15;
constexpr int kRight = 195;
constexpr int kSignatureLength = 65;
constexpr double kHair = 0.2;
constexpr double kBold = 0.6;

enum Alignment : int { kStart, kCentre, kEnd };

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
  float Width() override { return 1; }
  float Height() override { return 1; }
  std::string_view Picture() override { return dot_; }

 private:
  std::string_view dot_;
};

struct TableColumn {
  TextView thai;
  TextView english;
  int x;  ///< where its texts start, are centred or end
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

constexpr std::array kTableRules = {kLeft, 26, 54, 108, 128, 160, kRight};
constexpr int kTableTop = 72;
constexpr int kHeadHeight = 14;
constexpr int kRowHeight = 8;
constexpr int kTableBottom =
    kTableTop + kHeadHeight + static_cast<int>(kMostLines) * kRowHeight + 1;

/// An invoice on its page.
class Page {
 public:
  Page(PrintObject& printer, const StandardObject& standard, const Company& sender,
       const Invoice& invoice)
      : printer_(printer), standard_(standard), sender_(sender), invoice_(invoice) {}

  void Draw() {
    DrawSender();
    DrawCustomer();
    DrawTableHead();
    for (std::size_t i = 0; i < invoice_.lines.size(); ++i) DrawLine(i);
    DrawTotals();
    DrawWords();
    DrawPayment();
    DrawSignature(kLeft, u"ผู้รับใบแจ้งหนี้ / Received by");
    DrawSignature(kRight - kSignatureLength, u"ผู้มีอำนาจลงนาม / Authorised signature");
  }

 private:
  /// One line of text, cut to `width` unless that is 0. The font counts for the
  /// cut only when it is set before: an empty text does that.
  void Write(TextView text, int x, int y, Alignment alignment = kStart, Style style = {},
             double width = 0) {
    if (width > 0) Write({}, x, y, alignment, style);
    printer_.PrintGraphicText(OneLine(text), x, y, 1, alignment, width, u"Laksaman", style.size,
                              style.bold);
  }
  void DrawPicture(const std::shared_ptr<PrintPicture>& picture, int x, int y, double width,
                   double height) {
    printer_.PrintGraphicObject(picture, x, y, static_cast<float>(width),
                                static_cast<float>(height));
  }
  void Shade(int y, int height) { DrawPicture(grey_, kLeft, y, kRight - kLeft, height); }
  void RuleAcross(int x, int y, int length, double thickness = kHair) {
    DrawPicture(black_, x, y, length, thickness);
  }
  void RuleDown(int x, int y, int length) { DrawPicture(black_, x, y, kHair, length); }

  void DrawSender() {
    constexpr int kLogoHeight = 24;
    int x = kLeft;
    if (!sender_.logo.empty()) {
      const int width = kLogoHeight * sender_.logo_width / sender_.logo_height;
      DrawPicture(PictureFromFile(PathText(sender_.logo)), kLeft, 12, width, kLogoHeight);
      x += width + 5;
    }
    Write(sender_.name, x, 11, kStart, {.size = 17, .bold = true}, kRight - 50 - x);
    Write(sender_.english_name, x, 19, kStart, {}, kRight - 50 - x);
    Write(sender_.address, x, 25, kStart, kSmall, kRight - x);
    if (!sender_.tax_id.empty()) {
      Write(u"เลขประจำตัวผู้เสียภาษี " + sender_.tax_id, x, 31, kStart, kSmall, kRight - x);
    }
    Write(u"ใบแจ้งหนี้", kRight, 10, kEnd, {.size = 22, .bold = true});
    Write(u"INVOICE", kRight, 19, kEnd, {.size = 14, .bold = true});
    RuleAcross(kLeft, 39, kRight - kLeft, kBold);
  }

  void DrawCustomer() {
    constexpr int kLabels = 120;
    Write(u"ลูกค้า / Customer", kLeft, 43, kStart, kSmall);
    Write(invoice_.customer, kLeft, 49, kStart, {.size = 15, .bold = true}, 105);
    Write(u"รหัสลูกค้า / Code  " + invoice_.customer_code, kLeft, 58, kStart, {}, 105);

    Write(u"เลขที่ / No.", kLabels, 43);
    Write(invoice_.number, kRight, 43, kEnd, kStrong, kRight - kLabels - 20);
    Write(u"วันที่ / Date", kLabels, 51);
    DrawDateBoxes(invoice_.date, kRight - 44, 51);
    Write(u"ครบกำหนด / Due", kLabels, 60);
    Write(standard_.FormatThai(invoice_.due), kRight, 60, kEnd);
  }

  /// A date of day, month and year with one digit in each box, from `x` on.
  void DrawDateBoxes(OleDate date, int x, int y) {
    constexpr int kWidth = 5;
    constexpr int kHeight = 7;
    constexpr int kGap = 2;  // after day and month
    Text digits = standard_.FormatTDate2(date, ZQ7D_D_M_M_B_B_B_B);
    std::erase(digits, u' ');
    for (std::size_t i = 0; i < digits.size(); ++i) {
      for (const int edge : {y, y + kHeight}) RuleAcross(x, edge, kWidth);
      for (const int edge : {x, x + kWidth}) RuleDown(edge, y, kHeight);
      Write(digits.substr(i, 1), x + 1, y - 1, kStart, {.size = 14});
      x += kWidth + (i == 1 || i == 3 ? kGap : 0);
    }
  }

  void DrawTableHead() {
    Shade(kTableTop, kHeadHeight);
    for (const TableColumn& column : kTable) {
      Write(column.thai, column.x, kTableTop, column.alignment, {.size = 11, .bold = true});
      Write(column.english, column.x, kTableTop + 7, column.alignment, kSmall);
    }
    for (const int y : {kTableTop, kTableTop + kHeadHeight, kTableBottom}) {
      RuleAcross(kLeft, y, kRight - kLeft);
    }
    for (const int x : kTableRules) RuleDown(x, kTableTop, kTableBottom - kTableTop);
  }

  /// A line of the table. What one of it cost stands at the end of the item, in the letters
  /// that staff can read.
  void DrawLine(std::size_t index) {
    constexpr double kItemWidth = 51;
    constexpr double kCostLetterWidth = 1.8;
    const InvoiceLine& line = invoice_.lines[index];
    const int y = kTableTop + kHeadHeight + 1 + static_cast<int>(index) * kRowHeight;
    Text cost;
    if (line.cost && !sender_.code_word.empty()) {
      cost = standard_.FormatCostCode(*line.cost, sender_.code_word);
    }
    const double cost_width = kCostLetterWidth * static_cast<double>(cost.size());
    // With the satang, and with more decimals where the price has them.
    const bool whole_satang = standard_.FixNumber(line.price, 2) == line.price;
    WriteNumber(kTable[0], FromUtf8(std::to_string(index + 1)), y);
    Write(line.barcode, kTable[1].x, y + 1, kStart, kSmall);
    Write(line.item.empty() ? u"สินค้าตามรหัส" : line.item, kTable[2].x, y, kStart, {},
          kItemWidth - cost_width);
    Write(cost, kTableRules[3] - 1, y + 1, kEnd, {.size = 9});
    WriteNumber(kTable[3], Number(line.quantity), y);
    WriteNumber(kTable[4], whole_satang ? FormatAmount(line.price) : Number(line.price), y);
    WriteNumber(kTable[5], FormatAmount(line.amount), y);
  }

  Text Number(double value) const { return GroupThousands(standard_.d2Str(value)); }

  /// Numbers are never cut: a long one is written smaller, on the same base line.
  void WriteNumber(const TableColumn& column, TextView number, int y, bool bold = false) {
    constexpr std::size_t kFitting = 14;
    const bool is_long = number.size() > kFitting;
    Write(number, column.x, is_long ? y + 1 : y, column.alignment,
          {.size = is_long ? 8.5 : 12.0, .bold = bold});
  }

  void DrawTotals() {
    constexpr int kTop = kTableBottom + 1;
    Write(u"รวมทั้งสิ้น / Total", kTable[4].x, kTop, kEnd, kStrong);
    WriteNumber(kTable[5], FormatAmount(invoice_.amount), kTop, true);
    RuleAcross(kTableRules[5], kTop + 8, kRight - kTableRules[5], kBold);
    if (invoice_.discount == 0) return;
    const Text days = Number(invoice_.discount_days);
    Write(u"ส่วนลดเมื่อชำระภายใน " + days + u" วัน / Discount if paid within " + days + u" days",
          kTable[4].x, kTop + 9, kEnd, kSmall);
    Write(FormatAmount(invoice_.discount), kTable[5].x, kTop + 9, kEnd, kSmall);
  }

  /// The amount in words: long Thai ones smaller, long English ones on two lines.
  void DrawWords() {
    constexpr int kTop = kTableBottom + 19;
    constexpr int kMiddle = (kLeft + kRight) / 2;
    constexpr double kThaiFitting = 60;
    constexpr std::size_t kEnglishFitting = 84;
    constexpr Style kEnglish = {.size = 10.5};
    BahtStringObject baht;
    Text thai = u"(";
    thai.append(baht.BahtString(invoice_.amount)).append(u")");
    const Text english = baht.BahtString(invoice_.amount, false, true);
    const double shrinkage = std::min(1.0, kThaiFitting / TerminalWidth(thai));
    Shade(kTop, 21);
    Write(thai, kMiddle, kTop + 1, kCentre, {.size = 14 * shrinkage, .bold = true});
    const bool is_long = english.size() > kEnglishFitting;
    const std::size_t end = is_long ? english.rfind(u' ', kEnglishFitting) : english.size();
    Write(english.substr(0, end), kMiddle, kTop + (is_long ? 9 : 11), kCentre, kEnglish);
    if (is_long) Write(english.substr(end + 1), kMiddle, kTop + 14, kCentre, kEnglish);
  }

  void DrawPayment() {
    constexpr int kValues = 86;
    Write(u"เงื่อนไขการชำระเงิน / Payment term", kLeft, 226);
    Write(TermOf(standard_, invoice_, ZQ7ConditionOutputTypeFull), kValues, 226);
    if (!sender_.name.empty()) {
      Write(u"เช็คสั่งจ่าย / Cheque payable to", kLeft, 234);
      Write(sender_.name, kValues, 234, kStart, kStrong, kRight - kValues);
    }
    Write(u"เช็คลงวันที่ / Cheque date", kLeft, 243);
    DrawDateBoxes(invoice_.due, kValues, 243);
  }

  void DrawSignature(int x, TextView whose) {
    RuleAcross(x, 270, kSignatureLength);
    Write(whose, x + kSignatureLength / 2, 271, kCentre, kSmall);
  }

  PrintObject& printer_;
  const StandardObject& standard_;
  const Company& sender_;
  const Invoice& invoice_;
  const std::shared_ptr<PrintPicture> black_ = std::make_shared<Ink>(kBlackDot);
  const std::shared_ptr<PrintPicture> grey_ = std::make_shared<Ink>(kGreyDot);
};

}  // namespace

void MakePdf(const StandardObject& standard, const Company& sender, const Invoice& invoice,
             const fs::path& folder) {
  const fs::path new_files = folder / ".invoice-page";  // the printer names files by the time
  std::error_code failure;
  fs::remove_all(new_files, failure);
  fs::create_directories(new_files, failure);
  if (failure) throw std::system_error(failure, "cannot make the folder " + folder.string());
  try {
    PrintObject printer({.printers = SystemPrinters(new_files)});
    printer.CheckPaperSize(kA4);
    printer.PrintStart();
    Page(printer, standard, sender, invoice).Draw();
    printer.PrintOut();
  } catch (const RunTimeError& error) {
    throw std::runtime_error("no PDF can be made: "s + error.what());
  }
  Text name = OneLine(invoice.number) + u".pdf";
  std::ranges::replace(name, u'/', u'\u2215');  // a slash of another kind
  fs::rename(fs::directory_iterator(new_files)->path(), folder / Utf8(name));
  fs::remove(new_files);
}

}  // namespace InvoiceDemo
