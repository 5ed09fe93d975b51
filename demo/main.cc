// Reads invoices as a Thai office types them and prints what goes on paper: the
// dates, the payment term, the amount in words, and what all of them come to. With
// settings beside the data it counts the documents and logs them.

#include <ZQ7Standard/GridValueListener.h>
#include <ZQ7Standard/GridValueObject.h>
#include <ZQ7Standard/StandardObject.h>
#include <stdlib.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <iostream>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

#include "csv_rows.h"
#include "invoice.h"
#include "office.h"
#include "output.h"

namespace InvoiceDemo {
namespace {

enum ExitStatus : int { kAllPrinted = 0, kSomeRowsBad = 1, kNotRun = 2 };

struct Options {
  bool verbose = false;
  bool drawer = false;
  std::string pdf_folder;  ///< empty for no PDF files
  std::string file;        ///< "-" is standard input
};

/// Returns nullopt if the arguments are not those of the usage.
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

/// Writes what the invoices in a grid come to after each of them.
class RunningTotal final : public GridValueListener {
 public:
  explicit RunningTotal(const GridValueObject& grid) : grid_(grid) {}

  void CellDataChange(std::int32_t Row, std::int32_t Col) override {
    if (Col != kAmounts) return;
    std::cerr << "invoice " << Row + 1
              << ", running total: " << Utf8(FormatAmount(grid_.SumCol(kAmounts))) << '\n';
  }

 private:
  const GridValueObject& grid_;
};

std::string ReadFile(const std::string& name, const std::string& shown_name) {
  std::FILE* const file = name == "-" ? stdin : std::fopen(name.c_str(), "rb");
  std::string bytes;
  std::array<char, 65536> buffer;
  std::size_t count = 1;
  while (file != nullptr && count > 0) {
    count = std::fread(buffer.data(), 1, buffer.size(), file);
    bytes.append(buffer.data(), count);
  }
  if (file == nullptr || std::ferror(file) != 0) {
    throw std::system_error(errno, std::generic_category(), "cannot read " + shown_name);
  }
  std::fclose(file);
  return bytes;
}

/// Assigns each invoice a number if it has none, makes its PDF file, logs it and adds it to
/// the totals. Drops the invoices from the first that fails on, and returns the failure.
std::string IssueAll(const StandardObject& standard, const Company& sender,
                     const std::string& pdf_folder, std::optional<Office>& office,
                     InvoiceList& list, GridValueObject& totals) {
  std::int32_t row = 0;
  for (auto invoice = list.invoices.begin(); invoice != list.invoices.end(); ++invoice, ++row) {
    Text& number = invoice->number;
    try {
      if (number.empty()) number = office.value().TakeNumber(standard, list.typed_numbers);
      if (!pdf_folder.empty()) MakePdf(standard, sender, *invoice, pdf_folder);
      if (office) {
        office->Log(u"Document",
                    number + u" " + invoice->customer_code + u" " + FormatAmount(invoice->amount));
      }
    } catch (const std::exception& error) {
      const std::string failed = number.empty() ? "" : Utf8(OneLine(number)) + ": ";
      list.invoices.erase(invoice, list.invoices.end());
      return failed + error.what();
    }
    totals.Setvalue(row, kAmounts, invoice->amount);
    totals.Setvalue(row, kDiscounts, invoice->discount);
  }
  return {};
}

/// Who sends the invoices, and on what paper.
void PrintSender(const Company& sender) {
  if (!sender.name.empty()) std::cout << "  " << Utf8(OneLine(sender.name)) << '\n';
  if (!sender.logo.empty()) {
    std::cout << "  " << sender.logo.filename().string() << ' ' << sender.logo_width << " x "
              << sender.logo_height << " pixels\n";
  }
  std::cout << '\n';
}

ExitStatus Run(const Options& options) {
  const std::string shown_name = options.file == "-" ? "standard input" : options.file;
  const std::vector<CsvRow> rows = ReadCsv(ReadFile(options.file, shown_name));
  std::optional<Office> office;
  if (options.file != "-") office = Office::Beside(options.file);

  const StandardObject standard;
  const Company sender = office ? office->Sender() : Company();
  InvoiceList list = ReadInvoices(standard, rows, sender.default_net_days);
  const auto& [invoices, mistakes, typed_numbers] = list;
  if (office) {
    office->Log(u"Read", FromUtf8(shown_name + ": " + std::to_string(invoices.size()) +
                                  " invoices, " + std::to_string(mistakes.size()) + " mistakes"));
  }
  GridValueObject totals;
  totals.SetCols(kTotalsColumnCount);
  if (options.verbose) totals.AddListener(std::make_shared<RunningTotal>(totals));
  const std::string failure = IssueAll(standard, sender, options.pdf_folder, office, list, totals);

  if (office && !invoices.empty()) PrintSender(sender);
  std::cout << Utf8(Report(standard, invoices, totals)) << std::flush;
  const bool printed = std::cout.good();
  for (const std::string& mistake : mistakes) std::cerr << shown_name << ", " << mistake << '\n';
  if (!failure.empty()) throw std::runtime_error(failure);
  if (!printed) throw std::runtime_error("cannot write the invoices to standard output");
  if (options.drawer) std::cout << "  Drawer      " << KickDrawer() << std::endl;
  return mistakes.empty() ? kAllPrinted : kSomeRowsBad;
}

}  // namespace
}  // namespace InvoiceDemo

int main(int argc, char** argv) {
  const auto options = InvoiceDemo::ReadOptions({argv + 1, argv + argc});
  if (!options) {
    std::cerr << "usage: invoice [--verbose] [--drawer] [--pdf FOLDER] FILE | -\n";
    return InvoiceDemo::kNotRun;
  }
  setenv("CUPS_SERVER", "/none", 1);  // pages become files, whatever printers there are
  try {
    return InvoiceDemo::Run(*options);
  } catch (const std::exception& error) {
    std::cerr << "invoice: " << error.what() << '\n';
    return InvoiceDemo::kNotRun;
  }
}
