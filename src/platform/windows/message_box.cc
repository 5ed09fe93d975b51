#include <ZQ7Standard/platform/message_box.h>
#include <windows.h>

#include <string>

#include "platform/windows/user_session.h"
#include "platform/windows/wide_text.h"

// The system's macro would rename the interface.
#undef MessageBox

namespace ZQ7Standard {
namespace {

class BoxOnScreen final : public MessageBox {
 public:
  /// Shows the window before the program's own, which it disables meanwhile.
  void Show(const Message& message) override {
    const UINT icon = message.icon == MessageIcon::kCritical ? MB_ICONERROR : 0;
    MessageBoxW(GetActiveWindow(), Wide(message.text).c_str(), Wide(message.title).c_str(),
                MB_OK | icon | MB_TASKMODAL | MB_SETFOREGROUND);
  }
};

/// Whether the program is one with windows, rather than of the command line.
bool HasWindows() {
  const auto* const program = reinterpret_cast<const char*>(GetModuleHandleW(nullptr));
  const auto* const header = reinterpret_cast<const IMAGE_DOS_HEADER*>(program);
  const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(program + header->e_lfanew);
  return headers->OptionalHeader.Subsystem == IMAGE_SUBSYSTEM_WINDOWS_GUI;
}

}  // namespace

std::shared_ptr<MessageBox> SystemMessageBox() {
  if (HasWindows() && HasVisibleDesktop()) return std::make_shared<BoxOnScreen>();
  return ErrorStreamMessageBox();
}

}  // namespace ZQ7Standard
