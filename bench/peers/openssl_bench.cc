#include <openssl/md5.h>

#include <array>

#include "bench/inputs.h"
#include "bench/measure.h"

namespace ZQ7Standard::Bench {
namespace {

/// The digest of the bytes only, without a conversion or a text.
template <std::size_t Length>
void Md5OpenSsl(benchmark::State& state) {
  std::array<unsigned char, MD5_DIGEST_LENGTH> digest;
  Measure(state, InvoiceBytes(Length), [&digest](const std::string& bytes) {
    MD5(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), digest.data());
    return digest.back();
  });
}
BENCHMARK(Md5OpenSsl<16>)->Name("md5_16/openssl");
BENCHMARK(Md5OpenSsl<64>)->Name("md5_64/openssl");
BENCHMARK(Md5OpenSsl<1024>)->Name("md5_1024/openssl");
BENCHMARK(Md5OpenSsl<1024 * 1024>)->Name("md5_1048576/openssl");

}  // namespace
}  // namespace ZQ7Standard::Bench
