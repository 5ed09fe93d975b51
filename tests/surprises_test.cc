// The C++ of docs/surprises.md; tests/zq7/surprises compares the two.

#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <ZQ7Standard/platform/message_box.h>

#include <sstream>

#include "tests/support/row_tests.h"

using namespace ZQ7Standard;

TEST(Surprises, AMessageBoxThatRecordsHearsWhatNoCallerHears) {
  std::ostringstream log;
  const auto box = std::make_shared<RecordingMessageBox>();
  ASCIIObject files({.message_box = box});
  files.SetDisableMsgLevel(1);
  files.Setvalue(u"C:\\none\\set.ini", u"Port", u"1");
  for (const Message& message : box->Take()) log << Utf8(message.text) << '\n';
  EXPECT_EQ(log.str(), "Not found specified folder.\n");
  EXPECT_TRUE(box->Take().empty());
}

TEST(Surprises, AServerSetsTheConventionOfItsUsers) {
  const auto thai = FixedDateConvention({FieldOrder::kDayFirst, Era::kBuddhist});
  const StandardObject standard({.date_convention = thai});
  EXPECT_EQ(IsoText(standard.CTDATE(u"3/4/2567")), "2024-04-03");
}
