#ifndef ZQ7STANDARD_PLATFORM_DESKTOP_H_
#define ZQ7STANDARD_PLATFORM_DESKTOP_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>

#include <memory>
#include <string_view>
#include <vector>

namespace ZQ7Standard {

/// The programs that a user has chosen for addresses, mail and documents. Raises 429 if
/// nobody sits at a display, or no program was chosen; nothing waits for what is opened.
class ZQ7STANDARD_EXPORT Desktop {
 public:
  virtual ~Desktop();

  /// Opens an address with the user's program for it: a whole one, percent-encoded. Raises 5
  /// for the address of a file that does not exist, or is a program itself.
  virtual void Open(std::string_view address) = 0;

  /// Begins a message by its mailto address (RFC 6068), with files attached: path texts.
  /// Raises 53 for one that does not exist.
  virtual void Compose(std::string_view address, const std::vector<Text>& attachments) = 0;

  /// Opens a new document of that name and content, which only the user may read.
  virtual void OpenDocument(std::string_view name, std::string_view bytes) = 0;
};

/// The desktop of the machine, as xdg-open and xdg-email know it. On Windows it is the shell's;
/// attachments go to the user's mail program by MAPI.
ZQ7STANDARD_EXPORT std::shared_ptr<Desktop> SystemDesktop(DriveMap drives = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_DESKTOP_H_
