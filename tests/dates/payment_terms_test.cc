#include <ZQ7Standard/StandardObject.h>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

static const StandardObject kObject = ObjectWith(kDmyBe);

TEST(PaymentTerms, DueDates) {
  const OleDate invoice = OleDate::FromParts(2024, 3, 15, 12);
  const auto call = [&](int type) {
    return kObject.GetConditionDueDate(invoice, static_cast<ZQ7ConditionType>(type), 30, 7);
  };
  // clang-format off
  ExpectRows<int>(call, {
      {0, "2024-04-14 12:00:00"}, {1, "2024-04-21 12:00:00"}, {2, "2024-04-21 12:00:00"},
      // 2171-08-31 is the end of month 2024 of the year 3.
      {3, "2171-10-07"}, {4, "2171-09-30"}, {5, "2171-10-07"}, {6, "2171-10-07"},
      {7, "2171-10-07"}, {8, "2171-10-07"}, {9, "1899-12-30"}, {-1, "1899-12-30"}});
  // clang-format on
  ExpectRows<double, std::int16_t, std::int16_t>(
      [](double day, std::int16_t net, std::int16_t delivery) {
        return kObject.GetConditionDueDate(OleDate(day), ZQ7AfterDeliveryDate, net, delivery)
            .Days();
      },
      {{{-1.25, 3, 0}, "2.25"}, {{45366.5, -30, -7}, "45329.5"}, {{2958465, 1, 0}, "error 5"}});
}

TEST(PaymentTerms, TradeNotation) {
  constexpr auto kNanF = static_cast<float>(kNan);
  constexpr auto kInfinityF = static_cast<float>(kInfinity);
  const auto call = [](float discount, std::int16_t discount_days, int type, int output,
                       float days) {
    const Text text =
        kObject.FormatCondition2(discount, discount_days, static_cast<ZQ7ConditionType>(type),
                                 static_cast<ZQ7ConditionOutputType>(output), days);
    EXPECT_EQ(text, kObject.FormatCondition(discount, discount_days, static_cast<float>(type),
                                            static_cast<float>(output), days));
    return text;
  };
  // clang-format off
  ExpectRows<float, std::int16_t, int, int, float>(call, {
      {{2, 10, 0, 1, 0}, "CASH"}, {{2, 10, 0, 0, -1}, "CASH"}, {{2, 10, 0, 0, kNanF}, "CASH"},
      {{2, 10, 0, 0, 30}, "2.0/10, N/30 AID"}, {{2, 0, 0, 0, 30}, "N/30 AID"},
      {{0, 10, 0, 0, 30}, "N/30 AID"}, {{-1, 10, 0, 0, 30}, "N/30 AID"},
      {{kInfinityF, 10, 0, 0, 30}, "N/30 AID"}, {{0, 0, 0, 0, 30.5F}, "N/30.5 AID"},
      {{0, 0, 0, 0, 0.1F}, "N/0.1 AID", "days as the float prints"},
      {{0, 0, 0, 0, 123456789.F}, "N/123456790 AID"}, {{0, 0, 0, 0, 1e-5F}, "N/0.00001 AID"},
      {{0, 0, 0, 0, 1e20F}, "N/100000000000000000000 AID"},
      {{123456789.F, 10, 0, 0, 30}, "123,456,790.0/10, N/30 AID"},
      {{2.35F, 10, 0, 0, 30}, "2.4/10, N/30 AID", "discount as the float prints"},
      {{0.25F, 10, 0, 0, 30}, "0.3/10, N/30 AID"},
      {{1234.5F, 1000, 0, 0, 30}, "1,234.5/1,000, N/30 AID"},
      {{0, 0, 4, 2, 45}, "N/45 AEIM", "only 1 is full"},
      {{0, 0, 9, 1, 45}, "N/45 AFTER INVOICE DATE"}, {{0, 0, -1, 0, 45}, "N/45 AID"}});
  // clang-format on
  EXPECT_EQ(Utf8(kObject.FormatCondition(0, 0, 2.5F, 0.5F, 30)), "N/30 ABD");
  EXPECT_EQ(Utf8(kObject.FormatCondition(0, 0, 1e30F, kNanF, 30)), "N/30 AID");
}

// "BILL" and the last "DATE" differ from the names of their types.
TEST(PaymentTerms, Words) {
  const auto call = [](float type) {
    return Utf8(kObject.FormatCondition(0, 0, type, 0, 1) + u" | " +
                kObject.FormatCondition(0, 0, type, 1, 2));
  };
  // clang-format off
  ExpectRows<float>(call, {
      {0, "N/1 AID | N/2 AFTER INVOICE DATE"}, {1, "N/1 ADD | N/2 AFTER DELIVERY DATE"},
      {2, "N/1 ABD | N/2 AFTER BILL DATE"}, {3, "N/1 ARD | N/2 AFTER RECEIVE OS/DOC"},
      {4, "N/1 AEIM | N/2 AFTER END OF INVOICE MONTH"},
      {5, "N/1 AEDM | N/2 AFTER END OF DELIVERY MONTH"},
      {6, "N/1 AEBM | N/2 AFTER END OF BILL MONTH"},
      {7, "N/1 AERM | N/2 AFTER END OF RECEIVE OS/DOC MONTH"},
      {8, "N/1 AESD | N/2 AFTER END OF SPT DATE"}});
  // clang-format on
}
