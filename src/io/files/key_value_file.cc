#include <ZQ7Standard/ASCIIObject.h>

#include "base/code_page.h"
#include "base/raise.h"
#include "formats/key_value_text.h"
#include "io/failures.h"
#include "io/files/attempts.h"

namespace ZQ7Standard {

Text ASCIIObject::GetValue(TextView iTextFile, TextView IKey) const {
  Text value;
  const bool is_read = Try([&] {
    const auto contents = services_->FileReader().ReadAll(iTextFile);
    if (contents) value = FromCodePage(FindValue(*contents, IKey));
  });
  if (!is_read) Warn(*services_, disable_msg_level_, u"Not found specified file");
  return value;
}

void ASCIIObject::Setvalue(TextView iTextFile, TextView IKey, TextView iValue) const {
  Attempt(*services_, disable_msg_level_, [&] {
    const auto set = [&](const auto& old) { return WithValue(old(), IKey, iValue); };
    return WriteOrCreate(
        *services_, iTextFile, [&] { return services_->FileRewriter().Rewrite(iTextFile, set); },
        SettingLine(IKey, iValue), u"Specified folder can not write.");
  });
}

void ASCIIObject::DeleteValue(TextView iTextFile, TextView IKey) const {
  Named({"DeleteValue", "iTextFile"}, [&] {
    services_->FileRewriter().Rewrite(iTextFile,
                                      [&](const auto& old) { return WithoutKey(old(), IKey); });
  });
}

}  // namespace ZQ7Standard
