#ifndef ZQ7STANDARD_BENCH_STRESS_STRESS_H_
#define ZQ7STANDARD_BENCH_STRESS_STRESS_H_

#include <ZQ7Standard/platform/path_text.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

namespace ZQ7Standard::Stress {

using Folder = std::filesystem::path;

/// How many attempts were made, and how many were lost.
class Tally {
 public:
  explicit Tally(std::string name) : name_(std::move(name)) {}

  void Check(bool is_well, const std::string& what) {
    ++tries_;
    if (is_well) return;
    if (++lost_ <= 5) std::cout << "LOST " << name_ << ": " << what << std::endl;
  }

  /// Prints a line; returns whether nothing was lost.
  bool Report(const std::string& of = "") const {
    std::cout << name_ << ": " << tries_ << ' ' << of << ", lost " << lost_ << std::endl;
    return lost_ == 0 && tries_ > 0;
  }

 private:
  std::string name_;
  int tries_ = 0;
  int lost_ = 0;
};

inline std::string BytesOf(const Folder& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator(stream), {}};
}

// The parts, each in an empty folder of its own. They return whether nothing was lost.

/// Kills writers of settings, new files, the registry and pages, 500 times each.
bool Kills(const Folder& folder);
/// Fills the small disk that contains `folder`.
bool FullDisk(const Folder& folder);
/// Lets four writers, a slow reader and a copier work on one file for half a minute.
bool Crowd(const Folder& folder);
/// Cuts the power after each system call of a rewrite, and continues from every state that the disk
/// may then have.
bool PowerCuts(const Folder& folder);

}  // namespace ZQ7Standard::Stress

#endif  // ZQ7STANDARD_BENCH_STRESS_STRESS_H_
