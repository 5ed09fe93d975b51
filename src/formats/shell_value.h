#ifndef ZQ7STANDARD_SRC_FORMATS_SHELL_VALUE_H_
#define ZQ7STANDARD_SRC_FORMATS_SHELL_VALUE_H_

#include <optional>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// The text that a value stands for in a file of assignments, which a shell could read too: in
/// quotation marks, with backslashes before single characters, or bare. Nothing in it is run or
/// replaced. Returns nullopt if a quotation mark is missing.
std::optional<std::string> ShellValue(std::string_view value);

/// The path of one of the user's folders, such as "DESKTOP", by the text of user-dirs.dirs, in
/// which the last one counts: it is absolute, or below `home` if it begins with "$HOME". Returns
/// nullopt if there is none, or it is another path.
std::optional<std::string> UserFolder(std::string_view settings, std::string_view name,
                                      std::string_view home);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_SHELL_VALUE_H_
