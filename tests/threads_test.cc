// Distinct instances on distinct threads: run under ThreadSanitizer, which fails
// the program when they share anything that one of them changes.

#include <ZQ7Standard/BahtStringObject.h>
#include <ZQ7Standard/GridValueObject.h>
#include <ZQ7Standard/StandardObject.h>
#include <gtest/gtest.h>

#include <thread>
#include <vector>

using namespace ZQ7Standard;

TEST(Threads, DistinctInstancesAreIndependent) {
  std::vector<std::thread> threads;
  for (int id = 0; id < 4; ++id) {
    threads.emplace_back([id] {
      const StandardObject object;
      BahtStringObject words;
      GridValueObject grid;
      grid.SetCols(1);
      const Text expected = BahtStringObject().BahtString(id + 20.01);
      for (int i = 0; i < 500; ++i) {
        const OleDate date = OleDate::FromParts(2000 + id, 1 + i % 12, 1 + i % 28);
        const Text text = object.FormatTDate2(date, ZQ7Detect);
        ASSERT_TRUE(object.IsTDate(text));
        ASSERT_EQ(object.CTDATE(text), date);
        ASSERT_EQ(object.AddMonth(object.AddMonth(date, 1), -1), date);
        ASSERT_FALSE(object.IsTDateTime(u"Feb 30"));
        ASSERT_EQ(object.FixNumber(object.StrVal(u"1,234.565"), 2), 1234.57);
        words.MoneyText(i + 0.5, false, true, u"Dollar");
        ASSERT_EQ(words.BahtString(id + 20.01), expected);
        ASSERT_EQ(object.DecryptBS(object.EncryptBS(text, u"key"), u"key"), text);
        ASSERT_EQ(object.CalculateMD5(u"abc"), u"900150983cd24fb0d6963f7d28e17f72");
        ASSERT_GE(object.Random(1, 6), 1);
        ASSERT_TRUE(grid.Setvalue(i, 0, 1) && grid.SumCol(0) == i + 1);
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}
