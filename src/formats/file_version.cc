#include "formats/file_version.h"

#include <algorithm>
#include <string_view>

namespace ZQ7Standard {
namespace {

// Sizes and places in bytes, as "PE Format" of the platform's documentation has them.
constexpr std::size_t kDosHeader = 64;
constexpr std::size_t kPeOffset = 60;
constexpr std::size_t kFileHeader = 24;  // with its signature
constexpr std::uint32_t kMagic32 = 0x10B;
constexpr std::uint32_t kMagic64 = 0x20B;
constexpr std::size_t kDirectories32 = 96;
constexpr std::size_t kDirectories64 = 112;
constexpr std::size_t kResources = 16;  // the third directory
constexpr std::size_t kSection = 40;
constexpr std::size_t kMostSections = 96;
constexpr std::size_t kList = 16;  // the header of a list of resources
constexpr std::size_t kEntry = 8;
constexpr std::size_t kMostEntries = 4096;
constexpr std::uint32_t kIsList = 0x80000000;
constexpr std::uint32_t kVersionType = 16;
constexpr std::size_t kFixedInfo = 40;  // after the key "VS_VERSION_INFO"
constexpr std::size_t kFixedInfoSize = 52;
constexpr std::uint32_t kFixedInfoSignature = 0xFEEF04BD;

/// The number of `size` bytes at `at`, the lowest byte first; bytes after the end are 0.
std::uint32_t Number(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i-- > 0;) {
    const char byte = at + i < bytes.size() ? bytes[at + i] : '\0';
    number = number << 8U | static_cast<unsigned char>(byte);
  }
  return number;
}

std::uint16_t Number16(std::string_view bytes, std::size_t at) {
  return static_cast<std::uint16_t>(Number(bytes, at, 2));
}

std::uint32_t Number32(std::string_view bytes, std::size_t at) {
  return Number(bytes, at, 4);
}

/// What of a file's header leads to its resources.
struct Image {
  std::string sections;
  std::uint32_t resources = 0;  ///< an address in memory
};

std::optional<Image> ReadImage(const ReadAt& read) {
  const std::string dos = read(0, kDosHeader);
  if (dos.size() < kDosHeader || !dos.starts_with("MZ")) return std::nullopt;
  const std::uint64_t start = Number32(dos, kPeOffset);
  const std::string file = read(start, kFileHeader);
  if (!file.starts_with(std::string_view("PE\0\0", 4))) return std::nullopt;
  const std::size_t count = Number16(file, 6);
  const std::size_t optional_size = Number16(file, 20);
  const std::string optional = read(start + kFileHeader, optional_size);
  const std::uint32_t magic = Number16(optional, 0);
  if (magic != kMagic32 && magic != kMagic64) return std::nullopt;
  const std::size_t directories = magic == kMagic32 ? kDirectories32 : kDirectories64;
  return Image{read(start + kFileHeader + optional_size, std::min(count, kMostSections) * kSection),
               Number32(optional, directories + kResources)};
}

/// Where in the file an address in memory is; nullopt for one that the file does not hold.
std::optional<std::uint64_t> PlaceOf(const Image& image, std::uint32_t address) {
  for (std::size_t at = 0; at + kSection <= image.sections.size(); at += kSection) {
    const std::uint32_t begin = Number32(image.sections, at + 12);
    const std::uint32_t size = Number32(image.sections, at + 16);
    if (address < begin || address - begin >= size) continue;
    return std::uint64_t{Number32(image.sections, at + 20)} + (address - begin);
  }
  return std::nullopt;
}

/// What the first entry of a list that is `wanted` leads to; of any, if that is 0.
std::optional<std::uint32_t> FindEntry(const ReadAt& read, std::uint64_t place,
                                       std::uint32_t wanted) {
  const std::string list = read(place, kList);
  const std::size_t count = std::size_t{Number16(list, 12)} + Number16(list, 14);
  const std::string entries = read(place + kList, std::min(count, kMostEntries) * kEntry);
  for (std::size_t at = 0; at + kEntry <= entries.size(); at += kEntry) {
    if (wanted == 0 || Number32(entries, at) == wanted) return Number32(entries, at + 4);
  }
  return std::nullopt;
}

/// Where the version resource begins in the file: of the list of types, names and languages each
/// leads to the next.
std::optional<std::uint64_t> FindVersion(const ReadAt& read, const Image& image) {
  const auto resources = PlaceOf(image, image.resources);
  if (image.resources == 0 || !resources) return std::nullopt;
  std::uint32_t offset = 0;
  for (const std::uint32_t wanted : {kVersionType, 0U, 0U}) {
    const auto entry = FindEntry(read, *resources + offset, wanted);
    if (!entry) return std::nullopt;
    offset = *entry & ~kIsList;
  }
  return PlaceOf(image, Number32(read(*resources + offset, kList), 0));
}

}  // namespace

std::optional<FileVersion> ReadFileVersion(const ReadAt& read) {
  const auto image = ReadImage(read);
  if (!image) return std::nullopt;
  const auto place = FindVersion(read, *image);
  if (!place) return std::nullopt;
  const std::string info = read(*place + kFixedInfo, kFixedInfoSize);
  if (info.size() < kFixedInfoSize || Number32(info, 0) != kFixedInfoSignature) return std::nullopt;
  return FileVersion{Number16(info, 10), Number16(info, 8), Number16(info, 14), Number16(info, 12)};
}

Text VersionText(const FileVersion& version) {
  std::string text;
  for (const std::uint16_t number : version) {
    text.append(text.empty() ? "" : ".").append(std::to_string(number));
  }
  return FromUtf8(text);
}

}  // namespace ZQ7Standard
