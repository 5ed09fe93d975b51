#include <ZQ7Standard/GridValueObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <limits>
#include <random>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "tests/support/fakes.h"

namespace ZQ7Standard {
namespace {

using Grid = GridValueObject;
using Shape = std::array<int, 4>;  // rows, columns, heading rows, heading columns

constexpr Shape kNew = {1, -1};
constexpr std::int32_t kLast32 = std::numeric_limits<std::int32_t>::max();

Shape ShapeOf(const Grid& grid) {
  return {grid.Rows(), grid.Cols(), grid.FixedRows(), grid.FixedCols()};
}

/// 6 rows and 4 columns with 2 heading rows and 1 heading column; each cell holds its row and
/// column, such as 31 for the second in the fourth row.
void MakeHeadings(Grid& grid) {
  EXPECT_EQ(ErrorOf([&] { grid.Setvalue(5, -2, 0); }), 9);
  EXPECT_TRUE(grid.SetFirst(1, 4, 1, 2));
  for (int cell = 0; cell < 24; ++cell) grid.Setvalue(cell / 4, cell % 4, cell / 4 * 10 + cell % 4);
}

TEST(GridValueObject, TakesItsShape) {
  // Rows, columns, heading columns, heading rows, and the resulting shape.
  const std::pair<Shape, Shape> firsts[] = {{{10, 5, 1, 1}, {1, 5, 0, 1}}, {{1, 5, 5, 0}, {1, 5}},
                                            {{1, 0, 0, 0}, kNew},          {{0, 5, 0, 0}, kNew},
                                            {{1, 5, -1, 0}, kNew},         {{1, 5, 0, -1}, kNew}};
  for (const auto& [given, expected] : firsts) {
    Grid grid;
    EXPECT_EQ(grid.SetFirst(given[0], given[1], given[2], given[3]), expected != kNew);
    EXPECT_EQ(ShapeOf(grid), expected) << testing::PrintToString(given);
  }
  const auto remove = [](Grid& g, int count) {
    while (count-- > 0) g.RemaveItem(0);
  };
  // clang-format off
  const std::tuple<const char*, std::function<void(Grid&)>, Shape> cases[] = {
      {"new", [](Grid& g) { g.SetRows(0); g.SetCols(0); g.Clear(); }, kNew},
      {"columns once", [](Grid& g) { g.SetCols(5); g.SetCols(6); }, {1, 5}},
      {"nor first", [](Grid& g) { g.SetCols(5); EXPECT_FALSE(g.SetFirst(9, 6, 1, 0)); }, {1, 5}},
      {"heading rows below the rows", MakeHeadings, {6, 4, 2, 1}},
      {"rows first: no columns", [](Grid& g) { g.SetRows(4); g.SetCols(3); }, {4, 0}},
      {"only heading rows", [](Grid& g) { MakeHeadings(g); g.SetRows(2); }, {6, 4, 2, 1}},
      {"a row more", [](Grid& g) { g.SetCols(5); EXPECT_TRUE(g.Setvalue(7, 2, 3)); }, {8, 5}},
      {"no column more", [](Grid& g) { g.SetCols(5); EXPECT_FALSE(g.Setvalue(3, 5, 1)); }, {1, 5}},
      {"no column is below none", [](Grid& g) { EXPECT_FALSE(g.Setvalue(3, -1, 1)); }, kNew},
      {"the only row", [&](Grid& g) { remove(g, 2); }, {0, -1}},
      {"no such row", [](Grid& g) { g.SetCols(2); g.RemaveItem(1); g.RemaveItem(-1); }, {1, 2}},
      {"heading rows go", [&](Grid& g) { MakeHeadings(g); remove(g, 5); }, {1, 4, 2, 1}},
      {"and come back", [&](Grid& g) { MakeHeadings(g); remove(g, 6); g.Clear(); }, {3, 4, 2, 1}},
  };
  // clang-format on
  for (const auto& [reason, act, expected] : cases) {
    Grid grid;
    act(grid);
    EXPECT_EQ(ShapeOf(grid), expected) << reason;
  }
}

// What the plain model below does not cover.
TEST(GridValueObject, KeepsItsCells) {
  Grid grid;
  MakeHeadings(grid);
  EXPECT_EQ(grid.SumCol(1), 21 + 31 + 41 + 51);
  EXPECT_EQ(grid.SumRow(2), 21 + 22 + 23);
  EXPECT_EQ(grid.SumCol(0) + grid.SumRow(1) + grid.SumCol(-1) + grid.SumRow(-1), 0) << "headings";
  grid.SetRows(4);
  EXPECT_EQ(grid.GetValue(100, 3), 43) << "the first row dropped is the spare row";
  EXPECT_EQ(grid.GetValue(100, 100), 0) << "a spare cell of the spare row";
  grid.RemaveItem(2);
  grid.ResetRow(-1);
  EXPECT_EQ(grid.GetValue(2, 0), 20) << "heading columns do not move up";
  EXPECT_EQ(grid.GetValue(3, 1), 41) << "the spare row does and stays";
  for (int i = 0; const double value : {1.0, 1e16, -1e16}) {
    grid.Setvalue(2, 1 + i, value);
    grid.Setvalue(2 + i++, 1, value);
  }
  EXPECT_EQ(grid.SumRow(2), 0) << "from left to right";
  EXPECT_EQ(grid.SumCol(1), 0) << "from the top down";
}

// With 2 rows of 40,000 columns: no machine can address 2^31 such rows.
TEST(GridValueObject, RaisesForCellsThatCannotBe) {
  // Row, column, error, rows after the call.
  const Shape cases[] = {
      {-1, 0, 9, 2}, {0, -1, 9, 2}, {4, -1, 9, 5}, {kLast32, 0, 7, 2}, {kLast32 - 1, 0, 7, 2}};
  for (const auto& [r, c, error, rows] : cases) {
    Grid grid;
    grid.SetCols(40'000);
    grid.Setvalue(1, 39'999, 5);
    EXPECT_EQ(ErrorOf([&, r = r, c = c] { grid.Setvalue(r, c, 1); }), error) << r << ", " << c;
    EXPECT_EQ(ErrorOf([&] { grid.SetRows(kLast32); }), 7);
    EXPECT_EQ(ErrorOf([&] { grid.GetValue(-1, 0); }), 9);
    EXPECT_EQ(ErrorOf([&] { grid.GetValue(0, -1); }), 9);
    EXPECT_EQ(ShapeOf(grid), (Shape{rows, 40'000})) << r << ", " << c;
    EXPECT_EQ(grid.SumCol(39'999), 5) << r << ", " << c;
  }
  Grid grid;  // without columns
  EXPECT_EQ(ErrorOf([&] { grid.GetValue(0, 0); }), 9);
  EXPECT_EQ(ErrorOf([&] { grid.Setvalue(kLast32 - 1, -2, 0); }), 9);
  EXPECT_EQ(ErrorOf([&] { grid.SetCols(kLast32); }), 7);
  EXPECT_EQ(ErrorOf([&] { grid.SetFirst(1, kLast32, 1, 1); }), 7);
  EXPECT_EQ(ShapeOf(grid), (Shape{kLast32, -1}));
}

/// The rules in plain form, on rows with room for 5 cells.
class Model {
 public:
  explicit Model(const Grid& grid)
      : cols_(grid.Cols()), fixed_rows_(grid.FixedRows()), fixed_cols_(grid.FixedCols()) {
    Resize(grid.Rows());
    for (int r = 0; r <= rows_; ++r) {
      for (int c = 0; c <= cols_; ++c) Row(r)[c] = grid.GetValue(r, c);
    }
  }

  void SetRows(int rows) {
    if (rows > fixed_rows_) Resize(rows);
  }
  void Setvalue(int row, int col, double value) {
    if (col >= cols_) return;
    if (row >= rows_) Resize(row + 1);
    Row(row)[col] = value;
  }
  void RemaveItem(int row) {
    for (int r = row; r < rows_; ++r) std::copy_n(Data(r + 1), cols_ - fixed_cols_, Data(r));
    if (row < rows_) Resize(rows_ - 1);
  }
  void ResetRow(int row) {
    if (row < rows_) std::fill_n(Data(row), cols_ - fixed_cols_, 0);
  }
  void Clear() {
    Resize(fixed_rows_ + 1);
    for (int r = fixed_rows_; r <= rows_; ++r) std::fill_n(Data(r), cols_ + 1 - fixed_cols_, 0);
  }
  void ExpectSame(const Grid& grid) {
    ASSERT_EQ(grid.Rows(), rows_);
    double sums[5] = {};
    for (int r = 0; r <= rows_; ++r) {
      double sum = 0;
      for (int c = 0; c <= cols_; ++c) {
        ASSERT_EQ(grid.GetValue(r, c), Row(r)[c]) << "row " << r << ", column " << c;
        if (r < fixed_rows_ || r == rows_ || c < fixed_cols_ || c == cols_) continue;
        sum += Row(r)[c];
        sums[c] += Row(r)[c];
      }
      ASSERT_EQ(grid.SumRow(r), sum) << "row " << r;
    }
    for (int c = 0; c <= cols_; ++c) ASSERT_EQ(grid.SumCol(c), sums[c]) << "column " << c;
  }

 private:
  double* Row(int row) { return cells_.at(static_cast<std::size_t>(row)).data(); }
  double* Data(int row) { return Row(row) + fixed_cols_; }
  void Resize(int rows) {
    rows_ = rows;
    cells_.resize(static_cast<std::size_t>(rows) + 1);
  }

  int rows_ = 0, cols_, fixed_rows_, fixed_cols_;
  std::vector<std::array<double, 5>> cells_;
};

/// One operation, on a grid or its model.
void Act(auto& table, int operation, int row, int col, double value) {
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
      const int operation = below(40), row = below(grid.Rows() + 3), col = below(grid.Cols() + 2);
      Act(grid, operation, row, col, step / 8.0);
      Act(model, operation, row, col, step / 8.0);
      model.ExpectSame(grid);
      ASSERT_FALSE(HasFatalFailure()) << "step " << step;
    }
  }
}

/// Calls a function for each changed cell.
struct Recorder : GridValueListener {
  explicit Recorder(std::function<void(int, int)> act) : hear(std::move(act)) {}
  void DataChange() override { ADD_FAILURE(); }
  void CellDataChange(std::int32_t Row, std::int32_t Col) override { hear(Row, Col); }
  std::function<void(int, int)> hear;
};

struct GridEvents : testing::Test {
  GridEvents() { grid.SetCols(3); }

  /// A listener that records what it hears and then acts.
  std::shared_ptr<Recorder> Listen(
      std::string name, std::function<void()> act = [] {}) {
    auto listener = std::make_shared<Recorder>([this, name, act](int row, int col) {
      log += name + std::to_string(row) + "," + std::to_string(col) + " ";
      act();
    });
    grid.AddListener(listener);
    return listener;
  }

  /// What is heard when a cell of `row` is set.
  std::string Heard(std::int32_t row) {
    log.clear();
    grid.Setvalue(row, 2, row);
    return log;
  }

  Grid grid;
  std::string log;
};

TEST_F(GridEvents, ComeFromASuccessfulSetvalueInTheOrderOfTheListeners) {
  const auto a = Listen("a", [&] { log += std::to_string(grid.GetValue(7, 2)) + " "; });
  Listen("b");
  grid.AddListener(a);
  grid.AddListener(nullptr);
  EXPECT_EQ(Heard(7), "a7,2 7.000000 b7,2 ");
  log.clear();
  EXPECT_FALSE(grid.Setvalue(9, 3, 1));
  EXPECT_EQ(ErrorOf([&] { grid.Setvalue(-1, 0, 1); }), 9);
  for (int operation = 0; operation < 4; ++operation) Act(grid, operation, 1, 0, 0);
  EXPECT_EQ(log, "");
  for (int i = 0; i < 2; ++i) grid.RemoveListener(*a);
  EXPECT_EQ(Heard(1), "b1,2 ");
}

TEST_F(GridEvents, AListenerMayRemoveItselfAndLivesToTheEndOfItsEvent) {
  std::weak_ptr<Recorder> a;
  a = Listen("a", [&] {
    grid.RemoveListener(*a.lock());
    EXPECT_FALSE(a.expired());
  });
  Listen("b");
  EXPECT_EQ(Heard(1), "a1,2 b1,2 ");
  EXPECT_TRUE(a.expired());
  EXPECT_EQ(Heard(1), "b1,2 ");
}

TEST_F(GridEvents, AListenerMayChangeTheGridAndTheListenersInsideAnInnerEvent) {
  std::shared_ptr<Recorder> b, joining;
  Listen("a", [&] {
    if (grid.Rows() < 4) grid.Setvalue(grid.Rows(), 0, 1);
    grid.SetRows(4);
    grid.RemoveListener(*b);
    if (!joining) joining = Listen("n");
  });
  b = Listen("b");
  Listen("c");
  EXPECT_EQ(Heard(1), "a1,2 a2,0 a3,0 c3,0 c2,0 c1,2 ") << "none that left and none that joined";
  EXPECT_EQ(Heard(1), "a1,2 c1,2 n1,2 ");
}

TEST_F(GridEvents, AListenerThatThrowsDoesSoToTheCallerOfSetvalue) {
  const auto a = Listen("a", [] { throw std::runtime_error("no"); });
  Listen("b");
  EXPECT_THROW(grid.Setvalue(4, 1, 6.5), std::runtime_error);
  EXPECT_EQ(log, "a4,1 ");
  EXPECT_EQ(grid.GetValue(4, 1), 6.5);
  grid.RemoveListener(*a);
  EXPECT_EQ(Heard(1), "b1,2 ");
}

}  // namespace
}  // namespace ZQ7Standard
