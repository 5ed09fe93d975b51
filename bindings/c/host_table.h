#ifndef ZQ7STANDARD_BINDINGS_C_HOST_TABLE_H_
#define ZQ7STANDARD_BINDINGS_C_HOST_TABLE_H_

#include "failures.h"

namespace ZQ7C {

/// Raises 5 for a table that a host did not fill.
template <typename Table, typename... Functions>
void CheckTable(const Table* table, Functions Table::*... functions) {
  Require(table != nullptr, "no table of functions");
  Require(table->size >= sizeof(Table), "a table with a wrong size");
  Require(((table->*functions != nullptr) && ...), "a table that lacks a function");
}

/// A copy of a host's table, which releases the host's context.
template <typename Table>
class HostTable {
 public:
  explicit HostTable(const Table& table) : table_(table) {}
  ~HostTable() {
    if (table_.release != nullptr) table_.release(table_.context);
  }
  HostTable(const HostTable&) = delete;
  HostTable& operator=(const HostTable&) = delete;

  const Table* operator->() const { return &table_; }

 private:
  Table table_;
};

}  // namespace ZQ7C

#endif  // ZQ7STANDARD_BINDINGS_C_HOST_TABLE_H_
