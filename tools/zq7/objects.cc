#include "objects.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/print_picture.h>

#include <string>

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;
using namespace ZQ7Standard::Automation;

Object ObjectOf(const Text& text, std::string_view class_name, const Services& services) {
  if (class_name == "PrintPicture") return Wrap(PictureFromFile(text, services.drives), services);
  if (SameName(Utf8(text), class_name)) return Create(class_name, services);
  throw RunTimeError(
      {.number = static_cast<int>(Error::kTypeMismatch), .text = "type mismatch", .input = text});
}

}  // namespace

void MakeObjects(TypedCall& call, const Services& services) {
  ForEachArgument(call, [&](const ParameterInfo& parameter, Value& value) {
    const auto* const text = std::get_if<Text>(&value);
    if (text == nullptr || parameter.type.type != Type::kObject) return;
    try {
      value = ObjectOf(*text, parameter.type.object_class, services);
    } catch (const RunTimeError& error) {
      ErrorDetails details = error.Details();
      details.class_name = call.owner.name;
      details.operation = call.operation.name;
      details.parameter = parameter.name;
      throw RunTimeError(details);
    }
  });
}

}  // namespace ZQ7Tool
