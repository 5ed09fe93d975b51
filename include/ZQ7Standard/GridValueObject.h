#ifndef ZQ7STANDARD_GRIDVALUEOBJECT_H_
#define ZQ7STANDARD_GRIDVALUEOBJECT_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/GridValueListener.h>

#include <cstdint>
#include <memory>

namespace ZQ7Standard {

class CellTable;
class GridListeners;

/// The numbers behind a grid on the screen, with sums and a change event.
///
/// Rows and columns of doubles, counted from 0. The first `FixedRows` rows and
/// `FixedCols` columns are headings; the rest is the data, which sums, deletion and
/// blanking act on.
///
/// A new grid has one row, no headings, and columns not yet set: until they are, there
/// are no cells. Columns are set once; rows come and go. After the last row and column
/// there is a spare one, at the index `Rows` and `Cols`, that only `GetValue` shows: when
/// rows are dropped, the first of them becomes the spare row with what it holds, and
/// comes back with it. New cells are 0.
///
/// A size that the machine cannot hold raises 7 and changes nothing, whichever
/// operation asks for it. Appending n rows takes time in proportion to n, and
/// the memory kept is at most twice what the cells need.
///
/// An instance belongs to one thread at a time; distinct instances are
/// independent.
//
// The operations are defined in src/numbers/grid.cc.
class ZQ7STANDARD_EXPORT GridValueObject {
 public:
  GridValueObject();
  ~GridValueObject();
  GridValueObject(const GridValueObject&) = delete;
  GridValueObject& operator=(const GridValueObject&) = delete;

  std::int32_t Rows() const { return rows_; }  ///< The number of rows; 1 on a new grid.
  std::int32_t Cols() const { return cols_; }  ///< The number of columns; -1 until they are set.
  std::int32_t FixedRows() const { return fixed_rows_; }  ///< The number of heading rows.
  std::int32_t FixedCols() const { return fixed_cols_; }  ///< The number of heading columns.

  /// Sets the columns of a new grid, and its headings.
  ///
  /// Sets the columns and returns true if they are not set yet, `Rows` and `Cols` are
  /// above 0 and the headings 0 or more; else returns false and changes nothing.
  ///
  /// `Rows` is not kept, so that a grid filled by `Setvalue` has the rows it was given
  /// and no blank ones: a new grid still has one. `FixedCols` is kept if below `Cols`,
  /// `FixedRows` if below the rows that the grid has, so never more than 0 on a new one.
  bool SetFirst(std::int32_t Rows, std::int32_t Cols, std::int32_t FixedCols,
                std::int32_t FixedRows);

  /// Sets the number of rows.
  ///
  /// The number must be above 0 and above `FixedRows`; else nothing is done. Columns not
  /// yet set are then 0 for good, so set columns first (docs/surprises.md).
  void SetRows(std::int32_t Rows);

  /// Sets the number of columns, once.
  ///
  /// Does nothing when they are set already, or `Cols` is not above 0.
  void SetCols(std::int32_t Cols);

  /// Stores a number in a cell and tells the listeners.
  ///
  /// Returns true; false, changing nothing, if `Col` is not below `Cols`. A row past the
  /// last makes the grid grow up to it. Headings are ordinary cells, so hosts may keep
  /// numbers there that no sum counts. What a listener throws reaches the caller: the
  /// value is stored by then, and the listeners after it are not told.
  ///
  /// Raises 9 for a negative cell; a negative column in a row past the last makes the
  /// grid grow first, which gives a grid without columns the rows that `SetFirst` needs
  /// to keep `FixedRows`.
  bool Setvalue(std::int32_t Row, std::int32_t Col, double Value);

  /// The number in a cell.
  ///
  /// A row or column past the end reads the spare one, so that loops that run one too far
  /// read 0 instead of failing. Raises 9 for a negative cell, and for every cell until
  /// columns are set.
  double GetValue(std::int32_t Row, std::int32_t Col) const;

  /// Deletes a row.
  ///
  /// Heading rows are deleted too; does nothing if there is no such row. The data of the
  /// rows below moves up, the spare row's into the last. Heading columns and the spare
  /// column stay where they are, so that row numbers in a heading stay right.
  void RemaveItem(std::int32_t Row);

  /// Sets the data of a row to 0.
  ///
  /// Heading columns are left as they are; does nothing if there is no such row.
  void ResetRow(std::int32_t Row);

  /// Leaves the headings and one blank row.
  ///
  /// The heading columns keep what they hold.
  void Clear();

  /// The sum of a column's data.
  ///
  /// Added from the top down; 0 for a heading and for a column that is not there.
  double SumCol(std::int32_t Col) const;

  /// The sum of a row's data.
  ///
  /// Added from left to right; 0 for a heading and for a row that is not there.
  double SumRow(std::int32_t Row) const;

  /// Tells `listener` of every change from now on, after the earlier listeners; one added
  /// inside an event is told from the next on. Does nothing if it listens already or is
  /// null. The grid keeps it until it is removed.
  void AddListener(std::shared_ptr<GridValueListener> listener);

  /// Stops telling `listener`, even of the event under way. Does nothing if it does not
  /// listen.
  void RemoveListener(const GridValueListener& listener);

 private:
  std::int32_t rows_ = 1;
  std::int32_t cols_ = -1;
  std::int32_t fixed_rows_ = 0;
  std::int32_t fixed_cols_ = 0;
  std::unique_ptr<CellTable> cells_;
  std::unique_ptr<GridListeners> listeners_;  // null until the first one
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_GRIDVALUEOBJECT_H_
