#include "values.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <string>

#include "failures.h"
#include "objects.h"

namespace ZQ7C {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

// What bindings of other languages lay out by hand (docs/abi.md).
static_assert(sizeof(zq7_value) == 24 && offsetof(zq7_value, owned) == 4 &&
              offsetof(zq7_value, number) == 8 && offsetof(zq7_value, length) == 16);

/// By `Type`.
constexpr auto kTags = std::to_array<zq7_tag>({ZQ7_OMITTED, ZQ7_TEXT, ZQ7_BYTE, ZQ7_INTEGER,
                                               ZQ7_LONG, ZQ7_SINGLE, ZQ7_DOUBLE, ZQ7_BOOLEAN,
                                               ZQ7_DATE, ZQ7_CURRENCY, ZQ7_TEXT_LIST, ZQ7_OBJECT});
static_assert(kTags.size() == static_cast<std::size_t>(Type::kObject) + 1);

TextList ToTextList(const zq7_value& value) {
  Require(value.list != nullptr || value.length == 0, "a list without items");
  TextList list;
  for (std::size_t i = 0; i < value.length; ++i) list.emplace_back(ToTextView(&value.list[i]));
  return list;
}

/// Writes what each kind of value holds.
struct Writer {
  zq7_value& out;

  zq7_value& Tagged(zq7_tag tag) const {
    out = {};
    out.tag = tag;
    return out;
  }
  void Own(std::uint64_t length) const {
    out.owned = 1;
    out.length = length;
  }

  void operator()(Omitted /*none*/) const { Tagged(ZQ7_OMITTED); }
  void operator()(Null /*null*/) const { Tagged(ZQ7_NULL); }
  void operator()(std::int16_t number) const { Tagged(ZQ7_INTEGER).integer = number; }
  void operator()(std::int32_t number) const { Tagged(ZQ7_LONG).integer = number; }
  void operator()(float number) const { Tagged(ZQ7_SINGLE).number = number; }
  void operator()(double number) const { Tagged(ZQ7_DOUBLE).number = number; }
  void operator()(bool flag) const { Tagged(ZQ7_BOOLEAN).integer = flag ? 1 : 0; }
  void operator()(OleDate date) const { Tagged(ZQ7_DATE).number = date.Days(); }
  void operator()(Currency amount) const { Tagged(ZQ7_CURRENCY).scaled = amount.Scaled(); }
  void operator()(const Object& object) const {
    Tagged(ZQ7_OBJECT).object = new zq7_object(object);
    out.owned = 1;
  }
  void operator()(const Text& text) const {
    const std::size_t size = text.size() * sizeof(char16_t);
    auto* const units = static_cast<char16_t*>(std::malloc(size == 0 ? 1 : size));
    if (units == nullptr) throw std::bad_alloc();
    std::ranges::copy(text, units);
    Tagged(ZQ7_TEXT).text = units;
    Own(text.size());
  }
  void operator()(const TextList& list) const {
    auto* const items = new zq7_value[list.size()]();
    Tagged(ZQ7_TEXT_LIST).list = items;
    Own(list.size());
    for (std::size_t i = 0; i < list.size(); ++i) Writer{items[i]}(list[i]);
  }
};

}  // namespace

void Assign(const zq7_value& given, Value& value) {
  switch (given.tag) {
    case ZQ7_OMITTED:
      value.emplace<Omitted>();
      break;
    case ZQ7_NULL:
      value.emplace<Null>();
      break;
    case ZQ7_TEXT:
      value.emplace<Text>(ToTextView(&given));
      break;
    case ZQ7_INTEGER:
    case ZQ7_LONG:
      value.emplace<std::int32_t>(given.integer);
      break;
    case ZQ7_SINGLE:
      value.emplace<float>(static_cast<float>(given.number));
      break;
    case ZQ7_DOUBLE:
      value.emplace<double>(given.number);
      break;
    case ZQ7_BOOLEAN:
      value.emplace<bool>(given.integer != 0);
      break;
    case ZQ7_DATE:
      value.emplace<OleDate>(given.number);
      break;
    case ZQ7_CURRENCY:
      value.emplace<Currency>(Currency::FromScaled(given.scaled));
      break;
    case ZQ7_TEXT_LIST:
      value.emplace<TextList>(ToTextList(given));
      break;
    case ZQ7_OBJECT:
      Require(given.object != nullptr, "an object value without an object; ZQ7_NULL is no object");
      value.emplace<Object>(given.object->object);
      break;
    default:
      RaiseWrongUse("a value with an unknown tag, " + std::to_string(given.tag));
  }
}

