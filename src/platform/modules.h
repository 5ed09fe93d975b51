#ifndef ZQ7STANDARD_SRC_PLATFORM_MODULES_H_
#define ZQ7STANDARD_SRC_PLATFORM_MODULES_H_

#include <ZQ7Standard/platform/mail_transport.h>
#include <ZQ7Standard/platform/printers.h>

#include <filesystem>
#include <string>
#include <string_view>

/// Modules hold what needs libraries that most hosts never use. A shared core loads a module on
/// first use; a static core has its modules linked in.
namespace ZQ7Standard {

/// The functions of the printing module: `SystemPrinters` and `SystemPictureEncoder` call them.
struct PrintingFunctions {
  std::shared_ptr<PrinterList> (*system_printers)(std::filesystem::path pdf_folder);
  std::string (*to_jpeg)(std::string_view picture, int quality);
};

/// The functions of the network module.
struct NetworkFunctions {
  std::shared_ptr<MailTransport> (*mail_transport)(MailOptions options, DriveMap drives);
};

/// The functions of a module, or the reason why they are missing.
template <typename Functions>
struct ModuleOf {
  const Functions* functions = nullptr;
  std::string problem = {};
};

/// Defined by the loader, by the modules themselves if they are linked in, by
/// src/platform/no_printing.cc and no_network.cc if they are not built, and by
/// src/platform/windows/printing_module.cc. The first call loads the module and remembers the
/// outcome.
const ModuleOf<PrintingFunctions>& PrintingModule();
const ModuleOf<NetworkFunctions>& NetworkModule();

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_MODULES_H_
