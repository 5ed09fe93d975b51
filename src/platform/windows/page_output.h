#ifndef ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PAGE_OUTPUT_H_
#define ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PAGE_OUTPUT_H_

#include <filesystem>
#include <string>

namespace ZQ7Standard {

/// The file that a document is printed to if the printer's port asks for one, deleted with the
/// object unless it is kept.
class PageOutput {
 public:
  /// Takes a new name in `folder`, by the time. If that is empty, the system asks the user; raises
  /// 482 where no user can see the question, which would otherwise wait for ever.
  PageOutput(const std::wstring& printer, const std::filesystem::path& folder);
  PageOutput(const PageOutput&) = delete;
  PageOutput& operator=(const PageOutput&) = delete;
  ~PageOutput();

  /// Empty for the printer's own port.
  const std::wstring& Name() const { return name_; }
  void Keep() { name_.clear(); }

 private:
  std::wstring name_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_WINDOWS_PAGE_OUTPUT_H_
