#include "formats/mail_headers.h"

#include <algorithm>
#include <array>

#include "base/ascii.h"
#include "formats/address.h"
#include "formats/lines.h"

namespace ZQ7Standard {
namespace {

constexpr std::size_t kLongestLine = 76;  // of lines with encoded words
/// Bytes in an encoded word: in Base64, with its frame, it fits a line after "Subject: ".
constexpr std::size_t kWordBytes = 39;
constexpr std::string_view kBase64 =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
/// What ends a name that is not in quotation marks.
constexpr std::string_view kSpecials = "()<>[]:;@\\,.\"";

bool IsPrintable(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
}

std::string Base64(std::string_view bytes) {
  std::string encoded;
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    unsigned group = 0;
    for (std::size_t j = i; j < i + 3; ++j) {
      group = group << 8U | (j < bytes.size() ? static_cast<unsigned char>(bytes[j]) : 0U);
    }
    for (std::size_t j = 0; j < 4; ++j) {
      encoded += i + j > bytes.size() ? '=' : kBase64[group >> (18 - 6 * j) & 63U];
    }
  }
  return encoded;
}

bool BeginsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80;
}

/// The encoded words of a text; none is split inside a character.
std::vector<std::string> EncodedWords(std::string_view text) {
  std::vector<std::string> words;
  while (!text.empty()) {
    std::size_t end = std::min(kWordBytes, text.size());
    while (end < text.size() && !BeginsCharacter(text[end])) --end;
    words.push_back("=?UTF-8?B?" + Base64(text.substr(0, end)) + "?=");
    text.remove_prefix(end);
  }
  return words;
}

/// A header whose words are separated by blanks, or by line ends where a line would be too long.
std::string Folded(std::string_view name, const std::vector<std::string>& words) {
  std::string header = std::string(name) + ":";
  std::size_t length = header.size();
  for (const std::string& word : words) {
    const bool breaks = length + 1 + word.size() > kLongestLine && length > name.size() + 1;
    if (breaks) header.append(kLineEnd);
    if (breaks) length = 0;
    header.append(" ").append(word);
    length += 1 + word.size();
  }
  return header;
}

/// A name before an address.
std::vector<std::string> NameWords(TextView name) {
  const std::string text = Utf8(name);
  const bool plain =
      IsPrintable(text) && text.size() < kLongestLine / 2 && text.find("=?") == std::string::npos;
  if (!plain) return EncodedWords(text);
  if (text.find_first_of(kSpecials) == std::string::npos) return {text};
  std::string quoted = "\"";
  for (const char c : text) quoted.append(c == '"' || c == '\\' ? "\\" : "").push_back(c);
  return {quoted + '"'};
}

struct FileType {
  TextView ending;
  std::string_view type;
};
constexpr std::array<FileType, 6> kFileTypes = {{{u".gif", "image/gif"},
                                                 {u".jpeg", "image/jpeg"},
                                                 {u".jpg", "image/jpeg"},
                                                 {u".pdf", "application/pdf"},
                                                 {u".png", "image/png"},
                                                 {u".zip", "application/zip"}}};

/// The type of a file; texts have none of their own, because their code page is not known.
std::string_view TypeOf(TextView file_name) {
  const TextView ending = file_name.substr(std::min(file_name.rfind(u'.'), file_name.size()));
  const auto row = std::ranges::find_if(kFileTypes, [ending](const FileType& known) {
    return EqualsIgnoringAsciiCase(known.ending, ending);
  });
  return row == kFileTypes.end() ? "application/octet-stream" : row->type;
}

/// A percent-encoded text in pieces that fit a line; no "%41" is split.
std::vector<std::string> Pieces(std::string_view encoded) {
  constexpr std::size_t kMost = 48;
  std::vector<std::string> pieces;
  while (!encoded.empty()) {
    std::size_t end = std::min(kMost, encoded.size());
    const std::size_t percent = encoded.rfind('%', end - 1);
    if (percent != std::string_view::npos && percent + 3 > end) end = percent;
    pieces.emplace_back(encoded.substr(0, end));
    encoded.remove_prefix(end);
  }
  return pieces;
}

}  // namespace

std::string TextHeader(std::string_view name, TextView text) {
  const std::string bytes = Utf8(text);
  const bool plain = IsPrintable(bytes) && name.size() + 2 + bytes.size() <= kLongestLine &&
                     bytes.find("=?") == std::string::npos && !bytes.starts_with(' ') &&
                     !bytes.ends_with(' ');
  return plain ? Folded(name, {bytes}) : Folded(name, EncodedWords(bytes));
}

std::string AddressHeader(std::string_view name, const std::vector<MailAddress>& addresses) {
  std::vector<std::string> words;
  for (const MailAddress& address : addresses) {
    if (!words.empty()) words.back() += ",";
    for (std::string& word : NameWords(address.name)) {
      if (!word.empty()) words.push_back(std::move(word));
    }
    words.push_back(address.name.empty() ? address.address : "<" + address.address + ">");
  }
  return Folded(name, words);
}

std::string DateHeader(OleDate local, std::chrono::minutes offset) {
  constexpr std::string_view kDays = "SunMonTueWedThuFriSat";
  constexpr std::string_view kMonths = "JanFebMarAprMayJunJulAugSepOctNovDec";
  const auto name = [](std::string_view names, int number) {
    return FromUtf8(names.substr(static_cast<std::size_t>(number - 1) * 3, 3));
  };
  Text text = name(kDays, local.Weekday()) + u", ";
  AppendNumber(text, local.Day(), 2);
  text += u' ' + name(kMonths, local.Month()) + u' ';
  AppendNumber(text, local.Year(), 4);
  AppendNumber(text += u' ', local.Hour(), 2);
  AppendNumber(text += u':', local.Minute(), 2);
  AppendNumber(text += u':', local.Second(), 2);
  const int minutes = static_cast<int>(std::chrono::abs(offset).count());
  AppendNumber(text += offset.count() < 0 ? u" -" : u" +", minutes / 60 * 100 + minutes % 60, 4);
  return "Date: " + Utf8(text);
}

std::vector<std::string> FileHeaders(TextView file_name) {
  std::string disposition = "Content-Disposition: attachment";
  const auto pieces = Pieces(PercentEncoded(file_name));
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    disposition.append(";").append(kLineEnd).append(" filename");
    if (pieces.size() > 1) disposition.append("*").append(std::to_string(i));
    disposition.append("*=");
    disposition.append(i == 0 ? "UTF-8''" : "").append(pieces[i]);
  }
  return {std::string("Content-Type: ").append(TypeOf(file_name)), disposition};
}

}  // namespace ZQ7Standard
