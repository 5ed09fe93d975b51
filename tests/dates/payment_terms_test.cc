#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

const StandardObject kObject = ObjectWith(kDmyBe);

TEST(PaymentTerms, DueDates) {
  const OleDate invoice = OleDate::FromParts(2024, 3, 15, 12);
  const struct {
    int type;
    const char* expected;  // with 30 net days and 7 days of delivery
    // clang-format off
  } cases[] = {
      {0, "2024-04-14 12:00:00"}, {1, "2024-04-21 12:00:00"}, {2, "2024-04-21 12:00:00"},
      // 2171-08-31 is the end of month 2024 of the year 3.
      {3, "2171-10-07"}, {4, "2171-09-30"}, {5, "2171-10-07"}, {6, "2171-10-07"}, {7, "2171-10-07"},
      {8, "2171-10-07"}, {9, "1899-12-30"}, {-1, "1899-12-30"},
  };
  // clang-format on
  for (const auto& c : cases) {
    const auto type = static_cast<ZQ7ConditionType>(c.type);
    EXPECT_EQ(IsoText(kObject.GetConditionDueDate(invoice, type, 30, 7)), c.expected) << c.type;
  }
  const OleDate early(-1.25);
  EXPECT_EQ(kObject.GetConditionDueDate(early, ZQ7AfterInvoiceDate, 3, 0).Days(), 2.25);
  EXPECT_EQ(kObject.GetConditionDueDate(invoice, ZQ7AfterDeliveryDate, -30, -7).Days(),
            invoice.Days() - 37);
  const OleDate last = OleDate::FromParts(9999, 12, 31);
  EXPECT_EQ(ErrorOf([&] { kObject.GetConditionDueDate(last, ZQ7AfterInvoiceDate, 1, 0); }), 5);
}

TEST(PaymentTerms, TradeNotation) {
  const float nan = std::nanf("");
  const float infinity = std::numeric_limits<float>::infinity();
  const struct {
    const char* reason;
    float discount;
    std::int16_t discount_days;
    int type, output;
    float days;
    const char* expected;
  } cases[] = {
      {"cash", 2, 10, 0, 1, 0, "CASH"},
      {"cash", 2, 10, 0, 0, -1, "CASH"},
      {"days that are no number", 2, 10, 0, 0, nan, "CASH"},
      {"discount", 2, 10, 0, 0, 30, "2.0/10, N/30 AID"},
      {"no discount days", 2, 0, 0, 0, 30, "N/30 AID"},
      {"no discount", 0, 10, 0, 0, 30, "N/30 AID"},
      {"negative discount", -1, 10, 0, 0, 30, "N/30 AID"},
      {"infinite discount", infinity, 10, 0, 0, 30, "N/30 AID"},
      {"half days", 0, 0, 0, 0, 30.5F, "N/30.5 AID"},
      {"days as the float prints", 0, 0, 0, 0, 0.1F, "N/0.1 AID"},
      {"discount as the float prints", 2.35F, 10, 0, 0, 30, "2.4/10, N/30 AID"},
      {"discount below one", 0.25F, 10, 0, 0, 30, "0.3/10, N/30 AID"},
      {"groups", 1234.5F, 1000, 0, 0, 30, "1,234.5/1,000, N/30 AID"},
      {"full", 0, 0, 4, 1, 45, "N/45 AFTER END OF INVOICE MONTH"},
      {"only 1 is full", 0, 0, 4, 2, 45, "N/45 AEIM"},
      {"DATE, not MONTH", 0, 0, 8, 1, 45, "N/45 AFTER END OF SPT DATE"},
      {"BILL, not BL", 0, 0, 2, 1, 45, "N/45 AFTER BILL DATE"},
      {"unknown type", 0, 0, 9, 1, 45, "N/45 AFTER INVOICE DATE"},
      {"negative type", 0, 0, -1, 0, 45, "N/45 AID"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Utf8(kObject.FormatCondition2(c.discount, c.discount_days,
                                            static_cast<ZQ7ConditionType>(c.type),
                                            static_cast<ZQ7ConditionOutputType>(c.output), c.days)),
              c.expected)
        << c.reason;
    EXPECT_EQ(Utf8(kObject.FormatCondition(c.discount, c.discount_days, static_cast<float>(c.type),
                                           static_cast<float>(c.output), c.days)),
              c.expected)
        << c.reason;
  }
  EXPECT_EQ(Utf8(kObject.FormatCondition(0, 0, 2.5F, 0.5F, 30)), "N/30 ABD");
  EXPECT_EQ(Utf8(kObject.FormatCondition(0, 0, 1e30F, nan, 30)), "N/30 AID");
  const char* suffixes[] = {"AID", "ADD", "ABD", "ARD", "AEIM", "AEDM", "AEBM", "AERM", "AESD"};
  for (int type = 0; type < 9; ++type) {
    EXPECT_EQ(Utf8(kObject.FormatCondition(0, 0, static_cast<float>(type), 0, 1)),
              std::string("N/1 ") + suffixes[type]);
  }
}

}  // namespace
}  // namespace ZQ7Standard
