#ifndef ZQ7STANDARD_TOOLS_PAGES_WRITERS_H_
#define ZQ7STANDARD_TOOLS_PAGES_WRITERS_H_

#include <ZQ7Standard/automation/catalogue.h>

#include "page.h"

/// The writers of the pages' fields. Bindings add theirs here, and a row to the table in
/// write_pages.cc.
namespace ZQ7Pages {

/// Of the manual page zq7(1).
Fields ManPageFields();

/// Of the completion for bash.
Fields CompletionFields();

/// Of the page of a class in docs/reference.
Fields ClassFields(const ZQ7Standard::Automation::ClassInfo& owner);

/// Of the page of all enumerations.
Fields EnumerationsFields();

/// Of the index by task and by class. Throws `WrongUse` if a task names an operation that does
/// not exist.
Fields IndexFields();

/// Of the C# classes.
Fields CSharpFields();

/// Of the PostgreSQL extension.
Fields PostgresqlFields();

/// Of the automation server of Windows.
Fields WindowsFields();

}  // namespace ZQ7Pages

#endif  // ZQ7STANDARD_TOOLS_PAGES_WRITERS_H_
