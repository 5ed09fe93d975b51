#ifndef ZQ7STANDARD_BINDINGS_SQLITE_CONNECTION_H_
#define ZQ7STANDARD_BINDINGS_SQLITE_CONNECTION_H_

#include <ZQ7Standard/automation/tables.h>

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace ZQ7SQLite {

class ConnectionConvention;

/// What the functions of a database connection share. The environment has no say: the same file
/// gives the same results on every machine.
class Connection {
 public:
  Connection();

  /// The name of the date convention; at first "dmy-buddhist".
  const std::string& Convention() const;
  /// Raises 5 if there is no convention of that name.
  void SetConvention(std::string_view name);

  ZQ7Standard::Automation::RowObjects& Objects() { return objects_; }

 private:
  std::shared_ptr<ConnectionConvention> convention_;
  ZQ7Standard::Automation::RowObjects objects_;
};

}  // namespace ZQ7SQLite

#endif  // ZQ7STANDARD_BINDINGS_SQLITE_CONNECTION_H_
