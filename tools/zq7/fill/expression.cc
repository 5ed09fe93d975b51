#include "fill/expression.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "names.h"

namespace ZQ7Tool {
namespace {

using ZQ7Standard::FromUtf8;
using ZQ7Standard::OleDate;
using ZQ7Standard::Utf8;

/// Letters of any language, digits and "_".
constexpr bool IsWordByte(char c) {
  return IsIdentifierCharacter(c) || static_cast<unsigned char>(c) >= 0x80;
}

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// Reads one expression from its beginning to its end.
class Parser {
 public:
  explicit Parser(std::string_view source) : source_(source) {}

  std::string Name() {
    SkipBlanks();
    if (Next() == '[' || Next() == '`') return Bracketed();
    return Word("the name of the new column");
  }

  Expression Call() {
    SkipBlanks();
    const std::size_t place = at_;
    Expression call = Value(1);
    if (call.kind != Expression::Kind::kCall) Refuse(place, "Expected CLASS.OPERATION(...).");
    return call;
  }

  void Expect(char c, std::string_view what) {
    SkipBlanks();
    if (Next() != c) Refuse(at_, "Expected " + std::string(what) + Instead());
    ++at_;
  }

  void ExpectEnd() {
    SkipBlanks();
    if (at_ < source_.size()) Refuse(at_, "Expected nothing more" + Instead());
  }

 private:
  [[noreturn]] void Refuse(std::size_t place, std::string_view message) const {
    throw WrongExpression(source_, place, message);
  }

  char Next() const { return at_ < source_.size() ? source_[at_] : '\0'; }

  void SkipBlanks() { at_ = std::min(source_.find_first_not_of(" \t\r\n", at_), source_.size()); }

  std::string Instead() const {
    if (at_ == source_.size()) return " at the end.";
    const std::string_view rest = source_.substr(at_);
    const auto after = std::ranges::find_if(rest.substr(1), [](char c) { return !IsWordByte(c); });
    const auto size = IsWordByte(rest.front()) ? after - rest.begin() : 1;
    return " instead of " + Quoted(rest.substr(0, static_cast<std::size_t>(size))) + ".";
  }

  std::string_view Run(bool (*belongs)(char)) {
    const std::size_t begin = at_;
    while (at_ < source_.size() && belongs(source_[at_])) ++at_;
    return source_.substr(begin, at_ - begin);
  }

  std::string Word(std::string_view what) {
    const std::size_t place = at_;
    const std::string_view word = Run(IsWordByte);
    if (word.empty()) Refuse(place, "Expected " + std::string(what) + Instead());
    return std::string(word);
  }

  /// What is in brackets or quotes; the closing one, doubled, stands for itself.
  std::string Bracketed() {
    const std::size_t place = at_;
    const char close = Next() == '[' ? ']' : Next();
    std::string text;
    for (++at_; at_ < source_.size(); ++at_) {
      if (source_[at_] == close && source_.substr(at_ + 1, 1) != std::string_view(&close, 1)) {
        ++at_;
        return text;
      }
      if (source_[at_] == close) ++at_;
      text += source_[at_];
    }
    Refuse(place, "There is no closing " + std::string(1, close) + ".");
  }

  Expression NumberOrDate() {
    Expression value = {.kind = Expression::Kind::kNumber, .place = at_};
    constexpr auto kBelongs = [](char c) {
      return IsWordByte(c) || c == '.' || c == '-' || c == '+' || c == ':';
    };
    value.text = Run(kBelongs);
    if (const auto date = OleDate::FromIso(value.text)) {
      value.kind = Expression::Kind::kDate;
      value.date = *date;
      return value;
    }
    const std::string_view text = value.text;
    const bool sign = text.front() == '+' || text.front() == '-';
    const std::size_t first = sign ? 1 : 0;
    const bool digits = text.size() > first && (IsDigit(text[first]) || text[first] == '.');
    const char* const begin = text.data() + (text.front() == '+' ? 1 : 0);
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(begin, end, value.number);
    if (error == std::errc::result_out_of_range) Refuse(value.place, "The number is too large.");
    if (!digits || error != std::errc() || stop != end) {
      Refuse(value.place, Quoted(value.text) +
                              " is not a number and not a date such as 2024-01-31. A column of "
                              "that name goes in brackets.");
    }
    return value;
  }

  /// A value inside `depth` calls, counting the one that it may be.
  Expression Value(int depth) {
    SkipBlanks();
    const char next = Next();
    const std::size_t place = at_;
    if (next == '[' || next == '`') return {Expression::Kind::kColumn, place, Bracketed()};
    if (next == '\'' || next == '"') return {Expression::Kind::kText, place, Bracketed()};
    if (IsDigit(next) || next == '-' || next == '+' || next == '.') return NumberOrDate();
    std::string word = Word("a value");
    if (Next() != '.' && Next() != '(') return {Expression::Kind::kWord, place, std::move(word)};
    return CallOf(std::move(word), place, depth);
  }

  Expression CallOf(std::string name, std::size_t place, int depth) {
    if (depth > kMaxNesting) Refuse(place, "Calls are nested too deep.");
    if (Next() == '.') {
      ++at_;
      name.append(".").append(Word("the name of an operation"));
    }
    Expression call = {Expression::Kind::kCall, place, std::move(name)};
    Expect('(', R"("(")");
    SkipBlanks();
    while (call.arguments.empty() ? Next() != ')' : Next() == ',') {
      if (!call.arguments.empty()) ++at_;
      call.arguments.push_back(NextArgument(depth));
      SkipBlanks();
    }
    Expect(')', "\",\" or \")\"");
    return call;
  }

  Expression NextArgument(int depth) {
    Expression argument = Value(depth + 1);
    argument.argument_place = argument.place;
    SkipBlanks();
    if (Next() != '=') return argument;
    if (argument.kind != Expression::Kind::kWord) {
      Refuse(at_, R"(Only the name of a parameter stands before "=".)");
    }
    ++at_;
    Expression value = Value(depth + 1);
    value.parameter = argument.text;
    value.argument_place = argument.place;
    return value;
  }

  std::string_view source_;
  std::size_t at_ = 0;
};

}  // namespace

WrongUse WrongExpression(std::string_view source, std::size_t place, std::string_view message) {
  std::string line(source);
  // Both lines stay lines, and the caret keeps its place.
  std::ranges::replace_if(
      line, [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
  const int columns = ZQ7Standard::TerminalWidth(FromUtf8(source.substr(0, place)));
  const std::string text = std::string(message) + "\n  " + line + "\n  " +
                           std::string(static_cast<std::size_t>(columns), ' ') + "^";
  return WrongUse(text);  // NOLINT(modernize-return-braced-init-list): explicit
}

ColumnExpression ReadColumnExpression(const std::string& source) {
  if (Utf8(FromUtf8(source)) != source) {
    throw WrongUse("An expression is not UTF-8: " + Quoted(Utf8(FromUtf8(source))) + ".");
  }
  Parser parser(source);
  ColumnExpression column = {.source = source, .name = parser.Name(), .call = {}};
  parser.Expect('=', R"("=" after the name of the new column)");
  column.call = parser.Call();
  parser.ExpectEnd();
  return column;
}

}  // namespace ZQ7Tool
