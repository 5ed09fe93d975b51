#ifndef ZQ7STANDARD_SRC_FORMATS_MAIL_HEADERS_H_
#define ZQ7STANDARD_SRC_FORMATS_MAIL_HEADERS_H_

#include <ZQ7Standard/Types.h>

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "formats/mail_address.h"

/// The header lines of a message, in ASCII: without the last line end, and folded so that no line
/// has more than 78 characters unless an address or a word is longer.
namespace ZQ7Standard {

/// A header with a text, such as the subject. A text of other characters, or too long for a line,
/// becomes encoded words (RFC 2047).
std::string TextHeader(std::string_view name, TextView text);

/// A header with addresses.
std::string AddressHeader(std::string_view name, const std::vector<MailAddress>& addresses);

/// The date header of a local moment that is `offset` ahead of UTC.
std::string DateHeader(OleDate local, std::chrono::minutes offset);

/// The headers that tell the type and the name of a file (RFC 2231).
std::vector<std::string> FileHeaders(TextView file_name);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_MAIL_HEADERS_H_
