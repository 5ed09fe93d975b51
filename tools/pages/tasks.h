#ifndef ZQ7STANDARD_TOOLS_PAGES_TASKS_H_
#define ZQ7STANDARD_TOOLS_PAGES_TASKS_H_

#include <cstddef>
#include <span>
#include <string_view>

/// What developers of office programs look for, and the operations that do it.
namespace ZQ7Pages {

struct Task {
  std::string_view task;
  std::string_view operations;  ///< their full names, separated by blanks
  std::size_t example = 0;      ///< which of the first operation's examples to show
};

struct Subject {
  std::string_view name;
  std::span<const Task> tasks;
};

std::span<const Subject> Subjects();

}  // namespace ZQ7Pages

#endif  // ZQ7STANDARD_TOOLS_PAGES_TASKS_H_
