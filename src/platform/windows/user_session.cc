#include "platform/windows/user_session.h"

#include <windows.h>

namespace ZQ7Standard {

bool HasVisibleDesktop() {
  USEROBJECTFLAGS flags{};
  return GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &flags, sizeof flags,
                                   nullptr) != 0 &&
         (flags.dwFlags & WSF_VISIBLE) != 0;
}

}  // namespace ZQ7Standard
