#ifndef ZQ7STANDARD_TOOLS_PAGES_PAGE_H_
#define ZQ7STANDARD_TOOLS_PAGES_PAGE_H_

#include <filesystem>
#include <functional>
#include <map>
#include <string>

/// The files of the source that are made from the catalogue and stored, so that no build runs
/// what it built.
namespace ZQ7Pages {

/// The text for each "@NAME@" of a template.
using Fields = std::map<std::string, std::string, std::less<>>;

/// One such file: a template whose fields a writer fills. Paths are from the source folder.
struct Page {
  std::filesystem::path file;
  std::filesystem::path template_file;
  std::function<Fields()> fields;
};

/// The template with its fields filled, each as often as it occurs. Throws `std::runtime_error`
/// if the template cannot be read or names a field that is not there.
std::string Filled(const std::filesystem::path& template_file, const Fields& fields);

}  // namespace ZQ7Pages

#endif  // ZQ7STANDARD_TOOLS_PAGES_PAGE_H_
