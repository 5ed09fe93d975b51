#ifndef DEMO_OFFICE_H_
#define DEMO_OFFICE_H_

#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/platform/message_box.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "invoice.h"

namespace InvoiceDemo {

/// Who sends the invoices; what the settings do not name is empty.
struct Company {
  Text name;
  Text english_name;
  Text address;
  Text tax_id;
  Text code_word;                        ///< the letters of cost prices
  std::optional<Text> default_net_days;  ///< of the invoices that leave them empty
  std::filesystem::path logo = {};
  std::int32_t logo_width = 0;   ///< pixels
  std::int32_t logo_height = 0;  ///< pixels
};

/// What an office keeps beside its data: settings.txt, with the last document number
/// among them, and invoices.log, a line for each document, both in Windows-874. A copy of
/// the last number is in the registry, for settings that have none.
///
/// One run at a time: two at once can assign the same number. Whatever cannot be read or
/// written raises a `std::runtime_error` that names it, but for the registry: a copy that
/// fails is told on standard error.
class Office {
 public:
  /// The office in the folder of the file `data`; nullopt if there are no settings.
  static std::optional<Office> Beside(const std::filesystem::path& data);

  const Company& Sender() const { return company_; }

  /// The next document number that is not among `taken`. It counts as assigned from now
  /// on, whatever becomes of the document: a crash costs a number, and never assigns one
  /// twice.
  Text TakeNumber(const StandardObject& standard, const std::set<Text>& taken);

  /// Adds a line about something that succeeded to the log.
  void Log(TextView type, TextView description);

 private:
  explicit Office(const std::filesystem::path& folder);

  Text Setting(TextView key);
  void ReadLogo();
  void ThrowIfFailed(const std::string& what, const std::string& file);

  std::filesystem::path folder_;
  std::shared_ptr<RecordingMessageBox> messages_;
  ASCIIObject files_;
  RegistryObject registry_;
  Company company_;
};

/// The number that follows the document number `last`: "IV67-0100" follows "IV67-0099".
/// Empty when `last` ends in no number, or in one of 15 or more digits, which cannot be
/// counted up digit by digit.
Text NextNumber(const StandardObject& standard, TextView last);

/// Opens a cash drawer that is played by a pseudo-terminal, and returns the bytes that
/// it got: "27 112 0 25 250". Raises a `std::runtime_error` when it got none.
std::string KickDrawer();

}  // namespace InvoiceDemo

#endif  // DEMO_OFFICE_H_
