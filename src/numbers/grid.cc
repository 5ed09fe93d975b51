#include <ZQ7Standard/GridValueObject.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <new>
#include <string>
#include <utility>

#include "base/raise.h"
#include "numbers/cell_table.h"

namespace ZQ7Standard {
namespace {

[[noreturn]] void RaiseNoCell(std::string_view operation, std::int32_t row, std::int32_t col) {
  Raise(Error::kSubscriptOutOfRange, {operation, row < 0 ? "Row" : "Col"}, row < 0 ? row : col);
}

}  // namespace

GridValueListener::~GridValueListener() = default;

void GridValueListener::DataChange() {}

/// While one lives, the places of the listeners stay as they are.
class GridValueObject::Event {
 public:
  explicit Event(GridValueObject& grid) : grid_(grid) { ++grid_.events_under_way_; }
  ~Event() {
    if (--grid_.events_under_way_ == 0) std::erase(grid_.listeners_, nullptr);
  }
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

 private:
  GridValueObject& grid_;
};

GridValueObject::GridValueObject() : cells_(std::make_unique<CellTable>()) {}

GridValueObject::~GridValueObject() = default;

bool GridValueObject::SetFirst(std::int32_t Rows, std::int32_t Cols, std::int32_t FixedCols,
                               std::int32_t FixedRows) {
  if (cols_ >= 0 || Cols <= 0 || Rows <= 0 || FixedCols < 0 || FixedRows < 0) return false;
  Resize(rows_, Cols, "SetFirst");
  if (FixedCols < cols_) fixed_cols_ = FixedCols;
  if (FixedRows < rows_) fixed_rows_ = FixedRows;
  return true;
}

void GridValueObject::SetRows(std::int32_t Rows) {
  if (Rows > 0 && Rows > fixed_rows_) Resize(Rows, std::max(cols_, 0), "SetRows");
}

void GridValueObject::SetCols(std::int32_t Cols) {
  if (cols_ < 0 && Cols > 0) Resize(rows_, Cols, "SetCols");
}

bool GridValueObject::Setvalue(std::int32_t Row, std::int32_t Col, double Value) {
  if (Col >= cols_) return false;
  if (Row >= rows_ || Row < 0 || Col < 0) [[unlikely]] {
    return SetvalueOutside(Row, Col, Value);
  }
  cells_->Row(Row)[Col] = Value;
  if (!listeners_.empty()) RaiseCellDataChange(Row, Col);
  return true;
}

double GridValueObject::GetValue(std::int32_t Row, std::int32_t Col) const {
  const std::int32_t row = std::min(Row, rows_);
  const std::int32_t col = std::min(Col, cols_);
  if (row < 0 || col < 0) RaiseNoCell("GetValue", Row, Col);
  return cells_->Row(row)[col];
}

void GridValueObject::RemaveItem(std::int32_t Row) {
  if (Row < 0 || Row >= rows_) return;
  for (std::int32_t row = Row; row < rows_; ++row) {
    std::ranges::copy(DataOfRow(row + 1), DataOfRow(row).begin());
  }
  Resize(rows_ - 1, cols_, "RemaveItem");
}

void GridValueObject::ResetRow(std::int32_t Row) {
  if (Row >= 0 && Row < rows_) std::ranges::fill(DataOfRow(Row), 0.0);
}

void GridValueObject::Clear() {
  Resize(fixed_rows_ + 1, cols_, "Clear");
  for (std::int32_t row = fixed_rows_; row <= rows_; ++row) {
    std::fill_n(cells_->Row(row) + fixed_cols_, cols_ + 1 - fixed_cols_, 0.0);
  }
}

double GridValueObject::SumCol(std::int32_t Col) const {
  if (Col >= cols_ || Col < fixed_cols_) return 0;
  double sum = 0;
  for (std::int32_t row = fixed_rows_; row < rows_; ++row) sum += cells_->Row(row)[Col];
  return sum;
}

double GridValueObject::SumRow(std::int32_t Row) const {
  if (Row >= rows_ || Row < fixed_rows_) return 0;
  double sum = 0;
  for (const double value : DataOfRow(Row)) sum += value;
  return sum;
}

void GridValueObject::AddListener(std::shared_ptr<GridValueListener> listener) {
  if (!listener || std::ranges::find(listeners_, listener) != listeners_.end()) return;
  listeners_.push_back(std::move(listener));
}

void GridValueObject::RemoveListener(const GridValueListener& listener) {
  const auto place =
      std::ranges::find(listeners_, &listener, &std::shared_ptr<GridValueListener>::get);
  if (place == listeners_.end()) return;
  const Event keeps_places(*this);
  place->reset();
}

/// Takes the number of rows and columns and the cells for them, the spare row
/// and column included, or raises 7 and changes nothing.
void GridValueObject::Resize(std::int64_t rows, std::int32_t cols, std::string_view operation) {
  try {
    if (rows > std::numeric_limits<std::int32_t>::max()) throw std::bad_alloc();
    const auto cell_rows = static_cast<std::size_t>(rows) + 1;
    if (cols == cols_) {
      cells_->Resize(cell_rows);
    } else {
      cells_ = std::make_unique<CellTable>(cell_rows, static_cast<std::size_t>(cols) + 1);
    }
  } catch (const std::bad_alloc&) {
    Raise(Error::kOutOfMemory, {operation},
          std::to_string(rows) + " rows of " + std::to_string(cols) + " columns");
  }
  rows_ = static_cast<std::int32_t>(rows);
  cols_ = cols;
}

std::span<double> GridValueObject::DataOfRow(std::int32_t row) const {
  if (cols_ <= fixed_cols_) return {};
  return {cells_->Row(row) + fixed_cols_, cells_->Row(row) + cols_};
}

/// `Setvalue` of a row past the last or a negative cell, kept apart for the speed
/// of all others.
bool GridValueObject::SetvalueOutside(std::int32_t row, std::int32_t col, double value) {
  if (row >= rows_) Resize(std::int64_t{row} + 1, cols_, "Setvalue");
  if (row < 0 || col < 0) RaiseNoCell("Setvalue", row, col);
  return Setvalue(row, col, value);
}

/// A place that comes during the event is not called, one that empties neither.
void GridValueObject::RaiseCellDataChange(std::int32_t row, std::int32_t col) {
  const Event event(*this);
  const std::size_t count = listeners_.size();
  for (std::size_t i = 0; i < count; ++i) {
    const std::shared_ptr<GridValueListener> listener = listeners_[i];
    if (listener) listener->CellDataChange(row, col);
  }
}

}  // namespace ZQ7Standard
