#ifndef ZQ7STANDARD_TOOLS_ZQ7_FILL_FAILURE_REPORT_H_
#define ZQ7STANDARD_TOOLS_ZQ7_FILL_FAILURE_REPORT_H_

#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "fill/chunk_filler.h"
#include "fill/output_file.h"

namespace ZQ7Tool {

/// Counts rows, and takes those that failed in their order: to a CSV file with a line for each, and
/// for a summary of the reasons that come first.
class FailureReport {
 public:
  /// No file if `file` is empty. With `stop`, the first failure is the last.
  FailureReport(std::string file, bool stop);

  void Add(const FailedRow& row);

  void AddRows(std::size_t rows) { rows_ += rows; }

  /// Completes the file, and sums up on `err` if a row failed.
  void Finish(std::ostream& err);

  std::size_t Rows() const { return rows_; }
  std::size_t Failed() const { return failed_; }

 private:
  struct Reason {
    std::string text;
    std::size_t first_line;
    std::size_t rows;
  };

  void Count(const FailedRow& row);
  void Summarize(std::ostream& err) const;

  std::string name_;
  std::optional<OutputFile> file_;
  std::vector<Reason> reasons_;
  std::size_t rows_ = 0;
  std::size_t failed_ = 0;
  bool stop_;
};

}  // namespace ZQ7Tool

#endif  // ZQ7STANDARD_TOOLS_ZQ7_FILL_FAILURE_REPORT_H_
