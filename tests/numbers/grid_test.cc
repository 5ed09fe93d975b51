#include <ZQ7Standard/GridValueObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <gtest/gtest.h>
#include <malloc.h>

#include <functional>
#include <limits>
#include <random>
#include <stdexcept>
#include <utility>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

using Grid = GridValueObject;

constexpr std::int32_t kLast32 = std::numeric_limits<std::int32_t>::max();

std::string Shape(const Grid& grid) {
  return std::to_string(grid.Rows()) + " x " + std::to_string(grid.Cols()) + ", headings " +
         std::to_string(grid.FixedRows()) + " x " + std::to_string(grid.FixedCols());
}

/// 6 rows and 4 columns with 2 heading rows and 1 heading column; each cell
/// holds its row and column, 31 for the second of the fourth row.
void MakeHeadings(Grid& grid) {
  EXPECT_EQ(ErrorOf([&] { grid.Setvalue(5, -2, 0); }), 9);
  EXPECT_TRUE(grid.SetFirst(1, 4, 1, 2));
  for (int cell = 0; cell < 24; ++cell) grid.Setvalue(cell / 4, cell % 4, cell / 4 * 10 + cell % 4);
}

struct ShapeCase {
  const char* reason;
  void (*act)(Grid&);
  const char* expected;
};

TEST(GridValueObject, TakesItsShape) {
  // clang-format off
  const ShapeCase cases[] = {
      {"new", [](Grid&) {}, "1 x -1, headings 0 x 0"},
      {"rows and heading rows are not kept", [](Grid& g) { EXPECT_TRUE(g.SetFirst(10, 5, 1, 1)); }, "1 x 5, headings 0 x 1"},
      {"columns once", [](Grid& g) { g.SetCols(5); g.SetCols(6); EXPECT_FALSE(g.SetFirst(9, 6, 1, 0)); }, "1 x 5, headings 0 x 0"},
      {"heading columns below the columns", [](Grid& g) { EXPECT_TRUE(g.SetFirst(1, 5, 5, 0)); }, "1 x 5, headings 0 x 0"},
      {"heading rows below the rows", MakeHeadings, "6 x 4, headings 2 x 1"},
      {"no columns", [](Grid& g) { g.SetCols(0); EXPECT_FALSE(g.SetFirst(1, 0, 0, 0)); }, "1 x -1, headings 0 x 0"},
      {"no rows", [](Grid& g) { g.SetRows(0); EXPECT_FALSE(g.SetFirst(0, 1, 0, 0)); }, "1 x -1, headings 0 x 0"},
      {"headings below 0", [](Grid& g) { EXPECT_FALSE(g.SetFirst(1, 1, -1, 0) || g.SetFirst(1, 1, 0, -1)); }, "1 x -1, headings 0 x 0"},
      {"rows first: no columns for good", [](Grid& g) { g.SetRows(4); g.SetCols(3); }, "4 x 0, headings 0 x 0"},
      {"only heading rows", [](Grid& g) { MakeHeadings(g); g.SetRows(2); }, "6 x 4, headings 2 x 1"},
      {"a row past the last", [](Grid& g) { g.SetCols(5); EXPECT_TRUE(g.Setvalue(7, 2, 3.5)); }, "8 x 5, headings 0 x 0"},
      {"a column past the last", [](Grid& g) { g.SetCols(5); EXPECT_FALSE(g.Setvalue(3, 5, 1)); }, "1 x 5, headings 0 x 0"},
      {"no column is below none", [](Grid& g) { EXPECT_FALSE(g.Setvalue(3, 0, 1) || g.Setvalue(3, -1, 1)); }, "1 x -1, headings 0 x 0"},
      {"the only row", [](Grid& g) { g.RemaveItem(0); g.RemaveItem(0); }, "0 x -1, headings 0 x 0"},
      {"no such row", [](Grid& g) { g.SetCols(2); g.RemaveItem(1); g.RemaveItem(-1); g.ResetRow(-1); }, "1 x 2, headings 0 x 0"},
      {"heading rows too", [](Grid& g) { MakeHeadings(g); for (int i = 0; i < 5; ++i) g.RemaveItem(0); }, "1 x 4, headings 2 x 1"},
      {"clearing brings them back", [](Grid& g) { MakeHeadings(g); for (int i = 0; i < 6; ++i) g.RemaveItem(0); g.Clear(); }, "3 x 4, headings 2 x 1"},
      {"clearing without columns", [](Grid& g) { g.Clear(); }, "1 x -1, headings 0 x 0"},
  };
  // clang-format on
  for (const auto& c : cases) {
    Grid grid;
    c.act(grid);
    EXPECT_EQ(Shape(grid), c.expected) << c.reason;
  }
}

