// Reads invoices as a Thai office types them and prints what goes on paper: the
// dates, the payment term, the amount in words, and what all of them come to. With
// settings beside the data it counts the documents and logs them.

#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/Types.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <exception>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "csv.h"
#include "drawer.h"
#include "invoice_list.h"
#include "issue.h"
#include "office.h"
#include "report.h"
#include "terminal_text.h"
#include "totals.h"

namespace InvoiceDemo {
namespace {

using ZQ7Standard::FromUtf8;
using ZQ7Standard::StandardObject;
using ZQ7Standard::Utf8;

enum ExitStatus : int { kAllPrinted = 0, kSomeRowsBad = 1, kNotRun = 2 };

struct Options {
  bool verbose = false;
  bool drawer = false;
  std::string pdf_folder;  ///< empty for no PDF files
  std::string file;        ///< "-" is standard input
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

int Complain(const std::string& what) {
  std::cerr << "invoice: " << what << '\n';
  return kNotRun;
}

Outlets MakeOutlets(const Options& options) {
  Outlets outlets;
  if (options.file != "-") outlets.office = Office::Beside(options.file);
  if (!options.pdf_folder.empty()) outlets.pdf = std::make_unique<PdfFolder>(options.pdf_folder);
  return outlets;
}

void LogRead(Office& office, const std::string& name, const InvoiceList& list) {
  const std::string counts = ": " + std::to_string(list.invoices.size()) + " invoices, " +
                             std::to_string(list.mistakes.size()) + " mistakes";
  office.Log(u"Read", u"OK", FromUtf8(name + counts));
}

/// Who sends the invoices, and on what paper.
void PrintSender(const Company& sender) {
  if (!sender.name.empty()) std::cout << "  " << Utf8(OneLine(sender.name)) << '\n';
  if (sender.logo) {
    const auto& [file, width, height] = *sender.logo;
    std::cout << "  " << file.filename().string() << ' ' << width << " x " << height << " pixels\n";
  }
  std::cout << '\n';
}

/// Issues and prints the invoices of a file that was read to `bytes`.
int Process(const Options& options, const std::string& shown_name, const std::string& bytes) {
  const StandardObject standard;
  const Outlets outlets = MakeOutlets(options);
  InvoiceDefaults defaults;
  if (outlets.office) defaults = {true, outlets.office->DefaultNetDays()};
  InvoiceList list = ReadInvoices(standard, ReadCsv(FromUtf8(bytes)), defaults);
  if (outlets.office) LogRead(*outlets.office, shown_name, list);

  Totals totals;
  if (options.verbose) totals.Follow(std::cerr);
  const std::string failure = IssueAll(standard, outlets, list, totals);
  if (outlets.office && !list.invoices.empty()) PrintSender(outlets.office->Sender());
  std::cout << Utf8(Report(standard, list.invoices, totals));
  const bool printed = std::cout.flush().good();
  for (const std::string& mistake : list.mistakes) {
    std::cerr << shown_name << ", " << mistake << '\n';
  }
  if (!printed) return Complain("cannot write the invoices to standard output");
  if (!failure.empty()) return Complain(failure);
  if (options.drawer) std::cout << "  Drawer      " << KickDrawer() << std::endl;
  return list.mistakes.empty() ? kAllPrinted : kSomeRowsBad;
}

int Run(const Options& options) {
  const std::string shown_name = options.file == "-" ? "standard input" : options.file;
  errno = 0;
  const auto bytes = ReadFile(options.file);
  if (!bytes) {
    return Complain("cannot read " + shown_name + ": " + std::generic_category().message(errno));
  }
  try {
    return Process(options, shown_name, *bytes);
  } catch (const std::exception& error) {
    return Complain(error.what());
  }
}

/// Nothing when the arguments are not those of the usage.
std::optional<Options> ReadOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--verbose") {
      options.verbose = true;
    } else if (argument == "--drawer") {
      options.drawer = true;
    } else if (argument == "--pdf" && i + 1 < arguments.size()) {
      options.pdf_folder = arguments[++i];
    } else if (options.file.empty() && (argument == "-" || !argument.starts_with('-'))) {
      options.file = argument;
    } else {
      return std::nullopt;
    }
  }
  if (options.file.empty()) return std::nullopt;
  return options;
}

}  // namespace
}  // namespace InvoiceDemo

int main(int argc, char** argv) {
  // Without buffers shared with C, a failed read of standard input is told from its end.
  std::ios::sync_with_stdio(false);
  const auto options = InvoiceDemo::ReadOptions({argv + 1, argv + argc});
  if (!options) {
    std::cerr << "usage: invoice [--verbose] [--drawer] [--pdf FOLDER] FILE | -\n";
    return InvoiceDemo::kNotRun;
  }
  return InvoiceDemo::Run(*options);
}
