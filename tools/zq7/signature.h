#ifndef ZQ7STANDARD_TOOLS_ZQ7_SIGNATURE_H_
#define ZQ7STANDARD_TOOLS_ZQ7_SIGNATURE_H_

#include <ZQ7Standard/automation/catalogue.h>

#include <string>
#include <string_view>
#include <vector>

/// Members of the catalogue in a readable form of no particular language.
namespace ZQ7Tool {

/// "Text", "Date", the name of an enumeration or of a class; empty for `kNothing`.
std::string TypeName(const ZQ7Standard::Automation::TypeInfo& type);

/// A value of that type as written in a signature: texts in quotation marks, enumeration members by
/// name.
std::string Literal(const ZQ7Standard::Automation::Value& value,
                    const ZQ7Standard::Automation::TypeInfo& type);

/// `name`(iText As Text, [Flag As Boolean = False]) As Date, in pieces that should not be broken
/// across lines. Optional parameters are in brackets.
std::vector<std::string> Signature(
    std::string_view name, const std::vector<ZQ7Standard::Automation::ParameterInfo>& parameters,
    const ZQ7Standard::Automation::TypeInfo& result = {});

/// The signature of an operation with the name of its class, in one line.
std::string SignatureLine(const ZQ7Standard::Automation::ClassInfo& owner,
                          const ZQ7Standard::Automation::OperationInfo& operation);

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_SIGNATURE_H_
