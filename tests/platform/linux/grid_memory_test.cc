#include <ZQ7Standard/GridValueObject.h>
#include <gtest/gtest.h>
#include <malloc.h>

using namespace ZQ7Standard;

// A million rows of one column, and a few rows of many.
TEST(GridValueObject, GrowsInProportionAndKeepsTwiceItsCellsAtMost) {
  const auto bytes_in_use = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; };
  for (const auto& [last, cols] : {std::pair(1'000'000, 1), {60, 20'000}}) {
    const auto before = bytes_in_use();
    GridValueObject grid;
    grid.SetCols(cols);
    const auto has_room = [&] {
      const double cells = (grid.Rows() + 1.0) * (grid.Cols() + 1.0);
      return static_cast<double>(bytes_in_use() - before) <= 2 * cells * sizeof(double) + 16'384;
    };
    for (int row = 0; row < last; ++row) {
      grid.Setvalue(row, 0, row);
      ASSERT_TRUE(has_room()) << grid.Rows() << " rows of " << cols;
    }
    EXPECT_EQ(grid.SumCol(0), last / 2.0 * (last - 1));
    for (int rows = last; rows > 0; rows -= rows / 9 + 1) {
      grid.SetRows(rows);
      ASSERT_TRUE(has_room()) << rows << " rows of " << cols;
    }
  }
}
