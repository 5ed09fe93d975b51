#ifndef ZQ7STANDARD_SRC_FORMATS_MAIL_ADDRESS_H_
#define ZQ7STANDARD_SRC_FORMATS_MAIL_ADDRESS_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <vector>

namespace ZQ7Standard {

/// "Somchai <s@shop.example>"
struct MailAddress {
  Text name;            ///< may be empty
  std::string address;  ///< ASCII

  friend bool operator==(const MailAddress&, const MailAddress&) = default;
};

/// What a list of addresses holds, or why it is not a list of addresses.
struct MailAddresses {
  std::vector<MailAddress> addresses = {};
  std::string problem = {};
};

/// Reads addresses separated by ";" or "," outside of quotation marks. An address is ASCII and has
/// one "@"; control characters are a problem anywhere. Empty entries are skipped.
MailAddresses ReadMailAddresses(TextView list);

/// Whether two addresses have the same mailbox; capitals make no difference.
bool IsSameMailbox(const std::string& a, const std::string& b);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_MAIL_ADDRESS_H_
