#include "platform/windows/winsock.h"

#include <ZQ7Standard/RunTimeError.h>

#include <cstring>
#include <memory>
#include <utility>

#include "platform/windows/limited_call.h"
#include "platform/windows/system_text.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

struct FreeAddresses {
  void operator()(ADDRINFOW* list) const { FreeAddrInfoW(list); }
};

/// What the name service tells, and the error of the system if it fails.
struct Lookup {
  std::vector<SocketAddress> found = {};
  int error = 0;
};

Lookup LookUp(const std::wstring& host, const std::wstring& port) {
  const WinsockUse winsock;
  ADDRINFOW hints{};
  hints.ai_family = AF_UNSPEC;
  hints.ai_socktype = SOCK_DGRAM;
  ADDRINFOW* list = nullptr;
  Lookup lookup;
  lookup.error = GetAddrInfoW(host.c_str(), port.c_str(), &hints, &list);
  const std::unique_ptr<ADDRINFOW, FreeAddresses> owned(lookup.error == 0 ? list : nullptr);
  for (const ADDRINFOW* info = owned.get(); info != nullptr; info = info->ai_next) {
    SocketAddress& address = lookup.found.emplace_back();
    address.size = static_cast<int>(info->ai_addrlen);
    std::memcpy(&address.storage, info->ai_addr, info->ai_addrlen);
  }
  return lookup;
}

RunTimeError NotFound(const std::string& host, const std::string& reason) {
  return RunTimeError(Error::kDeviceUnavailable, host + ": " + reason);
}

}  // namespace

WinsockUse::WinsockUse() {
  WSADATA data;
  const int error = WSAStartup(MAKEWORD(2, 2), &data);
  if (error != 0) {
    throw RunTimeError(Error::kDeviceUnavailable, SystemText(static_cast<DWORD>(error)));
  }
}

std::vector<SocketAddress> AddressesOf(const std::string& host, std::uint16_t port,
                                       std::chrono::steady_clock::time_point deadline) {
  const auto left =
      std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
  auto lookup =
      ResultWithin<Lookup>([name = Wide(FromUtf8(host)),
                            number = std::to_wstring(port)] { return LookUp(name, number); },
                           left);
  if (!lookup) throw NotFound(host, "the name service does not answer");
  if (lookup->error != 0) throw NotFound(host, SystemText(static_cast<DWORD>(lookup->error)));
  return std::move(lookup->found);
}

}  // namespace ZQ7Standard
