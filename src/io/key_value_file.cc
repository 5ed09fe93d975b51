#include <ZQ7Standard/ASCIIObject.h>

#include <exception>

#include "io/key_value_text.h"
#include "io/rewrite.h"
#include "text/code_page.h"

namespace ZQ7Standard {

Text ASCIIObject::GetValue(TextView iTextFile, TextView IKey) const {
  try {
    const auto contents = services_.file_reader->ReadAll(iTextFile);
    return contents ? FromCodePage(FindValue(*contents, IKey)) : Text();
  } catch (const std::exception&) {
    Warn(u"Not found specified file");
    return {};
  }
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
