#include "fill/failure_report.h"

namespace ZQ7Tool {
namespace {

constexpr std::size_t kMostShown = 10;

}  // namespace

std::string FailureLine(const FailedRow& row) {
  const std::string& column = row.failure.column;
  return "line " + std::to_string(row.line) + ": " + (column.empty() ? "" : column + ": ") +
         row.failure.reason;
}

FailureReport::FailureReport(const std::string& file, bool stop) : name_(file), stop_(stop) {
  if (name_.empty()) return;
  file_.emplace(name_);
  file_->Write("line,column,reason\n");
}

void FailureReport::Add(const FailedRow& row) {
  ++failed_;
  if (failed_ <= kMostShown) first_ += "  " + FailureLine(row) + "\n";
  if (file_) {
    std::string line = std::to_string(row.line) + ",";
    AppendCell(line, row.failure.column, ',');
    line += ',';
    AppendCell(line, row.failure.reason, ',');
    file_->Write(line += '\n');
  }
}

void FailureReport::Finish(std::ostream& err) {
  if (file_) file_->Commit();
  if (failed_ == 0) return;
  if (stop_) {
    err << "zq7: stopped at a row that fails:\n" << first_;
    return;
  }
  err << "zq7: " << failed_ << " of " << rows_ << (rows_ == 1 ? " row" : " rows") << " failed";
  if (file_) {
    err << "; " << name_ << " has the reasons\n";
    return;
  }
  err << ":\n" << first_;
  if (failed_ > kMostShown) {
    err << "  and " << failed_ - kMostShown << " more; --errors FILE writes all of them\n";
  }
}

}  // namespace ZQ7Tool
