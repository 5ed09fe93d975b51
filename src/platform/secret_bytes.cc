#include <ZQ7Standard/platform/block_cipher.h>

#include <utility>

namespace ZQ7Standard {
namespace {

/// Overwrites `bytes` with writes that a compiler may not omit, although nothing reads them.
void Wipe(std::span<volatile unsigned char> bytes) {
  for (volatile unsigned char& byte : bytes) byte = 0;
}

}  // namespace

SecretBytes::SecretBytes(std::size_t size) : bytes_(size) {}

SecretBytes::SecretBytes(SecretBytes&& other) noexcept = default;

SecretBytes& SecretBytes::operator=(SecretBytes&& other) noexcept {
  SecretBytes taken(std::move(other));
  bytes_.swap(taken.bytes_);
  return *this;
}

SecretBytes::~SecretBytes() {
  Wipe(Bytes());
}

}  // namespace ZQ7Standard
