#include "fill/failure_report.h"

#include <algorithm>
#include <utility>

#include "fill/csv_cells.h"

namespace ZQ7Tool {
namespace {

constexpr std::size_t kMostReasons = 10;

}  // namespace

FailureReport::FailureReport(std::string file, bool stop) : name_(std::move(file)), stop_(stop) {
  if (name_.empty()) return;
  file_.emplace(name_);
  file_->Write("line,column,reason\n");
}

void FailureReport::Add(const FailedRow& row) {
  ++failed_;
  Count(row);
  if (!file_) return;
  std::string line = std::to_string(row.line) + ",";
  AppendCell(line, row.failure.column, ',');
  line += ',';
  AppendCell(line, row.failure.reason, ',');
  file_->Write(line += '\n');
}

/// Adds a row to those with the same reason.
void FailureReport::Count(const FailedRow& row) {
  const std::string& column = row.failure.column;
  const std::string text = (column.empty() ? "" : column + ": ") + row.failure.reason;
  const auto same = std::ranges::find(reasons_, text, &Reason::text);
  if (same != reasons_.end()) {
    ++same->rows;
  } else if (reasons_.size() < kMostReasons) {
    reasons_.push_back({text, row.line, 1});
  }
}

void FailureReport::Finish(std::ostream& err) {
  if (file_) file_->Commit();
  if (failed_ == 0) return;
  if (stop_) {
    err << "zq7: stopped at a row that fails:\n";
  } else {
    err << "zq7: " << failed_ << " of " << rows_ << (rows_ == 1 ? " row" : " rows") << " failed";
    err << (file_ ? "; " + name_ + " has the reasons\n" : ":\n");
  }
  if (stop_ || !file_) Summarize(err);
}

void FailureReport::Summarize(std::ostream& err) const {
  std::size_t others = failed_;
  for (const Reason& reason : reasons_) {
    others -= reason.rows;
    err << "  line " << reason.first_line;
    if (reason.rows > 1) err << " and " << reason.rows - 1 << " more";
    err << ": " << reason.text << '\n';
  }
  if (others > 0) err << "  and " << others << " more rows; --errors FILE writes them all\n";
}

}  // namespace ZQ7Tool
