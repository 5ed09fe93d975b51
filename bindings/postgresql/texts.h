#ifndef ZQ7STANDARD_BINDINGS_POSTGRESQL_TEXTS_H_
#define ZQ7STANDARD_BINDINGS_POSTGRESQL_TEXTS_H_

#include <cstdint>
#include <string_view>

/// Texts between UTF-8 and the encoding of the database. The server may raise an error in any of
/// these functions: no caller has anything to destroy.
namespace ZQ7PostgreSQL {

/// A text argument in UTF-8. What it is made of lasts as long as the memory context of the call.
std::string_view Utf8OfDatum(std::uintptr_t datum);

/// The same text as a `text`; raises 22021 if the encoding of the database lacks a character.
std::uintptr_t DatumOfUtf8(std::string_view text);

/// A text for people, ending in a 0. If the encoding lacks one of its characters, each byte that is
/// not ASCII becomes "?".
const char* MessageOfUtf8(std::string_view text);

}  // namespace ZQ7PostgreSQL

#endif  // ZQ7STANDARD_BINDINGS_POSTGRESQL_TEXTS_H_
