#ifndef DEMO_OFFICE_H_
#define DEMO_OFFICE_H_

#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/Types.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "remark.h"

namespace InvoiceDemo {

/// The picture on the company's paper.
struct Logo {
  std::filesystem::path file;
  std::int32_t width;   ///< pixels
  std::int32_t height;  ///< pixels
};

/// Who sends the invoices; what the settings do not name is empty.
struct Company {
  ZQ7Standard::Text name;
  ZQ7Standard::Text english_name;
  ZQ7Standard::Text address;
  ZQ7Standard::Text tax_id;
  ZQ7Standard::Text code_word;  ///< the letters of cost prices
  std::optional<Logo> logo;
};

/// What an office keeps beside its data: settings.txt, with the last document number
/// among them, and invoices.log, a line for each document, both in Windows-874. A copy of the last number
/// is in the registry, for settings that have none.
///
/// One run at a time: two at once can give the same number. Whatever cannot be read
/// or written raises a `std::runtime_error` that names it, but for the registry: a
/// copy that fails is told on standard error.
class Office {
 public:
  /// The office in the folder of the file `data`; nothing where that folder has no
  /// settings.
  static std::unique_ptr<Office> Beside(const std::filesystem::path& data);

  const ZQ7Standard::Text& DefaultNetDays() const { return default_net_days_; }
  const Company& Sender() const { return company_; }

  /// The next document number that is not among `taken`. It counts as given from now
  /// on, whatever becomes of the document: a crash costs a number, and never gives
  /// one twice.
  ZQ7Standard::Text TakeNumber(const ZQ7Standard::StandardObject& standard,
                               const std::set<ZQ7Standard::Text>& taken);

  /// Adds a line to the log.
  void Log(ZQ7Standard::TextView type, ZQ7Standard::TextView success,
           ZQ7Standard::TextView description);

 private:
  explicit Office(const std::filesystem::path& folder);

  ZQ7Standard::Text Setting(ZQ7Standard::TextView key);
  std::optional<Logo> ReadLogo();

  std::filesystem::path folder_;
  ZQ7Standard::Text settings_;  // the path text
  std::shared_ptr<Remark> remark_;
  ZQ7Standard::ASCIIObject files_;
  ZQ7Standard::RegistryObject registry_;
  Company company_;
  ZQ7Standard::Text default_net_days_;
};

}  // namespace InvoiceDemo

#endif  // DEMO_OFFICE_H_
