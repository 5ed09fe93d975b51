#include "io/files/attempts.h"

#include "formats/path_parts.h"
#include "io/failures.h"

namespace ZQ7Standard {

void Warn(ServiceSet& services, std::int16_t level, TextView problem) {
  if (level < 1) return;
  Try([&] { services.MessageBox().Show({.title = u"Warning", .text = Text(problem)}); });
}

void Attempt(ServiceSet& services, std::int16_t level,
             const std::function<TextView()>& find_problem) {
  TextView problem = u"Not found specified folder or no permission to write.";
  Try([&] { problem = find_problem(); });
  if (!problem.empty()) Warn(services, level, problem);
}

TextView FolderProblem(ServiceSet& services, TextView path, TextView read_only_problem) {
  const auto folder = services.FileStatus().StatusOf(FolderPart(path));
  if (!folder || !folder->is_folder) return u"Not found specified folder.";
  return folder->read_only ? read_only_problem : TextView();
}

TextView WriteOrCreate(ServiceSet& services, TextView path, const std::function<bool()>& write,
                       std::string_view bytes, TextView read_only_problem) {
  while (!write()) {
    const TextView problem = FolderProblem(services, path, read_only_problem);
    if (!problem.empty()) return problem;
    if (services.FileWriter().Create(path, bytes)) break;
    // Another process has created it in between.
  }
  return {};
}

}  // namespace ZQ7Standard
