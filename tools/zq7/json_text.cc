#include "json_text.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "names.h"
#include "surrogates.h"

namespace ZQ7Tool {
namespace {

/// Builds a tree of what the parser finds, within the limits.
class TreeBuilder final : public Json::json_sax_t {
 public:
  explicit TreeBuilder(Json& root) : root_(root) {}

  bool null() override { return Add(nullptr); }
  bool boolean(bool value) override { return Add(value); }
  bool number_integer(number_integer_t value) override { return Add(value); }
  bool number_unsigned(number_unsigned_t value) override { return Add(value); }
  bool number_float(number_float_t value, const string_t& /*text*/) override { return Add(value); }
  bool string(string_t& value) override { return Add(std::move(value)); }
  bool binary(binary_t& /*value*/) override { return false; }
  bool start_object(std::size_t /*size*/) override { return Open(Json::object()); }
  bool start_array(std::size_t /*size*/) override { return Open(Json::array()); }
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }

  bool key(string_t& name) override {
    const Json& object = *open_.back();
    if (object.contains(name)) throw JsonError(Quoted(name) + " stands there twice");
    if (object.size() == kMaxJsonMembers) throw JsonError("an object has too many members");
    key_ = std::move(name);
    return true;
  }

  bool parse_error(std::size_t position, const std::string& /*token*/,
                   const nlohmann::detail::exception& /*error*/) override {
    throw JsonError("not JSON at byte " + std::to_string(position));
  }

 private:
  Json& Put(Json value) {
    if (open_.empty()) return root_ = std::move(value);
    Json& parent = *open_.back();
    if (parent.is_object()) return parent[key_] = std::move(value);
    parent.push_back(std::move(value));
    return parent.back();
  }

  bool Add(Json value) {
    Put(std::move(value));
    return true;
  }

  bool Open(Json container) {
    if (open_.size() == kMaxJsonDepth) throw JsonError("nested too deep");
    open_.push_back(&Put(std::move(container)));
    return true;
  }

  bool Close() {
    open_.pop_back();
    return true;
  }

  Json& root_;
  std::vector<Json*> open_;  // from the root to what is being filled
  std::string key_;
};

/// Walks over JSON that is known to be well formed.
class Cursor {
 public:
  explicit Cursor(std::string_view json) : rest_(json) {}

  /// Takes what stands between keys and values, and tells whether an object goes on.
  bool SkipToNext() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t\r:,"), rest_.size()));
    return !rest_.starts_with('}');
  }

  std::string_view TakeValue() {
    const std::string_view begin = rest_;
    int depth = 0;
    do {
      const char c = rest_.front();
      if (c == '"') {
        SkipString();
      } else if (c == '{' || c == '[') {
        ++depth;
        rest_.remove_prefix(1);
      } else if (c == '}' || c == ']') {
        --depth;
        rest_.remove_prefix(1);
      } else {
        rest_.remove_prefix(std::min(rest_.find_first_of("\"{}[], \t\r", 1), rest_.size()));
      }
    } while (depth > 0);
    return begin.substr(0, begin.size() - rest_.size());
  }

 private:
  void SkipString() {
    std::size_t end = rest_.find_first_of("\"\\", 1);
    while (rest_[end] == '\\') end = rest_.find_first_of("\"\\", end + 2);
    rest_.remove_prefix(end + 1);
  }

  std::string_view rest_;
};

}  // namespace

Json ReadJson(std::string_view text) {
  // The parser takes a NUL for the end.
  if (text.find('\0') != std::string_view::npos) throw JsonError("a NUL byte in the line");
  Json root;
  TreeBuilder builder(root);
  Json::sax_parse(JsonWithStandIns(text), &builder);
  return root;
}

std::string WriteJson(const Json& json) {
  return JsonWithoutStandIns(json.dump());
}

std::string_view MemberText(std::string_view object, std::string_view name) {
  Cursor cursor(object.substr(object.find('{') + 1));
  while (cursor.SkipToNext()) {
    const std::string_view key = cursor.TakeValue();
    cursor.SkipToNext();
    const std::string_view value = cursor.TakeValue();
    if (ReadJson(key) == name) return value;
  }
  return {};
}

ZQ7Standard::Text TextOfJson(const std::string& string) {
  return WithoutStandIns(ZQ7Standard::FromUtf8(string));
}

std::string JsonOfText(ZQ7Standard::TextView text) {
  return ZQ7Standard::Utf8(WithStandIns(text));
}

}  // namespace ZQ7Tool
