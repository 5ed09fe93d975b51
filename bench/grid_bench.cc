#include <ZQ7Standard/GridValueObject.h>
#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <vector>

// A GridValueObject of 10,000 rows and 100 columns beside plain loops over a
// vector that holds the same cells, row by row.

namespace ZQ7Standard {
namespace {

constexpr std::int32_t kRows = 10'000;
constexpr std::int32_t kCols = 100;
constexpr std::int64_t kCells = std::int64_t{kRows} * kCols;

double Sample(std::int32_t row, std::int32_t col) {
  return row + col / 128.0;
}

void Fill(GridValueObject& grid) {
  grid.SetCols(kCols);
  for (std::int32_t row = 0; row < kRows; ++row) {
    for (std::int32_t col = 0; col < kCols; ++col) grid.Setvalue(row, col, Sample(row, col));
  }
}

void Fill(std::vector<double>& cells) {
  cells.resize(kCells);
  double* cell = cells.data();
  for (std::int32_t row = 0; row < kRows; ++row) {
    for (std::int32_t col = 0; col < kCols; ++col) *cell++ = Sample(row, col);
  }
}

void CountCells(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * kCells);
}

void BM_GridFillBySetvalue(benchmark::State& state) {
  for (auto _ : state) {
    GridValueObject grid;
    Fill(grid);
    benchmark::DoNotOptimize(grid);
  }
  CountCells(state);
}
BENCHMARK(BM_GridFillBySetvalue)->Unit(benchmark::kMicrosecond);

void BM_PlainFill(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<double> cells;
    Fill(cells);
    benchmark::DoNotOptimize(cells.data());
    benchmark::ClobberMemory();
  }
  CountCells(state);
}
BENCHMARK(BM_PlainFill)->Unit(benchmark::kMicrosecond);

/// The same by push_back, since the rows of a grid come one by one too.
void BM_PlainFillByAppending(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<double> cells;
    for (std::int32_t row = 0; row < kRows; ++row) {
      for (std::int32_t col = 0; col < kCols; ++col) cells.push_back(Sample(row, col));
    }
    benchmark::DoNotOptimize(cells.data());
    benchmark::ClobberMemory();
  }
  CountCells(state);
}
BENCHMARK(BM_PlainFillByAppending)->Unit(benchmark::kMicrosecond);

void BM_GridSumCol(benchmark::State& state) {
  GridValueObject grid;
  Fill(grid);
  for (auto _ : state) {
    for (std::int32_t col = 0; col < kCols; ++col) benchmark::DoNotOptimize(grid.SumCol(col));
  }
  CountCells(state);
}
BENCHMARK(BM_GridSumCol)->Unit(benchmark::kMicrosecond);

void BM_PlainSumCol(benchmark::State& state) {
  std::vector<double> cells;
  Fill(cells);
  for (auto _ : state) {
    for (std::size_t col = 0; col < kCols; ++col) {
      double sum = 0;
      for (std::size_t row = 0; row < kRows; ++row) sum += cells[row * kCols + col];
      benchmark::DoNotOptimize(sum);
    }
  }
  CountCells(state);
}
BENCHMARK(BM_PlainSumCol)->Unit(benchmark::kMicrosecond);

void BM_GridSumRow(benchmark::State& state) {
  GridValueObject grid;
  Fill(grid);
  for (auto _ : state) {
    for (std::int32_t row = 0; row < kRows; ++row) benchmark::DoNotOptimize(grid.SumRow(row));
  }
  CountCells(state);
}
BENCHMARK(BM_GridSumRow)->Unit(benchmark::kMicrosecond);

void BM_PlainSumRow(benchmark::State& state) {
  std::vector<double> cells;
  Fill(cells);
  for (auto _ : state) {
    for (std::size_t row = 0; row < kRows; ++row) {
      double sum = 0;
      for (std::size_t col = 0; col < kCols; ++col) sum += cells[row * kCols + col];
      benchmark::DoNotOptimize(sum);
    }
  }
  CountCells(state);
}
BENCHMARK(BM_PlainSumRow)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace ZQ7Standard
