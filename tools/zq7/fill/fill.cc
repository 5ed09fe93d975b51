#include "fill/fill.h"

#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/date_convention.h>
#include <ZQ7Standard/platform/message_box.h>

#include <algorithm>
#include <filesystem>
#include <thread>
#include <utility>

#include "file_name.h"
#include "fill/csv_cells.h"
#include "fill/explain.h"
#include "fill/failure_report.h"
#include "fill/header.h"
#include "fill/output_file.h"
#include "fill/pipeline.h"
#include "fill/progress.h"
#include "names.h"
#include "wrong_use.h"

namespace ZQ7Tool {
namespace {

using namespace ZQ7Standard;

/// The host's services without what changes during a run or belongs to one thread, so that every
/// row of every thread sees the same.
Services StandingStill(Services services) {
  services.clock = FixedClock(services.clock->Now());
  services.date_convention = FixedDateConvention(services.date_convention->Current());
  return services;
}

void RefuseSameFiles(const std::string& name, const FillOptions& options) {
  if (IsSameFile(name, options.output)) {
    throw WrongUse("The output is the input file. Write to another one.");
  }
  if (options.errors.empty()) return;
  if (IsSameFile(name, options.errors)) throw WrongUse("--errors names the input file.");
  if (std::filesystem::weakly_canonical(FileNamed(options.errors)) ==
      std::filesystem::weakly_canonical(FileNamed(options.output))) {
    throw WrongUse("--errors names the output file.");
  }
}

/// Where the rows go: a file or standard output.
class Output {
 public:
  Output(const std::string& name, std::ostream& standard) : standard_(standard) {
    if (name != "-") file_.emplace(FileNamed(name));
  }

  /// False if standard output does not take any more, which the caller of the tool is told.
  bool Write(std::string_view bytes) {
    if (file_) file_->Write(bytes);
    return file_ ? true : bool(standard_.write(bytes.data(), std::ssize(bytes)));
  }

  void Commit() {
    if (file_) file_->Commit();
  }

 private:
  std::optional<OutputFile> file_;
  std::ostream& standard_;
};

/// The size of a file, for the time that is left; nullopt if it is not known.
std::optional<std::size_t> SizeOf(const std::string& name) {
  std::error_code none;
  const auto size = std::filesystem::file_size(FileNamed(name), none);
  return none ? std::nullopt : std::optional<std::size_t>(size);
}

/// A file whose header has been read, and what to do with its rows.
struct Opened {
  ChunkReader reader;
  Chunk first = {};  ///< without the header
  CellRules rules = {};
  Header header = {};
  Plan plan = {};
};

Opened Open(std::streambuf& source, const FillOptions& options) {
  std::vector<ColumnExpression> columns;
  for (const std::string& with : options.with) columns.push_back(ReadColumnExpression(with));
  Opened file = {ChunkReader(source)};
  const std::string_view mark = ByteOrderMark(file.reader.Beginning(), options.encoding);
  const std::string_view beginning = file.reader.Beginning().substr(mark.size());
  file.rules = {options.delimiter.value_or(DelimiterOf(beginning)), options.encoding, options.dates,
                options.guard};
  file.header.before = mark;
  file.reader.Begin(file.rules.delimiter, mark.size());
  file.reader.Next(file.first);
  TakeHeader(file.first, file.rules, file.header);
  file.plan = PlanColumns(file.header.names, columns);
  return file;
}

/// Writes all rows, or those before the first failure; false if nothing takes them any more.
bool FillRows(Opened& file, const FillOptions& options, const Services& services, Output& output,
              FailureReport& report, Progress& progress) {
  bool taken = output.Write(HeaderLine(file.header, file.plan, file.rules));
  bool begun = false;
  std::size_t bytes = 0;
  const auto read = [&](Chunk& chunk) {
    if (std::exchange(begun, true)) return file.reader.Next(chunk);
    std::swap(chunk, file.first);
    return true;
  };
  const auto make_filler = [&] {
    return ChunkFiller(file.plan, file.rules, options.stop, services);
  };
  const auto write = [&](const Chunk& chunk, const FilledChunk& filled) {
    taken = output.Write(filled.bytes);
    for (const FailedRow& row : filled.failed) report.Add(row);
    report.AddRows(filled.rows);
    progress.Show(report.Rows(), bytes += chunk.bytes.size());
    return taken && !(options.stop && report.Failed() > 0);
  };
  const std::size_t cores = std::max(std::thread::hardware_concurrency(), 1U);
  Pipeline(options.jobs > 0 ? options.jobs : cores).Run(read, make_filler, write);
  return taken;
}

}  // namespace

int FillFile(const std::string& name, std::streambuf& source, const FillOptions& options,
             const Settings& settings, const Streams& streams) {
  RefuseSameFiles(name, options);
  Opened file = Open(source, options);
  const Host host(settings, StreamMessageBox(streams.err));
  const Services services = StandingStill(host.Services());
  if (options.explain) {
    streams.out << Explanation(file.plan, file.rules, services.date_convention->Current());
    return kDone;
  }
  Output output(options.output, streams.out);
  FailureReport report(options.errors, options.stop);
  {
    Progress progress(streams.err_is_terminal && !options.quiet ? &streams.err : nullptr,
                      name == "-" ? std::nullopt : SizeOf(name));
    if (!FillRows(file, options, services, output, report, progress)) return kFailed;
  }
  if (!options.stop || report.Failed() == 0) output.Commit();
  report.Finish(streams.err);
  return report.Failed() == 0 ? kDone : kFailed;
}

}  // namespace ZQ7Tool
