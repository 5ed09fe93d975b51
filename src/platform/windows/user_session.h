#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_USER_SESSION_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_USER_SESSION_H_

namespace ZQ7Standard {

/// Whether a user can see the windows of this process, as nobody sees those of services.
bool HasVisibleDesktop();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_USER_SESSION_H_
