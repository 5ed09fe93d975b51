#include "printing/jpeg_codec.h"

#include <ZQ7Standard/RunTimeError.h>
#include <setjmp.h>
#include <stdio.h>
// After the types that it uses.
#include <jerror.h>
#include <jpeglib.h>

#include <array>
#include <cstdlib>
#include <memory>

// libjpeg leaves a function by `longjmp`. The frames between `setjmp` and the library hold no
// object with a destructor: what they fill belongs to their callers.

namespace ZQ7Standard {
namespace {

// A picture in more scans than any camera or program writes would take minutes to decode.
constexpr int kMostScans = 500;
constexpr int kColours = 3;
constexpr int kInks = 4;
constexpr unsigned kWhite = 255;

/// Where to go on after an error, and its text.
struct CodecErrors {
  jpeg_error_mgr base;
  jmp_buf place;
  std::array<char, JMSG_LENGTH_MAX> text;
};

CodecErrors& ErrorsOf(j_common_ptr codec) {
  return *reinterpret_cast<CodecErrors*>(codec->err);  // its first member
}

[[noreturn]] void Leave(j_common_ptr codec) {
  CodecErrors& errors = ErrorsOf(codec);
  errors.base.format_message(codec, errors.text.data());
  longjmp(errors.place, 1);
}

/// A file that ends early, or whose codes are wrong, is damaged; other remarks do no harm.
void Remark(j_common_ptr codec, int level) {
  const int code = codec->err->msg_code;
  if (level < 0 &&
      (code == JWRN_JPEG_EOF || code == JWRN_HUFF_BAD_CODE || code == JWRN_HIT_MARKER)) {
    Leave(codec);
  }
}

void CountScans(j_common_ptr codec) {
  if (reinterpret_cast<j_decompress_ptr>(codec)->input_scan_number <= kMostScans) return;
  codec->err->msg_code = JERR_BAD_PROGRESSION;
  Leave(codec);
}

void Prepare(CodecErrors& errors) {
  jpeg_std_error(&errors.base);
  errors.base.error_exit = Leave;
  errors.base.emit_message = Remark;
}

[[noreturn]] void RaiseDamaged(const CodecErrors& errors) {
  throw RunTimeError(Error::kInvalidPicture, errors.text.data());
}

/// The colours that some inks print; a file of the program that defined them has them inverted.
void AppendInks(std::vector<unsigned char>& rgb, const unsigned char* inks, bool inverted) {
  const auto light = [&](int ink) { return inverted ? inks[ink] : kWhite - inks[ink]; };
  for (int ink = 0; ink < kColours; ++ink) {
    rgb.push_back(static_cast<unsigned char>(light(ink) * light(kColours) / kWhite));
  }
}

/// Decodes all rows. Returns false after an error.
bool Decode(jpeg_decompress_struct& codec, CodecErrors& errors, jpeg_progress_mgr& progress,
            std::string_view file, std::vector<unsigned char>& row, Pixels& pixels) {
  if (setjmp(errors.place) != 0) return false;
  jpeg_create_decompress(&codec);
  codec.progress = &progress;
  jpeg_mem_src(&codec, reinterpret_cast<const unsigned char*>(file.data()), file.size());
  jpeg_read_header(&codec, TRUE);
  const bool inks = codec.jpeg_color_space == JCS_CMYK || codec.jpeg_color_space == JCS_YCCK;
  codec.out_color_space = inks ? JCS_CMYK : JCS_RGB;
  jpeg_start_decompress(&codec);
  pixels.columns = codec.output_width;
  pixels.rows = codec.output_height;
  pixels.rgb.reserve(pixels.columns * pixels.rows * kColours);
  row.resize(pixels.columns * (inks ? kInks : kColours));
  while (codec.output_scanline < codec.output_height) {
    JSAMPROW start = row.data();
    jpeg_read_scanlines(&codec, &start, 1);
    if (!inks) pixels.rgb.insert(pixels.rgb.end(), row.begin(), row.end());
    for (std::size_t i = 0; inks && i < pixels.columns; ++i) {
      AppendInks(pixels.rgb, &row[i * kInks], codec.saw_Adobe_marker != 0);
    }
  }
  jpeg_finish_decompress(&codec);
  return true;
}

/// Encodes all rows to memory that the caller frees. Returns false after an error.
bool Encode(jpeg_compress_struct& codec, CodecErrors& errors, const Pixels& pixels,
            const JpegSettings& settings, unsigned char*& bytes, unsigned long& size) {
  if (setjmp(errors.place) != 0) return false;
  jpeg_create_compress(&codec);
  jpeg_mem_dest(&codec, &bytes, &size);
  codec.image_width = static_cast<JDIMENSION>(pixels.columns);
  codec.image_height = static_cast<JDIMENSION>(pixels.rows);
  codec.input_components = kColours;
  codec.in_color_space = JCS_RGB;
  jpeg_set_defaults(&codec);
  jpeg_set_quality(&codec, settings.quality, TRUE);
  codec.density_unit = 1;  // dots per inch
  codec.X_density = static_cast<UINT16>(settings.columns_per_inch);
  codec.Y_density = static_cast<UINT16>(settings.rows_per_inch);
  jpeg_start_compress(&codec, TRUE);
  while (codec.next_scanline < codec.image_height) {
    // The library's type is not const, but it only reads.
    auto* row = const_cast<JSAMPROW>(&pixels.rgb[codec.next_scanline * pixels.columns * kColours]);
    jpeg_write_scanlines(&codec, &row, 1);
  }
  jpeg_finish_compress(&codec);
  return true;
}

/// Releases what a codec holds.
struct EndDecoder {
  void operator()(jpeg_decompress_struct* codec) const { jpeg_destroy_decompress(codec); }
};
struct EndEncoder {
  void operator()(jpeg_compress_struct* codec) const { jpeg_destroy_compress(codec); }
};

}  // namespace

Pixels JpegPixels(std::string_view file) {
  CodecErrors errors{};
  Prepare(errors);
  jpeg_progress_mgr progress{};
  progress.progress_monitor = CountScans;
  jpeg_decompress_struct codec{};
  codec.err = &errors.base;
  const std::unique_ptr<jpeg_decompress_struct, EndDecoder> end(&codec);
  std::vector<unsigned char> row;
  Pixels pixels;
  if (!Decode(codec, errors, progress, file, row, pixels)) RaiseDamaged(errors);
  return pixels;
}

std::string JpegFile(const Pixels& pixels, const JpegSettings& settings) {
  CodecErrors errors{};
  Prepare(errors);
  jpeg_compress_struct codec{};
  codec.err = &errors.base;
  const std::unique_ptr<jpeg_compress_struct, EndEncoder> end(&codec);
  unsigned char* bytes = nullptr;
  unsigned long size = 0;  // NOLINT(google-runtime-int): the library's type
  const bool encoded = Encode(codec, errors, pixels, settings, bytes, size);
  const std::unique_ptr<unsigned char, void (*)(void*)> memory(bytes, std::free);
  if (!encoded) RaiseDamaged(errors);
  return {reinterpret_cast<const char*>(bytes), size};
}

}  // namespace ZQ7Standard
