#include "platform/linux/pdf_printer.h"

#include <ZQ7Standard/platform/clock.h>
#include <glib.h>
#include <sys/auxv.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include "platform/linux/named_settings.h"
#include "platform/linux/new_file.h"

namespace ZQ7Standard {
namespace {

/// GLib asks the environment for it, which a process with more rights than the user who
/// started it cannot trust.
std::filesystem::path DocumentsFolder() {
  if (getauxval(AT_SECURE) != 0) throw PrinterFailure("the program has to name the folder");
  const char* const folder = g_get_user_special_dir(G_USER_DIRECTORY_DOCUMENTS);
  if (folder != nullptr) return folder;
  return std::filesystem::path(g_get_home_dir()) / "Documents";
}

/// "Document 20240115-093000"
std::string StemAt(OleDate now) {
  std::array<char, 80> stem{};
  std::snprintf(stem.data(), stem.size(), "Document %04d%02d%02d-%02d%02d%02d", now.Year(),
                now.Month(), now.Day(), now.Hour(), now.Minute(), now.Second());
  return stem.data();
}

class PdfFiles final : public NamedSettings {
 public:
  explicit PdfFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}

  void Print(std::string_view pdf) override {
    const auto folder = folder_.empty() ? DocumentsFolder() : folder_;
    try {
      std::filesystem::create_directories(folder);
      WriteNewFile(folder, StemAt(SystemClock()->Now()), ".pdf", pdf);
    } catch (const std::system_error& error) {
      throw PrinterFailure(error.what());
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
