#ifndef ZQ7STANDARD_TOOLS_ZQ7_SIGNATURE_H_
#define ZQ7STANDARD_TOOLS_ZQ7_SIGNATURE_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <string>
#include <string_view>
#include <vector>

/// Members of the catalogue as people read them, in the terms of no one language.
namespace ZQ7Tool {

/// "Text", "Date", the name of an enumeration or of a class; empty for `kNothing`.
std::string TypeName(const ZQ7Standard::Automation::TypeInfo& type);

/// A value of that type as it is written in a signature: texts in quotation marks, a
/// member of an enumeration by its name.
std::string Literal(const ZQ7Standard::Automation::Value& value,
                    const ZQ7Standard::Automation::TypeInfo& type);

/// `name`(iText As Text, [Flag As Boolean = False]) As Date, in pieces that belong on
/// one line each. An optional parameter is in brackets.
std::vector<std::string> Signature(
    std::string_view name, const std::vector<ZQ7Standard::Automation::ParameterInfo>& parameters,
    const ZQ7Standard::Automation::TypeInfo& result = {});

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_SIGNATURE_H_
