#ifndef ZQ7STANDARD_SRC_NUMBERS_CELL_TABLE_H_
#define ZQ7STANDARD_SRC_NUMBERS_CELL_TABLE_H_

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace ZQ7Standard {

/// The cells of a grid: rows of equal width, added and removed at the end.
///
/// Memory comes from `std::calloc`, because large blocks occupy no memory until they are written
/// to, and grows by `std::realloc`, because it can enlarge a large block without holding it twice.
class CellTable {
 public:
  CellTable() = default;

  /// A table of zeros. Throws std::bad_alloc if it does not fit in memory.
  CellTable(std::size_t rows, std::size_t width);

  /// Drops the rows from `rows` on, or adds rows of zeros up to `rows`. Throws std::bad_alloc if
  /// they do not fit in memory, and then changes nothing.
  void Resize(std::size_t rows);

  /// The number of cells in a row; 0 in a table without cells.
  std::size_t Width() const { return width_; }

  /// The first cell of a row.
  double* Row(std::int32_t row) { return cells_.get() + static_cast<std::size_t>(row) * width_; }

 private:
  struct Free {
    void operator()(double* cells) const { std::free(cells); }
  };
  using Cells = std::unique_ptr<double, Free>;

  static Cells Zeros(std::size_t count);
  std::size_t CountOf(std::size_t rows) const;
  void MoveToNewCells(std::size_t rows);
  bool Reallocate(std::size_t capacity);

  Cells cells_;
  std::size_t width_ = 0;  // cells
  std::size_t rows_ = 0;
  std::size_t capacity_ = 0;  // rows
};

/// Makes room for rows and columns, including the spare ones, and keeps their contents; raises 7
/// and changes nothing if there is not enough memory. Returns the rows.
std::int32_t MakeRoom(std::unique_ptr<CellTable>& cells, std::int64_t rows, std::int32_t cols,
                      std::string_view operation);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_NUMBERS_CELL_TABLE_H_
