#include "platform/windows/page_output.h"

#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/clock.h>
#include <ZQ7Standard/platform/path_text.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <cwchar>
#include <string_view>
#include <system_error>

#include "platform/windows/new_file.h"
#include "platform/windows/printer_device.h"
#include "platform/windows/user_session.h"
#include "platform/windows/wide_text.h"

namespace ZQ7Standard {
namespace {

// Ports whose jobs wait for the name of a file.
constexpr std::array<std::wstring_view, 3> kAskingPorts = {L"FILE:", L"PORTPROMPT:", L"XPSPORT:"};

/// The kind of file that a driver writes, by what its name contains.
struct FileKind {
  std::wstring_view driver;
  std::wstring_view extension;
};
constexpr std::array<FileKind, 2> kFileKinds = {{{L"PDF", L".pdf"}, {L"XPS", L".oxps"}}};

std::wstring Upper(std::wstring text) {
  CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
  return text;
}

bool Asks(const std::wstring& port) {
  return std::ranges::find(kAskingPorts, Upper(port)) != kAskingPorts.end();
}

std::wstring ExtensionFor(const std::wstring& driver) {
  const std::wstring name = Upper(driver);
  const auto kind = std::ranges::find_if(
      kFileKinds, [&](const FileKind& row) { return name.find(row.driver) != std::wstring::npos; });
  return std::wstring(kind == kFileKinds.end() ? L".prn" : kind->extension);
}

/// "Document 20240115-093000"
std::wstring StemAt(OleDate now) {
  std::array<wchar_t, 80> stem{};
  std::swprintf(stem.data(), stem.size(), L"Document %04d%02d%02d-%02d%02d%02d", now.Year(),
                now.Month(), now.Day(), now.Hour(), now.Minute(), now.Second());
  return stem.data();
}

/// A new empty file in `folder`, with " (2)" and so on after the stem if the name is taken.
std::wstring NewFileIn(const std::filesystem::path& folder, const std::wstring& extension) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  const std::wstring stem = folder / StemAt(SystemClock()->Now());
  std::wstring name = stem + extension;
  for (int number = 2; !CreateWhole(FromWide(name), name, {}); ++number) {
    name = stem + L" (" + std::to_wstring(number) + L")" + extension;
  }
  return name;
}

}  // namespace

PageOutput::PageOutput(const std::wstring& printer, const std::filesystem::path& folder) {
  const auto [port, driver] = PortOf(printer);
  if (!Asks(port)) return;
  if (folder.empty()) {
    if (HasVisibleDesktop()) return;
    throw RunTimeError(Error::kPrinterError, Utf8(FromWide(printer)) + ": the port " +
                                                 Utf8(FromWide(port)) + " asks for a file");
  }
  try {
    name_ = NewFileIn(folder, ExtensionFor(driver));
  } catch (const RunTimeError& failed) {
    throw RunTimeError(Error::kPrinterError, Utf8(PathText(folder)) + ": " + failed.Details().text);
  }
}

PageOutput::~PageOutput() {
  if (!name_.empty()) DeleteFileW(name_.c_str());
}

}  // namespace ZQ7Standard
