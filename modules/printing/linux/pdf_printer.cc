#include "printing/linux/pdf_printer.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/clock.h>
#include <errno.h>
#include <fcntl.h>
#include <glib.h>
#include <sys/auxv.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include "platform/linux/new_file.h"
#include "printing/linux/named_settings.h"

namespace ZQ7Standard {
namespace {

/// GLib takes it from the environment, which a process with more rights than the user who started
/// it cannot trust.
std::filesystem::path DocumentsFolder() {
  if (getauxval(AT_SECURE) != 0)
    throw RunTimeError(Error::kPrinterError, "the program has to name the folder");
  const char* const folder = g_get_user_special_dir(G_USER_DIRECTORY_DOCUMENTS);
  if (folder != nullptr) return folder;
  return std::filesystem::path(g_get_home_dir()) / "Documents";
}

// Who may read a document: the user alone, or everyone the umask allows.
constexpr unsigned kPrivate = 0600;
constexpr unsigned kShared = 0666;

/// "Document 20240115-093000"
std::string StemAt(OleDate now) {
  std::array<char, 80> stem{};
  std::snprintf(stem.data(), stem.size(), "Document %04d%02d%02d-%02d%02d%02d", now.Year(),
                now.Month(), now.Day(), now.Hour(), now.Minute(), now.Second());
  return stem.data();
}

/// Writes `bytes` to a file "`stem`.pdf" in `folder`, with " (2)" and so on after the stem if it
/// exists.
void WriteDocument(const std::filesystem::path& folder, const std::string& stem,
                   std::string_view bytes, unsigned mode) {
  const Descriptor opened(open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  if (!opened) throw std::system_error(errno, std::generic_category());
  NewFile file(opened.Number(), bytes, mode);
  std::string name = stem + ".pdf";
  for (int number = 2; !file.TakeName(name); ++number) {
    name = stem + " (" + std::to_string(number) + ").pdf";
  }
}

class PdfFiles final : public NamedSettings {
 public:
  explicit PdfFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

  void Print(std::string_view pdf) override {
    const bool is_own = folder_.empty();
    const auto folder = is_own ? DocumentsFolder() : folder_;
    try {
      std::filesystem::create_directories(folder);
      WriteDocument(folder, StemAt(SystemClock()->Now()), pdf, is_own ? kPrivate : kShared);
    } catch (const std::system_error& error) {
      throw RunTimeError(Error::kPrinterError, folder.string() + ": " + error.code().message());
    }
  }

 private:
  SettingValues Defaults() override {
    return {{{1, "3"}, {9, "iso_a4_210x297mm"}, {7, "auto"}, {-3, "4"}}};
  }
  bool Supports(const SettingNames& setting, const std::string& /*name*/) override {
    return setting.setting != PrinterSetting::kPaperBin;
  }

  std::filesystem::path folder_;
};

}  // namespace

Printer PdfPrinter(std::filesystem::path folder) {
  return PrinterOn(u"PDF", std::make_shared<PdfFiles>(std::move(folder)));
}

}  // namespace ZQ7Standard
