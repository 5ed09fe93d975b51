#ifndef ZQ7STANDARD_GRIDVALUELISTENER_H_
#define ZQ7STANDARD_GRIDVALUELISTENER_H_

#include <ZQ7Standard/Export.h>

#include <cstdint>

namespace ZQ7Standard {

/// What a host implements to be told of changes to a `GridValueObject`. It is called on
/// the thread of the operation, inside it.
class ZQ7STANDARD_EXPORT GridValueListener {
 public:
  virtual ~GridValueListener();

  /// Declared only, and never raised.
  ///
  /// It keeps its place in the interface for hosts that implement it; a change of any
  /// cell comes as `CellDataChange`.
  virtual void DataChange();

  /// A cell was given a value. Rows and columns count from 0.
  ///
  /// The cell at (`Row`, `Col`) already holds it. The listener may call any operation of
  /// the grid, add and remove listeners, itself included, and throw; it must not destroy
  /// the grid.
  virtual void CellDataChange(std::int32_t Row, std::int32_t Col) = 0;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_GRIDVALUELISTENER_H_