TextView ToTextView(const zq7_value* value) {
  Require(value != nullptr && value->tag == ZQ7_TEXT, "not a text");
  if (value->length == 0) return {};
  Require(value->text != nullptr, "a text without code units");
  return {value->text, static_cast<std::size_t>(value->length)};
}

OleDate ToDate(const zq7_value* value) {
  Require(value != nullptr && value->tag == ZQ7_DATE, "not a date");
  return OleDate(value->number);
}

void Write(const Value& value, zq7_value& out) {
  // Most results are texts, which need not be found by a visit.
  if (const auto* const text = std::get_if<Text>(&value)) {
    Writer{out}(*text);
    return;
  }
  try {
    std::visit(Writer{out}, value);
  } catch (...) {
    zq7_value_clear(&out);
    throw;
  }
}

void Write(const Value& value, std::span<char16_t> room, zq7_value& out) {
  const auto* const text = std::get_if<Text>(&value);
  if (text == nullptr || room.empty() || text->size() > room.size()) {
    Write(value, out);
    return;
  }
  std::ranges::copy(*text, room.begin());
  out = View({room.data(), text->size()});
}

zq7_value View(TextView text) {
  zq7_value value = {};
  value.tag = ZQ7_TEXT;
  value.text = text.data();
  value.length = text.size();
  return value;
}

zq7_tag TagOf(Type type) {
  return kTags[static_cast<std::size_t>(type)];
}

}  // namespace ZQ7C

namespace {

void FreeText(const zq7_value& text) {
  std::free(const_cast<char16_t*>(text.text));  // NOLINT(*-const-cast): it is the library's own
}

}  // namespace

void zq7_value_clear(zq7_value* value) {
  if (value == nullptr) return;
  if (value->owned != 0) {
    if (value->tag == ZQ7_TEXT) FreeText(*value);
    if (value->tag == ZQ7_OBJECT) zq7_release(value->object);
    if (value->tag == ZQ7_TEXT_LIST) {
      for (std::size_t i = 0; i < value->length; ++i) FreeText(value->list[i]);
      delete[] value->list;
    }
  }
  *value = {};
}

zq7_status zq7_text_of_utf8(const char* bytes, size_t size, zq7_value* text) {
  return ZQ7C::Guarded([&] {
    ZQ7C::Require(text != nullptr, "no place for the text");
    *text = {};
    ZQ7C::Require(bytes != nullptr || size == 0, "no bytes");
    ZQ7C::Write(ZQ7Standard::FromUtf8({bytes, size}), *text);
  });
}

size_t zq7_utf8_of_text(const zq7_value* text, char* buffer, size_t capacity) {
  std::string bytes;
  ZQ7C::Guarded([&] { bytes = ZQ7Standard::Utf8(ZQ7C::ToTextView(text)); });
  if (buffer == nullptr || capacity == 0) return bytes.size();
  std::size_t fitting = std::min(bytes.size(), capacity - 1);
  // A byte 10xxxxxx continues a character, which is then cut in front of its first byte.
  const auto continues = [&](std::size_t at) {
    return at < bytes.size() && (static_cast<unsigned char>(bytes[at]) & 0xC0U) == 0x80U;
  };
  while (fitting > 0 && continues(fitting)) --fitting;
  std::copy_n(bytes.data(), fitting, buffer);
  buffer[fitting] = '\0';
  return bytes.size();
}

zq7_status zq7_date_of_parts(const zq7_date* parts, zq7_value* date) {
  return ZQ7C::Guarded([&] {
    ZQ7C::Require(date != nullptr, "no place for the date");
    *date = {};
    ZQ7C::Require(parts != nullptr, "no parts of a date");
    const auto& [year, month, day, hour, minute, second] = *parts;
    ZQ7C::Write(ZQ7Standard::OleDate::FromParts(year, month, day, hour, minute, second), *date);
  });
}

zq7_status zq7_parts_of_date(const zq7_value* date, zq7_date* parts) {
  return ZQ7C::Guarded([&] {
    ZQ7C::Require(parts != nullptr, "no place for the parts");
    *parts = {};
    const ZQ7Standard::OleDate moment = ZQ7C::ToDate(date);
    *parts = {.year = moment.Year(),
              .month = moment.Month(),
              .day = moment.Day(),
              .hour = moment.Hour(),
              .minute = moment.Minute(),
              .second = moment.Second()};
  });
}