struct ValueCase {
  const char* reason;
  double (*act)(Grid&);
  double expected;
};

TEST(GridValueObject, KeepsItsCells) {
  // clang-format off
  const ValueCase cases[] = {
      {"column without heading rows", [](Grid& g) { return g.SumCol(1); }, 21 + 31 + 41 + 51},
      {"row without heading columns", [](Grid& g) { return g.SumRow(2); }, 21 + 22 + 23},
      {"headings are no data", [](Grid& g) { return g.SumCol(0) + g.SumRow(1) + g.SumCol(-1) + g.SumRow(-1); }, 0},
      {"nor is the spare row", [](Grid& g) { g.SetRows(4); return g.SumRow(4) + g.SumCol(4); }, 0},
      {"from the top down", [](Grid& g) { g.Setvalue(2, 1, 1e16); g.Setvalue(3, 1, 1); g.Setvalue(4, 1, -1e16); return g.SumCol(1); }, 51},
      {"from left to right", [](Grid& g) { g.Setvalue(2, 1, 1e16); g.Setvalue(2, 2, 1); g.Setvalue(2, 3, -1e16); return g.SumRow(2); }, 0},
      {"past the end is the spare cell", [](Grid& g) { return g.GetValue(100, 100); }, 0},
      {"the first row dropped is the spare row", [](Grid& g) { g.SetRows(4); return g.GetValue(100, 3); }, 43},
      {"and comes back", [](Grid& g) { g.SetRows(4); g.SetRows(6); return g.GetValue(4, 3); }, 43},
      {"the next does not", [](Grid& g) { g.SetRows(4); g.SetRows(6); return g.GetValue(5, 3); }, 0},
      {"rows move up", [](Grid& g) { g.RemaveItem(2); return g.GetValue(2, 1); }, 31},
      {"heading columns do not", [](Grid& g) { g.RemaveItem(2); return g.GetValue(2, 0); }, 20},
      {"the last row takes the spare row", [](Grid& g) { g.SetRows(4); g.RemaveItem(3); return g.GetValue(3, 1); }, 41},
      {"a blank row", [](Grid& g) { g.ResetRow(3); return g.SumRow(3); }, 0},
      {"keeps its heading", [](Grid& g) { g.ResetRow(3); return g.GetValue(3, 0); }, 30},
      {"clearing leaves heading rows", [](Grid& g) { g.Clear(); return g.GetValue(1, 2); }, 12},
      {"and heading columns", [](Grid& g) { g.Clear(); return g.GetValue(3, 0); }, 30},
      {"a blank row and a blank spare row", [](Grid& g) { g.Clear(); return g.SumRow(2) + g.GetValue(3, 1); }, 0},
  };
  // clang-format on
  for (const auto& c : cases) {
    Grid grid;
    MakeHeadings(grid);
    EXPECT_EQ(c.act(grid), c.expected) << c.reason;
  }
}

struct ErrorCase {
  const char* reason;
  int error;
  void (*act)(Grid&);
  std::int32_t rows = 2;  // afterwards
};

