#include <ZQ7Standard/GridValueObject.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

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

/// The listeners of a grid, which may be added and removed during an event.
class GridListeners {
 public:
  /// Ignores a listener that is null or already added.
  void Add(std::shared_ptr<GridValueListener> listener);
  void Remove(const GridValueListener& listener);

  /// Notifies all that were listening before the event and have not left since.
  void TellCellDataChange(std::int32_t row, std::int32_t col);

 private:
  class Event;

  // One that leaves inside an event leaves its place empty until the end of the last event.
  std::vector<std::shared_ptr<GridValueListener>> places_;
  int events_under_way_ = 0;
};

/// While one lives, the places of the listeners stay as they are.
class GridListeners::Event {
 public:
  explicit Event(GridListeners& listeners) : listeners_(listeners) {
    ++listeners_.events_under_way_;
  }
  ~Event() {
    if (--listeners_.events_under_way_ == 0) std::erase(listeners_.places_, nullptr);
  }
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

 private:
  GridListeners& listeners_;
};

void GridListeners::Add(std::shared_ptr<GridValueListener> listener) {
  if (!listener || std::ranges::find(places_, listener) != places_.end()) return;
  places_.push_back(std::move(listener));
}

void GridListeners::Remove(const GridValueListener& listener) {
  const auto place =
      std::ranges::find(places_, &listener, &std::shared_ptr<GridValueListener>::get);
  if (place == places_.end()) return;
  const Event keeps_places(*this);
  place->reset();
}

void GridListeners::TellCellDataChange(std::int32_t row, std::int32_t col) {
  const Event event(*this);
  const std::size_t count = places_.size();
  for (std::size_t i = 0; i < count; ++i) {
    const std::shared_ptr<GridValueListener> listener = places_[i];
    if (listener) listener->CellDataChange(row, col);
  }
}

GridValueObject::GridValueObject() : cells_(std::make_unique<CellTable>()) {}

GridValueObject::~GridValueObject() = default;

bool GridValueObject::SetFirst(std::int32_t Rows, std::int32_t Cols, std::int32_t FixedCols,
                               std::int32_t FixedRows) {
  if (cols_ >= 0 || Cols <= 0 || Rows <= 0 || FixedCols < 0 || FixedRows < 0) return false;
  MakeRoom(cells_, rows_, Cols, "SetFirst");
  cols_ = Cols;
  if (FixedCols < cols_) fixed_cols_ = FixedCols;
  if (FixedRows < rows_) fixed_rows_ = FixedRows;
  return true;
}

void GridValueObject::SetRows(std::int32_t Rows) {
  if (Rows <= 0 || Rows <= fixed_rows_) return;
  const std::int32_t cols = std::max(cols_, 0);
  rows_ = MakeRoom(cells_, Rows, cols, "SetRows");
  cols_ = cols;
}

void GridValueObject::SetCols(std::int32_t Cols) {
  if (cols_ >= 0 || Cols <= 0) return;
  MakeRoom(cells_, rows_, Cols, "SetCols");
  cols_ = Cols;
}

bool GridValueObject::Setvalue(std::int32_t Row, std::int32_t Col, double Value) {
  if (Col >= cols_) return false;
  if (Row >= rows_ || Row < 0 || Col < 0) [[unlikely]] {
    // Kept apart for the speed of all other cells.
    struct Outside {
      [[gnu::noinline]] static bool Set(GridValueObject& grid, std::int32_t row, std::int32_t col,
                                        double value) {
        if (row >= grid.rows_) {
          grid.rows_ = MakeRoom(grid.cells_, std::int64_t{row} + 1, grid.cols_, "Setvalue");
        }
        if (row < 0 || col < 0) RaiseNoCell("Setvalue", row, col);
        return grid.Setvalue(row, col, value);
      }
    };
    return Outside::Set(*this, Row, Col, Value);
  }
  cells_->Row(Row)[Col] = Value;
  if (listeners_) listeners_->TellCellDataChange(Row, Col);
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
  for (std::int32_t row = Row; row < rows_ && cols_ > fixed_cols_; ++row) {
    std::copy(cells_->Row(row + 1) + fixed_cols_, cells_->Row(row + 1) + cols_,
              cells_->Row(row) + fixed_cols_);
  }
  rows_ = MakeRoom(cells_, rows_ - 1, cols_, "RemaveItem");
}

void GridValueObject::ResetRow(std::int32_t Row) {
  if (Row < 0 || Row >= rows_ || cols_ <= fixed_cols_) return;
  std::fill(cells_->Row(Row) + fixed_cols_, cells_->Row(Row) + cols_, 0.0);
}

void GridValueObject::Clear() {
  rows_ = MakeRoom(cells_, fixed_rows_ + 1, cols_, "Clear");
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
  const double* const cells = cells_->Row(Row);
  for (std::int32_t col = fixed_cols_; col < cols_; ++col) sum += cells[col];
  return sum;
}

void GridValueObject::AddListener(std::shared_ptr<GridValueListener> listener) {
  if (!listeners_) listeners_ = std::make_unique<GridListeners>();
  listeners_->Add(std::move(listener));
}

void GridValueObject::RemoveListener(const GridValueListener& listener) {
  if (listeners_) listeners_->Remove(listener);
}

}  // namespace ZQ7Standard
