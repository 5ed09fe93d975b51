#include "texts.h"

#include <algorithm>

#include "server.h"

namespace ZQ7PostgreSQL {
namespace {

bool IsAscii(char byte) {
  return static_cast<unsigned char>(byte) < 0x80;
}

/// Whether the database holds the bytes of UTF-8 as they are.
bool IsStoredAsIs(std::string_view text) {
  const int encoding = GetDatabaseEncoding();
  return encoding == PG_UTF8 || encoding == PG_SQL_ASCII || std::ranges::all_of(text, IsAscii);
}

struct Converted {
  std::string_view text;
  bool whole;
};

/// `text` in the encoding of the database as far as it has the characters.
Converted ToDatabaseEncoding(std::string_view text) {
  const Oid conversion = FindDefaultConversionProc(PG_UTF8, GetDatabaseEncoding());
  if (!OidIsValid(conversion)) return {{}, false};
  const std::size_t room = text.size() * MAX_CONVERSION_GROWTH + 1;
  auto* const bytes = static_cast<char*>(MemoryContextAllocHuge(CurrentMemoryContext, room));
  auto* const given = reinterpret_cast<unsigned char*>(const_cast<char*>(text.data()));
  const int read = pg_do_encoding_conversion_buf(
      conversion, PG_UTF8, GetDatabaseEncoding(), given, static_cast<int>(text.size()),
      reinterpret_cast<unsigned char*>(bytes),
      static_cast<int>(std::min<std::size_t>(room, PG_INT32_MAX)), true);
  return {bytes, read == static_cast<int>(text.size())};
}

[[noreturn]] void RaiseLacking() {
  ereport(ERROR, (errcode(ERRCODE_CHARACTER_NOT_IN_REPERTOIRE),
                  errmsg("the result contains a character that the encoding \"%s\" of the database "
                         "does not have",
                         GetDatabaseEncodingName())));
  pg_unreachable();
}

}  // namespace

std::string_view Utf8OfDatum(std::uintptr_t datum) {
  const text* const detoasted = PG_DETOAST_DATUM_PACKED(datum);
  const char* const bytes = VARDATA_ANY(detoasted);
  const std::size_t size = VARSIZE_ANY_EXHDR(detoasted);
  const char* const converted = pg_server_to_any(bytes, static_cast<int>(size), PG_UTF8);
  return converted == bytes ? std::string_view(bytes, size) : std::string_view(converted);
}

std::uintptr_t DatumOfUtf8(std::string_view text) {
  if (!IsStoredAsIs(text)) {
    const Converted converted = ToDatabaseEncoding(text);
    if (!converted.whole) RaiseLacking();
    text = converted.text;
  }
  return PointerGetDatum(cstring_to_text_with_len(text.data(), static_cast<int>(text.size())));
}

const char* MessageOfUtf8(std::string_view text) {
  char* const bytes = pnstrdup(text.data(), text.size());
  if (IsStoredAsIs(text)) return bytes;
  const Converted converted = ToDatabaseEncoding(text);
  if (converted.whole) return converted.text.data();
  std::replace_if(
      bytes, bytes + text.size(), [](char byte) { return !IsAscii(byte); }, '?');
  return bytes;
}

}  // namespace ZQ7PostgreSQL
