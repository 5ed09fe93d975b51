#ifndef ZQ7STANDARD_MODULES_H_
#define ZQ7STANDARD_MODULES_H_

#include <ZQ7Standard/Export.h>

#include <string>
#include <string_view>
#include <vector>

namespace ZQ7Standard {

/// A part of the library with dependencies of its own: a shared library in the folder
/// zq7standard/ beside this one, loaded on first use. On Windows printing is always ready: it
/// needs the system alone.
struct ModuleStatus {
  std::string_view name;
  std::string problem = {};  ///< why it cannot be used, in UTF-8; empty if it can
};

/// Returns every module that the library knows, each loaded to see whether it can be.
ZQ7STANDARD_EXPORT std::vector<ModuleStatus> Modules();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_H_
