#include <ZQ7Standard/StandardObject.h>
#include <benchmark/benchmark.h>
#include <iconv.h>
#include <openssl/md5.h>
#include <unicode/ucnv.h>

#include <array>
#include <memory>
#include <string>

#include "text/code_page.h"

namespace ZQ7Standard::Bench {
namespace {

constexpr std::size_t kPageLength = 1024;     // characters of the code page rows
constexpr std::size_t kCipherLength = 32000;  // characters of the cipher rows

/// `length` characters of an invoice, Thai with a quarter of ASCII.
Text InvoiceText(std::size_t length) {
  constexpr TextView kLine =
      u"ใบกำกับภาษีเลขที่ IV-67/00123 วันที่ 15/1/2567 จำนวนเงิน 1,234.50 บาท "
      u"(หนึ่งพันสองร้อยสามสิบสี่บาทห้าสิบสตางค์) กำหนดชำระภายใน 30 วัน ";
  Text text;
  while (text.size() < length) text += kLine;
  text.resize(length);
  return text;
}

void EncodeOurs(benchmark::State& state) {
  const Text text = InvoiceText(kPageLength);
  std::array<char, kPageLength> bytes;
  for (auto _ : state) {
    EncodeCodePage(text, bytes.data());
    benchmark::DoNotOptimize(bytes);
  }
}
BENCHMARK(EncodeOurs)->Name("code_page_to_bytes/ours");

void DecodeOurs(benchmark::State& state) {
  const std::string bytes = ToCodePage(InvoiceText(kPageLength));
  std::array<char16_t, kPageLength> text;
  for (auto _ : state) {
    DecodeCodePage(bytes, text.data());
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(DecodeOurs)->Name("code_page_to_text/ours");

using Icu = std::unique_ptr<UConverter, decltype(&ucnv_close)>;

Icu OpenIcu() {
  UErrorCode status = U_ZERO_ERROR;
  return {ucnv_open("windows-874", &status), ucnv_close};
}

void EncodeIcu(benchmark::State& state) {
  const Text text = InvoiceText(kPageLength);
  const Icu icu = OpenIcu();
  std::array<char, kPageLength + 1> bytes;
  for (auto _ : state) {
    UErrorCode status = U_ZERO_ERROR;
    ucnv_fromUChars(icu.get(), bytes.data(), bytes.size(), text.data(), kPageLength, &status);
    if (U_FAILURE(status)) state.SkipWithError(u_errorName(status));
    benchmark::DoNotOptimize(bytes);
  }
}
BENCHMARK(EncodeIcu)->Name("code_page_to_bytes/icu");

void DecodeIcu(benchmark::State& state) {
  const std::string bytes = ToCodePage(InvoiceText(kPageLength));
  const Icu icu = OpenIcu();
  std::array<char16_t, kPageLength + 1> text;
  for (auto _ : state) {
    UErrorCode status = U_ZERO_ERROR;
    ucnv_toUChars(icu.get(), text.data(), text.size(), bytes.data(), kPageLength, &status);
    if (U_FAILURE(status)) state.SkipWithError(u_errorName(status));
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(DecodeIcu)->Name("code_page_to_text/icu");

/// Measures iconv on `input`, whose conversion takes `out_size` bytes.
void MeasureIconv(benchmark::State& state, const char* to, const char* from, std::string input,
                  std::size_t out_size) {
  const iconv_t iconv_handle = iconv_open(to, from);
  std::string output(out_size, '\0');
  for (auto _ : state) {
    char* in = input.data();
    char* out = output.data();
    std::size_t in_left = input.size();
    std::size_t out_left = output.size();
    if (iconv(iconv_handle, &in, &in_left, &out, &out_left) != 0) state.SkipWithError("iconv");
    benchmark::DoNotOptimize(output.data());
    benchmark::ClobberMemory();
  }
  iconv_close(iconv_handle);
}

void EncodeIconv(benchmark::State& state) {
  const Text text = InvoiceText(kPageLength);
  std::string units(reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t));
  MeasureIconv(state, "CP874", "UTF-16LE", std::move(units), kPageLength);
}
BENCHMARK(EncodeIconv)->Name("code_page_to_bytes/iconv");

void DecodeIconv(benchmark::State& state) {
  MeasureIconv(state, "UTF-16LE", "CP874", ToCodePage(InvoiceText(kPageLength)),
               kPageLength * sizeof(char16_t));
}
BENCHMARK(DecodeIconv)->Name("code_page_to_text/iconv");

void Md5Ours(benchmark::State& state) {
  const StandardObject object;
  const Text text = InvoiceText(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(object.CalculateMD5(text));
}
BENCHMARK(Md5Ours)->Name("md5/ours")->Arg(16)->Arg(64)->Arg(1024)->Arg(1 << 20);

// The digest of the bytes alone, without a conversion and without a text.
void Md5OpenSsl(benchmark::State& state) {
  const std::string bytes = ToCodePage(InvoiceText(static_cast<std::size_t>(state.range(0))));
  std::array<unsigned char, MD5_DIGEST_LENGTH> digest;
  for (auto _ : state) {
    MD5(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), digest.data());
    benchmark::DoNotOptimize(digest);
  }
}
BENCHMARK(Md5OpenSsl)->Name("md5/openssl")->Arg(16)->Arg(64)->Arg(1024)->Arg(1 << 20);

void MeasureEncryptBS(benchmark::State& state, const Text& text) {
  const StandardObject object;
  for (auto _ : state) benchmark::DoNotOptimize(object.EncryptBS(text, u"Password1"));
}

void EncryptAscii(benchmark::State& state) {
  MeasureEncryptBS(state, Text(kCipherLength, u'7'));
}
BENCHMARK(EncryptAscii)->Name("encrypt_bs/ours_ascii");

void EncryptThai(benchmark::State& state) {
  MeasureEncryptBS(state, InvoiceText(kCipherLength));
}
BENCHMARK(EncryptThai)->Name("encrypt_bs/ours_thai");

void DecryptThai(benchmark::State& state) {
  MeasureEncryptBS(state, StandardObject().EncryptBS(InvoiceText(kCipherLength), u"Password1"));
}
BENCHMARK(DecryptThai)->Name("encrypt_bs/ours_thai_back");

// Reading and writing the UTF-16 once.
void CopyText(benchmark::State& state) {
  const Text text = InvoiceText(kCipherLength);
  for (auto _ : state) {
    Text copy(text);
    benchmark::DoNotOptimize(copy.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(CopyText)->Name("encrypt_bs/copy");

}  // namespace
}  // namespace ZQ7Standard::Bench
