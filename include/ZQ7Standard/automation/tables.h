#ifndef ZQ7STANDARD_AUTOMATION_TABLES_H_
#define ZQ7STANDARD_AUTOMATION_TABLES_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/automation/catalogue.h>
#include <ZQ7Standard/automation/invoke.h>

#include <map>
#include <span>
#include <string>
#include <vector>

/// What hosts share that call operations for the rows of tables: databases and files.
namespace ZQ7Standard::Automation {

/// An operation that the rows of a table may call.
struct TableOperation {
  const ClassInfo* owner;
  const OperationInfo* operation;
  /// The operation's own name, or "BahtStringObject_MonthText" if another class keeps the name;
  /// unique, ignoring case.
  std::string name;
};

/// Every operation that a query may call as often as it likes, in the order of the catalogue:
/// none that draws random numbers or reaches outside the program. Of a name in two classes
/// `StandardObject` keeps the plain one, otherwise the class that comes first.
ZQ7STANDARD_EXPORT std::vector<TableOperation> TableOperations();

/// The objects that the rows of a table call. No call sees what another one left: an operation
/// whose effect is the instance is called on a new one. Belongs to one thread at a time.
class ZQ7STANDARD_EXPORT RowObjects {
 public:
  explicit RowObjects(Services services);

  /// Calls an operation of the catalogue's class `owner` with arguments in the order of its
  /// parameters. Raises what `Invoke` does.
  Value Call(const ClassInfo& owner, const OperationInfo& operation,
             std::span<const Value> arguments);

 private:
  Services services_;
  std::map<const ClassInfo*, Object> objects_;
};

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_AUTOMATION_TABLES_H_
