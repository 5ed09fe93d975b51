#include <ZQ7Standard/ASCIIObject.h>

#include <algorithm>
#include <limits>
#include <optional>

#include "base/case_mapping.h"
#include "base/code_page.h"
#include "base/raise.h"
#include "formats/lines.h"
#include "formats/path_parts.h"
#include "io/files/attempts.h"

namespace ZQ7Standard {
namespace {

/// The number of lines that a 32-bit loop from max(`from`, 1) to `to` can read.
std::int64_t LinesToRead(std::int32_t from, std::int32_t to) {
  const std::int64_t last = to == 0 ? std::numeric_limits<std::int32_t>::max() : to;
  return last - std::max(from, 1) + 1;
}

/// The lines of `contents`, joined; nullopt if there are more than `most`.
std::optional<std::string> JoinLines(std::string_view contents, std::int64_t most) {
  std::string joined;
  for (std::int64_t count = 0; !contents.empty(); ++count) {
    if (count >= most) return std::nullopt;
    // An empty first line leaves no trace.
    if (!joined.empty()) joined += kLineEnd;
    joined += TakeLine(contents);
  }
  return joined;
}

bool IsDesktop(TextView folder) {
  return EqualsIgnoringCase(FileNamePart(folder), u"Desktop");
}

}  // namespace

Text ASCIIObject::GETAllTextFile(TextView iTextFile) const {
  const auto contents = Named({"GETAllTextFile", "iTextFile"},
                              [&] { return services_->FileReader().ReadAll(iTextFile); });
  return contents ? FromCodePage(*JoinLines(*contents, LinesToRead(1, 0))) : Text();
}

Text ASCIIObject::GETLineTextFile(TextView iTextFile, std::int32_t FromLine,
                                  std::int32_t ToLine) const {
  const auto contents = Named({"GETLineTextFile", "iTextFile"},
                              [&] { return services_->FileReader().ReadAll(iTextFile); });
  if (!contents) return {};
  const auto lines = JoinLines(*contents, LinesToRead(FromLine, ToLine));
  if (!lines) Raise(Error::kOverflow, {"GETLineTextFile", "ToLine"}, ToLine);
  return FromCodePage(*lines);
}

void ASCIIObject::SaveStringToTextFile(TextView iTextFile, TextView iValue) const {
  SaveStringToTextFile2(iTextFile, iValue, false);
}

void ASCIIObject::SaveStringToTextFile2(TextView iTextFile, TextView iValue,
                                        bool UseAppendMode) const {
  Attempt(*services_, disable_msg_level_, [&]() -> TextView {
    const std::string bytes = ToCodePage(iValue);
    const auto append = [&] {
      const auto file = services_->FileStatus().StatusOf(iTextFile);
      if (!file || file->is_folder) return false;
      services_->FileWriter().Append(iTextFile, bytes);
      return true;
    };
    const auto rewrite = [&] {
      return services_->FileRewriter().Rewrite(iTextFile,
                                               [&](const auto&) { return std::string(bytes); });
    };
    const bool desktop = IsDesktop(FolderPart(iTextFile));
    return WriteOrCreate(
        *services_, iTextFile, [&] { return UseAppendMode ? append() : rewrite(); }, bytes,
        desktop ? u"" : u"Specified folder can not write.");
  });
}

}  // namespace ZQ7Standard
