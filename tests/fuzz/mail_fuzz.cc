// Whatever is typed, headers stay inside their lines, and addresses are read from what is written
// of them.

#include "formats/mail_address.h"
#include "formats/mail_headers.h"
#include "tests/fuzz/check.h"

using namespace ZQ7Standard;

/// Checks that every line but the first goes on with the one before, in ASCII.
static void CheckHeader(const std::string& header, std::size_t longest) {
  std::size_t length = 0;
  for (std::size_t i = 0; i < header.size(); ++i) {
    if (header.compare(i, 3, "\r\n ") == 0) {
      length = 0;
      ++i;
      continue;
    }
    Check(header[i] >= ' ' && header[i] <= '~');
    Check(++length <= longest);
  }
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Text text = FuzzText(data, size);
  CheckHeader(TextHeader("Subject", text), 76);
  for (const std::string& header : FileHeaders(text)) CheckHeader(header, 78);
  const auto [addresses, problem] = ReadMailAddresses(text);
  Check(addresses.empty() || problem.empty());
  CheckHeader(AddressHeader("To", addresses), 300);
  for (const auto& [name, address] : addresses) {
    const auto again = ReadMailAddresses(FromUtf8("<" + address + ">"));
    Check(again.addresses == std::vector<MailAddress>{{u"", address}});
    Text quoted = u"\"";
    for (const char16_t c : name) quoted += (c == u'"' || c == u'\\' ? Text{u'\\', c} : Text{c});
    const auto named = ReadMailAddresses(quoted + u"\" <" + FromUtf8(address) + u">");
    Check(named.addresses == std::vector<MailAddress>{{name, address}});
  }
  return 0;
}
