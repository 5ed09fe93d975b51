#ifndef ZQ7STANDARD_PLATFORM_PRINTERS_H_
#define ZQ7STANDARD_PLATFORM_PRINTERS_H_

#include <ZQ7Standard/Export.h>
#include <ZQ7Standard/Types.h>
#include <ZQ7Standard/platform/print_document.h>
#include <ZQ7Standard/platform/printer_settings.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace ZQ7Standard {

/// An installed printer. A host's own list must set all fields: `PrintObject` raises 482
/// if it needs the settings or the document and they are null.
struct Printer {
  Text device_name;
  std::shared_ptr<PrinterSettings> settings;
  std::shared_ptr<PrintDocument> document;
};

/// The installed printers, one of which is the current one. Failures raise 482.
class ZQ7STANDARD_EXPORT PrinterList {
 public:
  virtual ~PrinterList();

  /// All of them, in the order of the system. A printer has the same settings and
  /// document each time.
  virtual std::vector<Printer> Installed() = 0;

  /// The system's default printer until another is made current. Fails if no
  /// printer is installed.
  virtual Printer Current() = 0;

  virtual void MakeCurrent(const Printer& printer) = 0;

  /// Runs `steps`, in which `PrintObject` makes all calls of one operation on the list
  /// and its printers, and passes on what they throw. A list that asks a server overrides
  /// it to limit the time that they take together; others need not.
  virtual void DoOperation(const std::function<void()>& steps);
};

/// The printers of the machine: those of the CUPS server that the environment names, its
/// default one as current. If none answers or it has no printers, there is one named
/// "PDF" instead, which writes each document as a file to the folder `pdf_folder`, or if
/// that is empty to the user's documents folder. docs/printing.md
///
/// The list belongs to one thread at a time, and keeps its own current printer. A
/// document that is open when the list is destroyed is discarded. The server has 5
/// seconds for all that an operation asks, and 30 seconds to take a job. Nobody is asked
/// for a password: a server that asks for one has failed. Afterwards CUPS's password
/// callback for the thread is its default; a host with another one sets it again.
///
/// In a library built without ZQ7STANDARD_WITH_PRINTING no printer is installed.
///
/// On Windows they are the printers that the user has, with the user's default one as
/// current, and "PDF" is not among them. A printer whose port asks for a file, such as one
/// that writes PDF, gets a new file in `pdf_folder` for each document; if that is empty,
/// the user is asked, and in a service, which no user sees, the document fails, as it does
/// there if the printer takes no job in 30 seconds.
ZQ7STANDARD_EXPORT std::shared_ptr<PrinterList> SystemPrinters(
    std::filesystem::path pdf_folder = {});

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_PLATFORM_PRINTERS_H_
