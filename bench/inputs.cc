#include "bench/inputs.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <random>

#include "base/code_page.h"

namespace ZQ7Standard::Bench {
namespace {

constexpr std::size_t kCount = 1024;

/// Random numbers, the same on every run and with every standard library.
class Picker {
 public:
  std::int64_t From(std::int64_t first, std::int64_t last) {
    return first +
           static_cast<std::int64_t>(engine_() % static_cast<std::uint64_t>(last - first + 1));
  }

  template <typename List>
  auto OneOf(const List& list) {
    return list[static_cast<std::size_t>(From(0, std::ssize(list) - 1))];
  }

  bool OneIn(int count) { return From(1, count) == 1; }

 private:
  std::mt19937_64 engine_;
};

template <typename Item>
std::vector<Item> MakeList(Item (*make)(Picker&)) {
  Picker picker;
  std::vector<Item> list;
  list.reserve(kCount);
  while (list.size() < kCount) list.push_back(make(picker));
  return list;
}

Text Widened(const std::string& ascii) {
  return {ascii.begin(), ascii.end()};
}

std::string Digits(std::int64_t number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

std::string WithThousands(std::string digits) {
  for (std::size_t at = digits.find('.'); at > 3; at -= 3) digits.insert(at - 3, 1, ',');
  return digits;
}

Amount MakeAmount(Picker& picker) {
  std::int64_t limit = 10;
  for (std::int64_t length = picker.From(1, 12); length > 1; --length) limit *= 10;
  std::int64_t satang = picker.From(limit / 10, limit - 1);
  if (satang >= 100 && picker.OneIn(4)) satang -= satang % 100;
  const std::string digits = std::to_string(satang / 100) + "." + Digits(satang % 100, 2);
  return {static_cast<double>(satang) / 100, digits, Widened(WithThousands(digits))};
}

Day MakeDay(Picker& picker) {
  const auto year = static_cast<int>(picker.From(1997, 2037));
  const auto month = static_cast<int>(picker.From(1, 12));
  const auto first = OleDate::FromParts(year, month, 1);
  const auto next =
      month < 12 ? OleDate::FromParts(year, month + 1, 1) : OleDate::FromParts(year + 1, 1, 1);
  const auto length = static_cast<std::int64_t>(next.Days() - first.Days());
  const std::int64_t day = picker.From(1, length);
  const std::size_t width = picker.OneIn(4) ? 2 : 1;
  const std::string typed = Digits(day, width) + "/" + Digits(month, width) + "/" +
                            std::to_string(year + kBuddhistOffset);
  return {first.AddDays(day - 1), typed, Widened(typed)};
}

Invoice MakeInvoice(Picker& picker) {
  constexpr std::array<std::int16_t, 7> kNetDays = {0, 7, 15, 30, 45, 60, 90};
  constexpr std::array<float, 5> kDiscounts = {0, 0, 1, 2, 2.5F};
  const int condition = static_cast<int>(picker.From(0, 8));
  return {MakeDay(picker).typed_text,
          condition,
          static_cast<std::int16_t>(picker.From(0, 14)),
          picker.OneOf(kNetDays),
          picker.OneOf(kDiscounts),
          static_cast<std::int16_t>(picker.From(5, 10)),
          static_cast<double>(picker.From(10'000, 1'000'000'000)) / 100};
}

Text MakeDocumentNumber(Picker& picker) {
  constexpr std::array<TextView, 4> kBooks = {u"IV-67/", u" inv 2567-", u"ใบกำกับ 67/", u"rc'67; "};
  return Text(picker.OneOf(kBooks)) + Widened(Digits(picker.From(1, 99'999), 6));
}

Text MakeBarcode(Picker& picker) {
  return Widened(Digits(picker.From(0, 999'999'999'999), 12));
}

}  // namespace

const std::vector<Amount>& Amounts() {
  static const std::vector<Amount> list = MakeList(MakeAmount);
  return list;
}

const std::vector<Day>& Days() {
  static const std::vector<Day> list = MakeList(MakeDay);
  return list;
}

std::vector<OleDate> Moments() {
  constexpr std::int64_t kSecondsPerDay = 86'400;
  Picker picker;
  std::vector<OleDate> list;
  for (const Day& day : Days()) {
    const auto second = static_cast<double>(picker.From(0, kSecondsPerDay - 1));
    list.emplace_back(day.date.Days() + second / kSecondsPerDay);
  }
  return list;
}

const std::vector<Invoice>& Invoices() {
  static const std::vector<Invoice> list = MakeList(MakeInvoice);
  return list;
}

const std::vector<Text>& DocumentNumbers() {
  static const std::vector<Text> list = MakeList(MakeDocumentNumber);
  return list;
}

const std::vector<Text>& Barcodes() {
  static const std::vector<Text> list = MakeList(MakeBarcode);
  return list;
}

std::vector<Text> InvoiceTexts(std::size_t length) {
  constexpr std::size_t kTotal = 16 * kCount;
  constexpr TextView kLine =
      u"ใบกำกับภาษีเลขที่ IV-67/00123 วันที่ 15/1/2567 จำนวนเงิน 1,234.50 บาท "
      u"(หนึ่งพันสองร้อยสามสิบสี่บาทห้าสิบสตางค์) กำหนดชำระภายใน 30 วัน ";
  Text all;
  while (all.size() < std::max(kTotal, length)) all += kLine;
  std::vector<Text> list;
  for (std::size_t at = 0; at + length <= all.size(); at += length) {
    list.push_back(all.substr(at, length));
  }
  return list;
}

std::vector<std::string> InvoiceBytes(std::size_t length) {
  std::vector<std::string> list;
  for (const Text& text : InvoiceTexts(length)) list.push_back(ToCodePage(text));
  return list;
}

}  // namespace ZQ7Standard::Bench
