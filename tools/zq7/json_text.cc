#include "json_text.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

#include "names.h"

namespace ZQ7Tool {
namespace {

constexpr const char* kTooLarge = "a number is too large";

/// The parser rejects numbers beyond its type; an id may exceed a double.
using WideJson = nlohmann::basic_json<nlohmann::ordered_map, std::vector, std::string, bool,
                                      std::int64_t, std::uint64_t, long double>;

/// Builds a tree from the parser's events, within the limits, and copies the id.
class LineBuilder final : public WideJson::json_sax_t {
 public:
  LineBuilder(Json& root, std::string* id) : root_(root), id_(id) {}

  bool null() override { return Add(nullptr); }
  bool boolean(bool value) override { return Add(value); }
  bool number_unsigned(number_unsigned_t value) override { return Add(value); }
  bool string(string_t& value) override { return Add(std::move(value)); }
  bool binary(binary_t& /*value*/) override { return false; }
  bool start_object(std::size_t /*size*/) override { return Open(Json::object(), "{"); }
  bool start_array(std::size_t /*size*/) override { return Open(Json::array(), "["); }
  bool end_object() override { return Close('}'); }
  bool end_array() override { return Close(']'); }

  // The parser calls this only for numbers with a "-".
  bool number_integer(number_integer_t value) override {
    return value == 0 ? AddNumber(value, "-0") : Add(value);
  }

  bool number_float(number_float_t /*wide*/, const string_t& text) override {
    // The wide number would be rounded twice.
    const double number = std::strtod(text.c_str(), nullptr);
    if (!in_id_ && !std::isfinite(number)) throw JsonError(kTooLarge);
    return AddNumber(number, text);
  }

  bool key(string_t& name) override {
    const Json& object = *open_.back();
    if (object.contains(name)) throw JsonError(Quoted(name) + " appears twice");
    if (object.size() == kMaxJsonMembers) throw JsonError("an object has too many members");
    if (open_.size() == 1) {
      in_id_ = id_ != nullptr && name == "id";
    } else if (in_id_) {
      Echo(Json(name).dump() + ":");
    }
    key_ = std::move(name);
    return true;
  }

  bool parse_error(std::size_t position, const std::string& /*token*/,
                   const nlohmann::detail::exception& error) override {
    constexpr int kOutOfRange = 406;
    if (error.id == kOutOfRange) throw JsonError(kTooLarge);
    // The cause precedes the quoted input, which may say "surrogate" as well.
    const std::string_view what = error.what();
    const bool surrogate = what.find("surrogate") < what.find("last read");
    const std::string place = " at byte " + std::to_string(position);
    if (!surrogate) throw JsonError("not JSON" + place);
    throw JsonError("a lone surrogate" + place + R"(: write the text as {"utf16":"d83d 0041"})");
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
    if (in_id_) Echo(value.dump());
    Put(std::move(value));
    return true;
  }

  bool AddNumber(Json number, std::string_view text) {
    if (in_id_) Echo(text);
    Put(std::move(number));
    return true;
  }

  bool Open(Json container, std::string_view bracket) {
    if (open_.size() == kMaxJsonDepth) throw JsonError("nested too deep");
    if (in_id_) Echo(bracket);
    open_.push_back(&Put(std::move(container)));
    return true;
  }

  bool Close(char bracket) {
    open_.pop_back();
    if (in_id_ && !open_.empty()) *id_ += bracket;
    return true;
  }

  /// Writes a key or the start of a value, after a comma if necessary.
  void Echo(std::string_view text) {
    constexpr std::string_view kNothingBefore = "[{:";
    if (!id_->empty() && kNothingBefore.find(id_->back()) == std::string_view::npos) *id_ += ',';
    *id_ += text;
  }

  Json& root_;
  std::string* id_;          // null if it is not wanted
  bool in_id_ = false;       // inside the requested member "id" of the root
  std::vector<Json*> open_;  // from the root to the innermost open one
  std::string key_;
};

}  // namespace

Json ReadJson(std::string_view text, std::string* id) {
  // The parser would take a NUL for the end.
  if (text.find('\0') != std::string_view::npos) throw JsonError("a NUL byte in the line");
  if (id != nullptr) id->clear();
  Json root;
  LineBuilder builder(root, id);
  WideJson::sax_parse(text, &builder);
  return root;
}

std::string WriteJson(const Json& json) {
  return json.dump();
}

}  // namespace ZQ7Tool
