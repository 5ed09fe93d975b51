#ifndef ZQ7STANDARD_SRC_AUTOMATION_BINDING_H_
#define ZQ7STANDARD_SRC_AUTOMATION_BINDING_H_

#include <ZQ7Standard/automation/catalogue.h>
#include <ZQ7Standard/platform/print_picture.h>
#include <ZQ7Standard/platform/serial_port.h>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>

#include "automation/conversion.h"
#include "automation/enumerations.h"

/// What a catalogue row derives from the C++ type of the member it names: the catalogue's types and
/// the call that converts values.
namespace ZQ7Standard::Automation {

template <typename T>
concept EnumerationType = std::is_enum_v<T>;

/// The catalogue type of a C++ type.
template <typename T>
inline constexpr Type kTypeOf = Type::kNothing;
template <>
inline constexpr Type kTypeOf<Text> = Type::kText;
template <>
inline constexpr Type kTypeOf<TextView> = Type::kText;
template <>
inline constexpr Type kTypeOf<std::uint8_t> = Type::kByte;
template <>
inline constexpr Type kTypeOf<std::int16_t> = Type::kInteger;
template <>
inline constexpr Type kTypeOf<std::int32_t> = Type::kLong;
template <EnumerationType T>
inline constexpr Type kTypeOf<T> = Type::kLong;
template <>
inline constexpr Type kTypeOf<float> = Type::kSingle;
template <>
inline constexpr Type kTypeOf<double> = Type::kDouble;
template <>
inline constexpr Type kTypeOf<bool> = Type::kBoolean;
template <>
inline constexpr Type kTypeOf<OleDate> = Type::kDate;
template <>
inline constexpr Type kTypeOf<Currency> = Type::kCurrency;
template <>
inline constexpr Type kTypeOf<TextList> = Type::kTextList;

template <typename T>
inline constexpr Type kTypeOf<std::optional<T>> = kTypeOf<T>;
template <typename T>
inline constexpr Type kTypeOf<std::shared_ptr<T>> = Type::kObject;

/// The name of the catalogue's class whose instances are `T`.
template <typename T>
inline constexpr std::string_view kClassNameOf = {};

template <typename T>
inline constexpr std::string_view kClassNameOf<std::shared_ptr<T>> = kClassNameOf<T>;
template <>
inline constexpr std::string_view kClassNameOf<PrintPicture> = "PrintPicture";
template <>
inline constexpr std::string_view kClassNameOf<SerialPort> = "SerialPort";

template <typename T>
TypeInfo TypeInfoOf() {
  if constexpr (EnumerationType<T>) {
    static_assert(!kEnumerationName<T>.empty(), "an enumeration that no value has");
    return {.type = Type::kLong, .enumeration = FindEnumeration(kEnumerationName<T>)};
  } else {
    static_assert(std::is_void_v<T> || kTypeOf<T> != Type::kNothing, "a type no value has");
    return {.type = kTypeOf<T>, .object_class = kClassNameOf<T>};
  }
}

/// Converts a value to a parameter of type `T`.
template <typename T>
T ToParameter(const Value& value, const Place& place) {
  if constexpr (EnumerationType<T>) {
    return static_cast<T>(ToInteger<std::int32_t>(value, place));
  } else if constexpr (std::same_as<T, bool>) {
    return ToBoolean(value, place);
  } else if constexpr (std::integral<T>) {
    return ToInteger<T>(value, place);
  } else if constexpr (std::same_as<T, float>) {
    return ToSingle(value, place);
  } else if constexpr (std::same_as<T, double>) {
    return ToDouble(value, place);
  } else if constexpr (std::same_as<T, OleDate>) {
    return ToDate(value, place);
  } else if constexpr (std::same_as<T, Currency>) {
    return ToCurrency(value, place);
  } else if constexpr (std::same_as<T, Text>) {
    return ToText(value, place);
  } else {
    return ToTextList(value, place);
  }
}

/// A value and the place it is passed to.
struct Source {
  const Value& value;
  Place place;
};

/// Keeps an argument while the call runs.
template <typename T>
class Argument {
 public:
  explicit Argument(const Source& source) : value_(ToParameter<T>(source.value, source.place)) {}
  const T& Get() const { return value_; }

