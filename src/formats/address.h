#ifndef ZQ7STANDARD_SRC_FORMATS_ADDRESS_H_
#define ZQ7STANDARD_SRC_FORMATS_ADDRESS_H_

#include <ZQ7Standard/Types.h>

#include <optional>
#include <string>
#include <string_view>

namespace ZQ7Standard {

/// `text` in UTF-8 with every byte percent-encoded (RFC 3986) but letters, digits, "-._~" and the
/// bytes of `kept`.
std::string PercentEncoded(TextView text, std::string_view kept = {});

/// The bytes that a percent-encoded text stands for; a "%" without two digits stands for itself.
std::string PercentDecoded(std::string_view text);

/// An address that may be opened, with what an address cannot hold percent-encoded; nullopt for
/// schemes other than http, https, mailto and file, for control characters, and for http and https
/// without a host.
std::optional<std::string> AddressToOpen(TextView typed);

/// The native path of a file's address on this machine; nullopt for other addresses.
std::optional<std::string> FileOfAddress(std::string_view address);

/// The mailto address (RFC 6068) of a message; `to` has its addresses separated by ";" or ",".
/// Nothing in `to` can add a header or an attachment.
std::string MailtoAddress(TextView to, TextView subject, TextView body);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_FORMATS_ADDRESS_H_
