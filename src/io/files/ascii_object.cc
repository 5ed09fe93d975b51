#include <ZQ7Standard/ASCIIObject.h>

#include <utility>

#include "formats/path_parts.h"
#include "io/failures.h"

namespace ZQ7Standard {

ASCIIObject::ASCIIObject() : ASCIIObject(ASCIIServices{}) {}

ASCIIObject::ASCIIObject(ASCIIServices services) : services_(std::move(services)) {
  if (!services_.file_status) services_.file_status = SystemFileStatus();
  if (!services_.file_reader) services_.file_reader = SystemFileReader();
  if (!services_.file_writer) services_.file_writer = SystemFileWriter();
  if (!services_.file_rewriter) services_.file_rewriter = SystemFileRewriter();
  if (!services_.message_box) services_.message_box = ErrorStreamMessageBox();
  if (!services_.clock) services_.clock = SystemClock();
  if (!services_.time_text) services_.time_text = SystemTimeText();
}

std::int16_t ASCIIObject::DisableMsgLevel() const {
  return disable_msg_level_;
}

void ASCIIObject::SetDisableMsgLevel(std::int16_t DisableMsgLevel) {
  disable_msg_level_ = DisableMsgLevel;
}

/// Shows `problem`. No operation fails for want of a message box.
void ASCIIObject::Warn(TextView problem) const {
  if (disable_msg_level_ < 1) return;
  Try([&] { services_.message_box->Show({.title = u"Warning", .text = Text(problem)}); });
}

/// Does what `find_problem` does, and shows the problem that it gives or, when it
/// fails, the problem that there is then.
void ASCIIObject::Attempt(const std::function<TextView()>& find_problem) const {
  TextView problem = u"Not found specified folder or no permission to write.";
  Try([&] { problem = find_problem(); });
  if (!problem.empty()) Warn(problem);
}

/// What keeps a file out of the folder of `path`; empty when nothing does.
TextView ASCIIObject::FolderProblem(TextView path, TextView read_only_problem) const {
  const auto folder = services_.file_status->StatusOf(FolderPart(path));
  if (!folder || !folder->is_folder) return u"Not found specified folder.";
  return folder->read_only ? read_only_problem : TextView();
}

/// Does `write`, which returns false when there is no file, and then makes the file of
/// `bytes`. Returns the problem of its folder where that has one.
TextView ASCIIObject::WriteOrCreate(TextView path, const std::function<bool()>& write,
                                    std::string_view bytes, TextView read_only_problem) const {
  while (!write()) {
    const TextView problem = FolderProblem(path, read_only_problem);
    if (!problem.empty()) return problem;
    if (services_.file_writer->Create(path, bytes)) break;
    // Another process has made it in between.
  }
  return {};
}

}  // namespace ZQ7Standard