 private:
  T value_;
};

/// A text is passed as it is in the value; any other value is converted to one.
template <>
class Argument<TextView> {
 public:
  explicit Argument(const Source& source) : text_(std::get_if<Text>(&source.value)) {
    if (text_ == nullptr) written_ = ToText(source.value, source.place);
  }
  TextView Get() const { return text_ == nullptr ? written_ : *text_; }

 private:
  const Text* text_;
  Text written_;
};

template <typename T>
class Argument<std::shared_ptr<T>> {
 public:
  explicit Argument(const Source& source)
      : object_(
            std::static_pointer_cast<T>(ToInstance(source.value, kClassNameOf<T>, source.place))) {}
  const std::shared_ptr<T>& Get() const { return object_; }

 private:
  std::shared_ptr<T> object_;
};

/// Whether a value is null and its parameter accepts null.
inline bool IsNullTaken(const Source& source) {
  const auto& [call, parameter] = source.place;
  return std::holds_alternative<Null>(source.value) && !call.parameters.empty() &&
         call.parameters[parameter].nullable;
}

/// An argument that the operation itself may find missing.
template <typename T>
class Argument<std::optional<T>> {
 public:
  explicit Argument(const Source& source) {
    if (!std::holds_alternative<Omitted>(source.value) && !IsNullTaken(source)) {
      value_ = ToParameter<T>(source.value, source.place);
    }
  }
  std::optional<T> Get() const { return value_; }

 private:
  std::optional<T> value_;
};

/// The result of an operation as a value.
template <typename T>
Value ToValue(T&& result) {
  using Result = std::remove_cvref_t<T>;
  if constexpr (EnumerationType<Result>) {
    return static_cast<std::int32_t>(result);
  } else if constexpr (std::same_as<Result, std::uint8_t>) {
    return static_cast<std::int16_t>(result);
  } else {
    return Value(std::forward<T>(result));
  }
}

template <typename Member>
struct MemberTraits;
template <typename C, typename R, typename... P>
struct MemberTraits<R (C::*)(P...)> {
  using Class = C;
  using Result = R;
  using Parameters = std::tuple<std::remove_cvref_t<P>...>;
};
template <typename C, typename R, typename... P>
struct MemberTraits<R (C::*)(P...) const> : MemberTraits<R (C::*)(P...)> {};

template <auto Member>
using ClassOf = typename MemberTraits<decltype(Member)>::Class;
template <auto Member>
using ResultOf = typename MemberTraits<decltype(Member)>::Result;
template <auto Member>
using ParametersOf = typename MemberTraits<decltype(Member)>::Parameters;
template <auto Member>
inline constexpr std::size_t kParameterCount = std::tuple_size_v<ParametersOf<Member>>;

/// Calls `Member` on an instance with one value for each of its parameters.
template <auto Member>
Value CallMember(void* instance, std::span<const Value* const> arguments,
                 const CallContext& context) {
  static_assert(kParameterCount<Member> <= kMaxParameters);
  auto& object = *static_cast<ClassOf<Member>*>(instance);
  return [&]<std::size_t... I>(std::index_sequence<I...>)->Value {
    using Parameters = ParametersOf<Member>;
    const std::tuple<Argument<std::tuple_element_t<I, Parameters>>...> values(
        Source{*arguments[I], {context, I}}...);
    if constexpr (std::is_void_v<ResultOf<Member>>) {
      std::invoke(Member, object, std::get<I>(values).Get()...);
      return Omitted{};
    } else {
      return ToValue(std::invoke(Member, object, std::get<I>(values).Get()...));
    }
  }
  (std::make_index_sequence<kParameterCount<Member>>{});
}

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_BINDING_H_
