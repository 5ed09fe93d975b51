#include <ZQ7Standard/GridValueObject.h>

#include <array>
#include <memory>
#include <numeric>
#include <vector>

#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

constexpr std::int32_t kRows = 10'000;
constexpr std::int32_t kCols = 100;
constexpr std::size_t kCells = std::size_t{kRows} * kCols;

double Sample(std::int32_t row, std::int32_t col) {
  return row + col / 128.0;
}

/// 0 to `count` - 1.
std::vector<std::int32_t> Indexes(std::int32_t count) {
  std::vector<std::int32_t> list(static_cast<std::size_t>(count));
  std::iota(list.begin(), list.end(), 0);
  return list;
}

std::unique_ptr<GridValueObject> FilledGrid() {
  auto grid = std::make_unique<GridValueObject>();
  grid->SetCols(kCols);
  for (std::int32_t row = 0; row < kRows; ++row) {
    for (std::int32_t col = 0; col < kCols; ++col) grid->Setvalue(row, col, Sample(row, col));
  }
  return grid;
}

/// The cells of that grid row by row, in a vector of the final size.
std::vector<double> FilledVector() {
  std::vector<double> cells(kCells);
  double* cell = cells.data();
  for (std::int32_t row = 0; row < kRows; ++row) {
    for (std::int32_t col = 0; col < kCols; ++col) *cell++ = Sample(row, col);
  }
  return cells;
}

/// The same in a vector that grows like the grid.
std::vector<double> GrownVector() {
  std::vector<double> cells;
  for (std::int32_t row = 0; row < kRows; ++row) {
    for (std::int32_t col = 0; col < kCols; ++col) cells.push_back(Sample(row, col));
  }
  return cells;
}

template <typename Fill>
void MeasureFill(benchmark::State& state, Fill fill) {
  Measure(state, std::array{kCells}, [fill](std::size_t /*cells*/) { return fill(); });
}

void FillGrid(benchmark::State& state) {
  MeasureFill(state, FilledGrid);
}
BENCHMARK(FillGrid)->Name("grid_fill/ours");

void FillVector(benchmark::State& state) {
  MeasureFill(state, FilledVector);
}
BENCHMARK(FillVector)->Name("grid_fill/vector");

void GrowVector(benchmark::State& state) {
  MeasureFill(state, GrownVector);
}
BENCHMARK(GrowVector)->Name("grid_fill/push_back");

void SumColGrid(benchmark::State& state) {
  const auto grid = FilledGrid();
  Measure(state, Indexes(kCols), [&grid](std::int32_t col) { return grid->SumCol(col); });
}
BENCHMARK(SumColGrid)->Name("sum_col/ours");

void SumColLoop(benchmark::State& state) {
  const std::vector<double> cells = FilledVector();
  Measure(state, Indexes(kCols), [&cells](std::int32_t col) {
    double sum = 0;
    for (auto i = static_cast<std::size_t>(col); i < kCells; i += kCols) sum += cells[i];
    return sum;
  });
}
BENCHMARK(SumColLoop)->Name("sum_col/loop");

void SumRowGrid(benchmark::State& state) {
  const auto grid = FilledGrid();
  Measure(state, Indexes(kRows), [&grid](std::int32_t row) { return grid->SumRow(row); });
}
BENCHMARK(SumRowGrid)->Name("sum_row/ours");

void SumRowLoop(benchmark::State& state) {
  const std::vector<double> cells = FilledVector();
  Measure(state, Indexes(kRows), [&cells](std::int32_t row) {
    const std::size_t first = static_cast<std::size_t>(row) * kCols;
    double sum = 0;
    for (std::size_t i = first; i < first + kCols; ++i) sum += cells[i];
    return sum;
  });
}
BENCHMARK(SumRowLoop)->Name("sum_row/loop");

}  // namespace
}  // namespace ZQ7Standard::Bench
