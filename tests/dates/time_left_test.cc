#include <ZQ7Standard/StandardObject.h>

#include <limits>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

static const StandardObject kThai = ObjectWith(kDmyBe);

static constexpr double kSecond = 1 / 86400.0;

TEST(TimeLeft, EstimatesFromTheClock) {
  const auto estimate = [](double now, double start, double done, double total) {
    return ObjectWith(kDmy, OleDate(now)).TimeLeftDateTime(OleDate(start), done, total).Days();
  };
  // clang-format off
  ExpectRows<double, double, double, double>(estimate, {
      {{45306.5, 45306, 1, 4}, "1.5"}, {{45306.5, 45306, 0.5, 0.75}, "0.25", "counts with fractions"},
      {{1.25, -1.25, 1, 2}, "2", "from 06:00 on 1899-12-29 to 06:00 on 1899-12-31"},
      {{-1.75, -1.25, 1, 3}, "1", "fractions of early days count forward"},
      {{45306.5, 45306, 0, 4}, "0"}, {{45306.5, 45306, -1, 4}, "0"}, {{45306.5, 45306, 4, 4}, "0"},
      {{45306.5, 45306, 5, 4}, "0"}, {{45306, 45306.5, 1, 4}, "0", "a start in the future"},
      {{45306, 45306, 1, kInfinity}, "0", "no time has passed"},
      {{45306.5, 45306, kNan, 4}, "0"}, {{45306.5, 45306, 1, kNan}, "0"},
      {{45306.5, 45306, 1, kInfinity}, "2958465"}, {{45306.5, 45306, 1e-300, 1}, "2958465"},
      {{45306.5, 45306, 1, 5916931}, "2958465"}, {{45306.5, 45306, 1, 5916930}, "2958464.5"}});
  // clang-format on
}

TEST(TimeLeft, WritesTwoUnits) {
  const auto call = [](double days) {
    return Utf8(kThai.FormatTimeleft(days, false) + u" | " + kThai.FormatTimeleft(days));
  };
  // clang-format off
  ExpectRows<double>(call, {
      {1 + 2 / 24.0, "1 day 2 hours | 1 วัน 2 ชั่วโมง"},
      {1 + 5 / 1440.0, "1 day 5 minutes | 1 วัน 5 นาที", "no hours between"},
      {185 * kSecond, "3 minutes 5 seconds | 3 นาที 5 วินาที"}, {2 + kSecond, "2 days 1 second | 2 วัน 1 วินาที"},
      {1.0 / 24 + 1.0 / 1440 + 59 * kSecond, "1 hour 1 minute | 1 ชั่วโมง 1 นาที", "the rest cut off"},
      {7 / 24.0, "7 hours | 7 ชั่วโมง"}, {0, "0 seconds | 0 วินาที"}, {-3, "0 seconds | 0 วินาที"},
      {0.49 * kSecond, "0 seconds | 0 วินาที"}, {0.51 * kSecond, "1 second | 1 วินาที"},
      {59.6 * kSecond, "1 minute | 1 นาที", "carried"}, {1.999999, "2 days | 2 วัน"},
      {2958465, "2958465 days | 2958465 วัน"}, {1e15, "1000000000000000 days | 1000000000000000 วัน"},
      {kInfinity, "error 6"}, {-kInfinity, "error 6"}, {kNan, "error 6"}});
  // clang-format on
}

TEST(TimeLeft, TextFollowsTheSystemUnlessTold) {
  const OleDate start = OleDate::FromParts(2024, 1, 15, 9);  // half an hour ago
  const auto call = [&](DateConvention convention, auto use_thai) {
    return ObjectWith(convention).TimeLeftText(start, 3, 10, use_thai);
  };
  // clang-format off
  ExpectRows<DateConvention, std::optional<bool>>(call, {
      {{kDmy, std::nullopt}, "1 hour 10 minutes"}, {{kDmy, true}, "1 ชั่วโมง 10 นาที"},
      {{kDmyBe, std::nullopt}, "1 ชั่วโมง 10 นาที"}, {{kDmyBe, false}, "1 hour 10 minutes"}});
  // clang-format on
  const auto second_call = [&](double done, double total) {
    return kThai.TimeLeftText(start, done, total, false);
  };
  // clang-format off
  ExpectRows<double, double>(second_call, {
      {{0, 10}, ""}, {{-1, 10}, ""}, {{0, 0}, "0 seconds"}, {{10, 10}, "0 seconds"},
      {{11, 10}, "0 seconds"}});
  // clang-format on
}