// On 2 rows of 40,000 columns: no machine addresses 2^31 such rows.
TEST(GridValueObject, RaisesForCellsThatCannotBe) {
  const ErrorCase cases[] = {
      {"row below 0", 9, [](Grid& g) { g.Setvalue(-1, 0, 1); }},
      {"column below 0", 9, [](Grid& g) { g.Setvalue(0, -1, 1); }},
      {"column below 0 in a row past the last", 9, [](Grid& g) { g.Setvalue(4, -1, 1); }, 5},
      {"reading a row below 0", 9, [](Grid& g) { g.GetValue(-1, 0); }},
      {"reading a column below 0", 9, [](Grid& g) { g.GetValue(0, -1); }},
      {"reading before columns are set", 9, [](Grid&) { Grid().GetValue(0, 0); }},
      {"a row without a number of rows", 7, [](Grid& g) { g.Setvalue(kLast32, 0, 1); }},
      {"the last row", 7, [](Grid& g) { g.Setvalue(kLast32 - 1, 0, 1); }},
      {"the most rows", 7, [](Grid& g) { g.SetRows(kLast32); }},
  };
  for (const auto& c : cases) {
    Grid grid;
    grid.SetCols(40'000);
    grid.Setvalue(1, 39'999, 5);
    EXPECT_EQ(ErrorOf([&] { c.act(grid); }), c.error) << c.reason;
    EXPECT_EQ(grid.Rows(), c.rows) << c.reason;
    EXPECT_EQ(grid.SumCol(39'999), 5) << c.reason;
  }
  Grid no_columns;
  EXPECT_EQ(ErrorOf([&] { no_columns.Setvalue(kLast32 - 1, -2, 0); }), 9);
  EXPECT_EQ(ErrorOf([&] { no_columns.SetCols(kLast32); }), 7);
  EXPECT_EQ(ErrorOf([&] { no_columns.SetFirst(1, kLast32, 1, 1); }), 7);
  EXPECT_EQ(Shape(no_columns), "2147483647 x -1, headings 0 x 0");
}

/// The rules in plain words, one vector for each row.
class Model {
 public:
  explicit Model(const Grid& grid)
      : cols_(grid.Cols()), fixed_rows_(grid.FixedRows()), fixed_cols_(grid.FixedCols()) {
    Resize(grid.Rows());
    for (int row = 0; row <= rows_; ++row) {
      for (int col = 0; col <= cols_; ++col) At(row, col) = grid.GetValue(row, col);
    }
  }

  void SetRows(int rows) {
    if (rows > fixed_rows_) Resize(rows);
  }
  void Setvalue(int row, int col, double value) {
    if (col >= cols_) return;
    if (row >= rows_) Resize(row + 1);
    At(row, col) = value;
  }
  void RemaveItem(int row) {
    if (row >= rows_) return;
    for (int r = row; r < rows_; ++r) {
      for (int c = fixed_cols_; c < cols_; ++c) At(r, c) = At(r + 1, c);
    }
    Resize(rows_ - 1);
  }
  void ResetRow(int row) {
    for (int c = fixed_cols_; row < rows_ && c < cols_; ++c) At(row, c) = 0;
  }
  void Clear() {
    Resize(fixed_rows_ + 1);
    for (int r = fixed_rows_; r <= rows_; ++r) {
      for (int c = fixed_cols_; c <= cols_; ++c) At(r, c) = 0;
    }
  }

  void ExpectSame(const Grid& grid) {
    ASSERT_EQ(grid.Rows(), rows_);
    std::vector<double> sums(static_cast<std::size_t>(cols_) + 1);
    for (int r = 0; r <= rows_; ++r) {
      double sum = 0;
      for (int c = 0; c <= cols_; ++c) {
        ASSERT_EQ(grid.GetValue(r, c), At(r, c)) << "row " << r << ", column " << c;
        if (r < fixed_rows_ || r == rows_ || c < fixed_cols_ || c == cols_) continue;
        sum += At(r, c);
        sums[static_cast<std::size_t>(c)] += At(r, c);
      }
      ASSERT_EQ(grid.SumRow(r), sum) << "row " << r;
    }
    for (int c = 0; c <= cols_; ++c) ASSERT_EQ(grid.SumCol(c), sums[static_cast<std::size_t>(c)]);
  }

 private:
  double& At(int row, int col) {
    return cells_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(col));
  }
  void Resize(int rows) {
    rows_ = rows;
    cells_.resize(static_cast<std::size_t>(rows) + 1,
                  std::vector<double>(static_cast<std::size_t>(cols_) + 1));
  }

  int rows_ = 0, cols_, fixed_rows_, fixed_cols_;
  std::vector<std::vector<double>> cells_;
};

/// One operation, on a grid or its model.
template <typename Table>
void Act(Table& table, int operation, int row, int col, double value) {
  if (operation == 0) return table.Clear();
  if (operation == 1) return table.SetRows(2 * row + 1);
  if (operation == 2) return table.ResetRow(row);
  if (operation < 8) return table.RemaveItem(row);
  table.Setvalue(row, col, value);
}

TEST(GridValueObject, AgreesWithAPlainModelUnderRandomOperations) {
  void (*const makes[])(Grid&) = {MakeHeadings, [](Grid& g) { g.SetCols(3); },
                                  [](Grid& g) { g.SetRows(2); }};
  std::mt19937 draw(1);
  const auto below = [&draw](int bound) { return static_cast<int>(draw() >> 1) % bound; };
  for (const auto make : makes) {
    Grid grid;
    make(grid);
    Model model(grid);
    for (int step = 0; step < 5000; ++step) {
      const int operation = below(40);
      const int row = below(grid.Rows() + 3);
      const int col = below(grid.Cols() + 2);
      Act(grid, operation, row, col, step / 8.0);
      Act(model, operation, row, col, step / 8.0);
      model.ExpectSame(grid);
      ASSERT_FALSE(HasFatalFailure()) << "step " << step;
    }
  }
}

struct GrowthCase {
  const char* reason;
  std::int32_t rows, cols;
};

TEST(GridValueObject, GrowsInProportionAndKeepsTwiceItsCellsAtMost) {
  const auto bytes_in_use = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; };
  const GrowthCase cases[] = {
      {"a million rows of one column", 1'000'000, 1},
      {"few rows of many columns", 60, 20'000},
  };
  for (const auto& c : cases) {
    const std::size_t before = bytes_in_use();
    Grid grid;
    grid.SetCols(c.cols);
    const auto room = [&] {
      const double cells = (grid.Rows() + 1.0) * (grid.Cols() + 1.0);
      return static_cast<std::size_t>(2 * cells * sizeof(double)) + before + 16'384;
    };
    for (std::int32_t row = 0; row < c.rows; ++row) {
      grid.Setvalue(row, 0, row);
      ASSERT_LE(bytes_in_use(), room()) << c.reason << ": " << row;
    }
    EXPECT_EQ(grid.SumCol(0), c.rows / 2.0 * (c.rows - 1)) << c.reason;
    for (std::int32_t rows = c.rows; rows > 0; rows -= rows / 9 + 1) {
      grid.SetRows(rows);
      ASSERT_LE(bytes_in_use(), room()) << c.reason << ": " << rows;
    }
  }
}

/// Writes down what it hears, then does as it was told.
class Recorder : public GridValueListener {
 public:
  Recorder(std::string& log, std::string name, std::function<void()> act)
      : log_(log), name_(std::move(name)), act_(std::move(act)) {}

  void DataChange() override { log_ += "DataChange"; }
  void CellDataChange(std::int32_t Row, std::int32_t Col) override {
    log_ += name_ + std::to_string(Row) + "," + std::to_string(Col) + " ";
    act_();
  }

 private:
  std::string& log_;
  std::string name_;
  std::function<void()> act_;
};

class GridEvents : public testing::Test {
 protected:
  GridEvents() { grid_.SetCols(3); }

  std::shared_ptr<Recorder> Listen(
      const char* name, std::function<void()> act = [] {}) {
    auto listener = std::make_shared<Recorder>(log_, name, std::move(act));
    grid_.AddListener(listener);
    return listener;
  }

  /// What is heard when a cell of `row` is set.
  std::string Heard(std::int32_t row) {
    log_.clear();
    grid_.Setvalue(row, 2, row);
    return log_;
  }

  Grid grid_;
  std::string log_;
};

TEST_F(GridEvents, ComeFromASuccessfulSetvalueInTheOrderOfTheListeners) {
  const auto a = Listen("a", [&] { log_ += std::to_string(grid_.GetValue(7, 2)) + " "; });
  Listen("b");
  grid_.AddListener(a);
  grid_.AddListener(nullptr);
  EXPECT_EQ(Heard(7), "a7,2 7.000000 b7,2 ");
  log_.clear();
  EXPECT_FALSE(grid_.Setvalue(9, 3, 1));
  EXPECT_EQ(ErrorOf([&] { grid_.Setvalue(-1, 0, 1); }), 9);
  grid_.SetRows(20);
  grid_.RemaveItem(0);
  grid_.ResetRow(0);
  grid_.Clear();
  EXPECT_EQ(log_, "");
  grid_.RemoveListener(*a);
  grid_.RemoveListener(*a);
  EXPECT_EQ(Heard(1), "b1,2 ");
}

TEST_F(GridEvents, AListenerMayCallTheGrid) {
  Listen("a", [&] {
    if (grid_.Rows() < 4) grid_.Setvalue(grid_.Rows(), 0, 1);
    grid_.SetRows(4);
  });
  Listen("b");
  EXPECT_EQ(Heard(1), "a1,2 a2,0 a3,0 b3,0 b2,0 b1,2 ");
}

TEST_F(GridEvents, AListenerMayRemoveItselfAndLivesToTheEndOfItsEvent) {
  std::weak_ptr<Recorder> a;
  a = Listen("a", [&] {
    grid_.RemoveListener(*a.lock());
    EXPECT_FALSE(a.expired());
  });
  Listen("b");
  EXPECT_EQ(Heard(1), "a1,2 b1,2 ");
  EXPECT_TRUE(a.expired());
  EXPECT_EQ(Heard(1), "b1,2 ");
}

TEST_F(GridEvents, AListenerMayRemoveAndAddOthersInsideAnInnerEvent) {
  const auto joining = std::make_shared<Recorder>(log_, "n", [] {});
  std::shared_ptr<Recorder> b;
  Listen("a", [&] {
    if (grid_.Rows() < 3) grid_.Setvalue(2, 0, 1);
    grid_.RemoveListener(*b);
    grid_.AddListener(joining);
  });
  b = Listen("b");
  Listen("c");
  EXPECT_EQ(Heard(1), "a1,2 a2,0 c2,0 c1,2 ") << "neither one that left nor one that joined";
  EXPECT_EQ(Heard(1), "a1,2 c1,2 n1,2 ");
}

TEST_F(GridEvents, AListenerThatThrowsDoesSoToTheCallerOfSetvalue) {
  const auto a = Listen("a", [] { throw std::runtime_error("no"); });
  Listen("b");
  EXPECT_THROW(grid_.Setvalue(4, 1, 6.5), std::runtime_error);
  EXPECT_EQ(log_, "a4,1 ");
  EXPECT_EQ(grid_.GetValue(4, 1), 6.5);
  grid_.RemoveListener(*a);
  EXPECT_EQ(Heard(1), "b1,2 ");
}

}  // namespace
}  // namespace ZQ7Standard
