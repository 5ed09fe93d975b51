#include <ZQ7Standard/ASCIIObject.h>

#include "base/code_page.h"
#include "base/raise.h"
#include "formats/key_value_text.h"
#include "io/failures.h"

namespace ZQ7Standard {

Text ASCIIObject::GetValue(TextView iTextFile, TextView IKey) const {
  Text value;
  const bool is_read = Try([&] {
    const auto contents = services_.file_reader->ReadAll(iTextFile);
    if (contents) value = FromCodePage(FindValue(*contents, IKey));
  });
  if (!is_read) Warn(u"Not found specified file");
  return value;
}

void ASCIIObject::Setvalue(TextView iTextFile, TextView IKey, TextView iValue) const {
  Attempt([&] {
    const auto set = [&](const auto& old) { return WithValue(old(), IKey, iValue); };
    return WriteOrCreate(
        iTextFile, [&] { return services_.file_rewriter->Rewrite(iTextFile, set); },
        SettingLine(IKey, iValue), u"Specified folder can not write.");
  });
}

void ASCIIObject::DeleteValue(TextView iTextFile, TextView IKey) const {
  Named({"DeleteValue", "iTextFile"}, [&] {
    services_.file_rewriter->Rewrite(iTextFile,
                                     [&](const auto& old) { return WithoutKey(old(), IKey); });
  });
}

}  // namespace ZQ7Standard
