#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_MAIL_COMPOSER_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_MAIL_COMPOSER_H_

#include <string>
#include <string_view>
#include <vector>

namespace ZQ7Standard {

/// Begins a message by its mailto address in the user's mail program, with files attached. Raises
/// 429 if there is no such program.
void ComposeMail(std::string_view address, std::vector<std::wstring> files);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_MAIL_COMPOSER_H_
