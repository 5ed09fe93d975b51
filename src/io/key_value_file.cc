#include <ZQ7Standard/ASCIIObject.h>

#include "io/failures.h"
#include "io/key_value_text.h"
#include "io/rewrite.h"
#include "text/code_page.h"

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
  Attempt([&]() -> TextView {
    const auto contents = services_.file_reader->ReadAll(iTextFile);
    if (!contents) {
      return Create(iTextFile, SettingLine(IKey, iValue), u"Specified folder can not write.");
    }
    RewriteFile(*services_.file_rewriter, iTextFile, WithValue(*contents, IKey, iValue));
    return {};
  });
}

void ASCIIObject::DeleteValue(TextView iTextFile, TextView IKey) const {
  const auto contents = services_.file_reader->ReadAll(iTextFile);
  if (contents) RewriteFile(*services_.file_rewriter, iTextFile, WithoutKey(*contents, IKey));
}

}  // namespace ZQ7Standard
