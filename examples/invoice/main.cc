// Reads invoices as a Thai office types them and prints what goes on paper: the
// dates, the payment term, the amount in words, and what all of them come to.

#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/Types.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <fstream>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <system_error>
#include <vector>

#include "csv.h"
#include "invoice.h"
#include "report.h"
#include "totals.h"

namespace InvoiceDemo {
namespace {

using ZQ7Standard::StandardObject;
using ZQ7Standard::Utf8;

enum ExitStatus : int { kAllPrinted = 0, kSomeRowsBad = 1, kNotRun = 2 };

/// The invoices of a table, and a line of text for each row that is none.
struct InvoiceList {
  std::vector<Invoice> invoices;
  std::vector<std::string> mistakes;
};

std::optional<std::string> ReadAll(std::istream& in) {
  std::string bytes;
  std::array<char, 65536> buffer;
  do {
    in.read(buffer.data(), buffer.size());
    bytes.append(buffer.data(), static_cast<std::size_t>(in.gcount()));
  } while (in);
  if (in.bad() || !in.eof()) return std::nullopt;
  return bytes;
}

std::optional<std::string> ReadFile(const std::string& name) {
  if (name == "-") return ReadAll(std::cin);
  std::ifstream file(name, std::ios::binary);
  return ReadAll(file);
}

InvoiceList ReadInvoices(const StandardObject& standard, std::span<const CsvRow> rows) {
  InvoiceList list;
  const bool has_header = !rows.empty() && IsHeader(standard, rows.front().fields);
  for (const CsvRow& row : rows.subspan(has_header ? 1 : 0)) {
    try {
      if (!row.mistake.empty()) throw FieldError("row", row.mistake);
      list.invoices.push_back(ReadInvoice(standard, row.fields));
    } catch (const FieldError& error) {
      list.mistakes.push_back("line " + std::to_string(row.line) + ", " + error.Field() + ": " +
                              error.what());
    }
  }
  return list;
}

int Complain(const std::string& what) {
  std::cerr << "invoice: " << what << '\n';
  return kNotRun;
}

int Run(const std::string& name, bool verbose) {
  const std::string shown_name = name == "-" ? "standard input" : name;
  errno = 0;
  const auto bytes = ReadFile(name);
  if (!bytes) {
    return Complain("cannot read " + shown_name + ": " + std::generic_category().message(errno));
  }
  const StandardObject standard;
  const InvoiceList list = ReadInvoices(standard, ReadCsv(ZQ7Standard::FromUtf8(*bytes)));

  Totals totals;
  if (verbose) totals.Follow(std::cerr);
  for (const Invoice& invoice : list.invoices) totals.Add(standard, invoice);

  std::cout << Utf8(Report(standard, list.invoices, totals)) << std::flush;
  const bool printed = std::cout.good();
  for (const std::string& mistake : list.mistakes) {
    std::cerr << shown_name << ", " << mistake << '\n';
  }
  if (!printed) return Complain("cannot write the invoices to standard output");
  return list.mistakes.empty() ? kAllPrinted : kSomeRowsBad;
}

}  // namespace
}  // namespace InvoiceDemo

int main(int argc, char** argv) {
  // Without buffers shared with C, a failed read of standard input is told from its end.
  std::ios::sync_with_stdio(false);
  std::vector<std::string> arguments(argv + 1, argv + argc);
  const bool verbose = std::erase(arguments, "--verbose") > 0;
  const std::string name = arguments.empty() ? INVOICES_FILE : arguments.front();
  if (arguments.size() > 1 || (name.starts_with('-') && name != "-")) {
    std::cerr << "usage: invoice [--verbose] [FILE | -]\n";
    return InvoiceDemo::kNotRun;
  }
  return InvoiceDemo::Run(name, verbose);
}
