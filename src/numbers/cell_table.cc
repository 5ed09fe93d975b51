#include "numbers/cell_table.h"

#include <algorithm>
#include <limits>
#include <new>
#include <string>
#include <utility>

#include "base/raise.h"

namespace ZQ7Standard {

static_assert(std::numeric_limits<double>::is_iec559, "bytes of 0 are the number 0");

CellTable::CellTable(std::size_t rows, std::size_t width) : width_(width) {
  Resize(rows);
}

void CellTable::Resize(std::size_t rows) {
  if (width_ == 0) return;
  const std::size_t next_capacity = capacity_ + capacity_ / 2;
  if (rows > next_capacity) return MoveToNewCells(rows);
  if (rows > capacity_ && !Reallocate(next_capacity)) throw std::bad_alloc();
  if (rows > rows_) std::fill_n(cells_.get() + rows_ * width_, (rows - rows_) * width_, 0.0);
  rows_ = rows;
  // If this is refused, the larger block stays in use.
  if (2 * rows_ < capacity_) Reallocate(rows_);
}

CellTable::Cells CellTable::Zeros(std::size_t count) {
  Cells cells(static_cast<double*>(std::calloc(count, sizeof(double))));
  if (!cells) throw std::bad_alloc();
  return cells;
}

/// The cells of that many rows, if the machine can address them.
std::size_t CellTable::CountOf(std::size_t rows) const {
  constexpr std::size_t kMost = std::numeric_limits<std::size_t>::max() / sizeof(double);
  if (rows > kMost / width_) throw std::bad_alloc();
  return rows * width_;
}

void CellTable::MoveToNewCells(std::size_t rows) {
  Cells cells = Zeros(CountOf(rows));
  std::copy_n(cells_.get(), rows_ * width_, cells.get());
  cells_ = std::move(cells);
  rows_ = rows;
  capacity_ = rows;
}

/// Returns false and changes nothing if there is not enough memory.
bool CellTable::Reallocate(std::size_t capacity) {
  void* const cells = std::realloc(cells_.get(), CountOf(capacity) * sizeof(double));
  if (cells == nullptr) return false;
  static_cast<void>(cells_.release());
  cells_.reset(static_cast<double*>(cells));
  capacity_ = capacity;
  return true;
}

std::int32_t MakeRoom(std::unique_ptr<CellTable>& cells, std::int64_t rows, std::int32_t cols,
                      std::string_view operation) {
  try {
    if (rows > std::numeric_limits<std::int32_t>::max()) throw std::bad_alloc();
    const auto cell_rows = static_cast<std::size_t>(rows) + 1;
    const auto width = static_cast<std::size_t>(cols) + 1;
    if (cells->Width() == width) {
      cells->Resize(cell_rows);
    } else {
      cells = std::make_unique<CellTable>(cell_rows, width);
    }
  } catch (const std::bad_alloc&) {
    Raise(Error::kOutOfMemory, {operation},
          std::to_string(rows) + " rows of " + std::to_string(cols) + " columns");
  }
  return static_cast<std::int32_t>(rows);
}

}  // namespace ZQ7Standard
