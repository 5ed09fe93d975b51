#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/management.h>
#include <gtest/gtest.h>
#include <objbase.h>
#include <windows.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <thread>

#include "tests/support/pe_file.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"
#include "tests/support/windows/child.h"

// The system's macro would rename the operation.
#undef GetComputerName

namespace ZQ7Standard {
namespace {

const StandardObject kStandard;

TEST(Machine, TellsItsName) {
  std::wstring name(100, L'\0');
  DWORD size = 100;
  GetComputerNameExW(ComputerNameNetBIOS, name.data(), &size);
  name.resize(size);
  EXPECT_EQ(kStandard.GetComputerName(), FromWide(name));
}

TEST(Machine, TellsVolumesApart) {
  DWORD serial = 0;
  ASSERT_NE(GetVolumeInformationW(L"C:\\", nullptr, 0, &serial, nullptr, nullptr, nullptr, 0), 0);
  const Text of_c = kStandard.GetVolumeSerialNumber();
  EXPECT_EQ(of_c.size(), 8U);
  EXPECT_EQ(std::stoul(Utf8(of_c), nullptr, 16), serial);
  for (const TextView path : {u"C:\\none\\file", u"c:/windows"}) {
    EXPECT_EQ(kStandard.GetVolumeSerialNumber(path), of_c) << Utf8(path);
  }
  for (const TextView none : {u"Q:\\x", u"\\\\server\\share\\x", u"//server/share"}) {
    EXPECT_EQ(kStandard.GetVolumeSerialNumber(none), u"") << Utf8(none);
    EXPECT_EQ(kStandard.GetDiskSerialNumber(none), u"") << Utf8(none);
  }
  const StandardObject mapped({.drives = {{'Q', L"C:\\windows"}}});
  EXPECT_EQ(mapped.GetVolumeSerialNumber(u"Q:\\x"), of_c);
  RecordProperty("disk", Utf8(kStandard.GetDiskSerialNumber()));
}

TEST(GetSpecialFolder, FollowsTheShell) {
  const auto folder = [](int number) {
    const Text path = kStandard.GetSpecialFolder(static_cast<VirtualFolder>(number));
    return path.substr(0, 2) + u" " + path.substr(path.rfind(u'\\') + 1);
  };
  ExpectRows<int>(folder, {{{26}, "C: Roaming", "application data"},
                           {{28}, "C: Local", "local application data"},
                           {{5}, "C: Documents", "personal"},
                           {{12}, "C: Documents"},
                           {{0}, "C: Desktop"},
                           {{16}, "C: Desktop"},
                           {{7}, "C: StartUp", "startup"},
                           {{20}, "C: Fonts"},
                           {{6}, "C: Favorites"},
                           {{23}, "C: Programs"},
                           {{10}, " ", "in no file system"},
                           {{1}, " "},
                           {{15}, "error 5"}});
}

TEST(GetFileVersion, ReadsFilesOfWindows) {
  const TempFolder folder;
  std::ofstream(folder.Native() / "app.exe", std::ios::binary) << PeFile(0x20B);
  std::ofstream(folder.Native() / "text") << "text";
  ExpectRows<Text>([](const Text& path) { return kStandard.GetFileVersion(path); },
                   {{{folder.Path("app.exe")}, "1.2.3.65535"},
                    {{folder.Path("text")}, ""},
                    {{folder.Path("none")}, "error 53"},
                    {{folder.Path("none\\x")}, "error 53"},
                    {{u""}, "error 53"},
                    {{folder.Path("")}, "error 75"}});
  EXPECT_EQ(
      std::ranges::count(kStandard.GetFileVersion(u"C:\\windows\\system32\\kernel32.dll"), u'.'),
      3);
}

TEST(QueryManagement, AsksTheService) {
  const auto first = [](TextView name, TextView property) {
    const auto found = kStandard.QueryManagement(name, property);
    return found.empty() ? Text(u"none") : found.front();
  };
  EXPECT_EQ(first(u"Win32_ComputerSystem", u"Name"), kStandard.GetComputerName());
  EXPECT_GT(std::stoull(Utf8(first(u"win32_computersystem", u"totalphysicalmemory"))), 1U << 20U);
  const auto serials =
      kStandard.QueryManagement(u"Win32_LogicalDisk", u"VolumeSerialNumber", u"DeviceID=c:");
  EXPECT_EQ(serials, std::vector{kStandard.GetVolumeSerialNumber()});
  EXPECT_EQ(first(u"Win32_OperatingSystem", u"LastBootUpTime").size(), 25U);
  for (const ManagementClass& known : SystemManagement()->Classes()) {
    EXPECT_EQ(ErrorOf([&] { SystemManagement()->Read(known.name, known.properties); }), 0)
        << known.name;
  }
}

/// The kind of apartment that the thread is in, or the error.
std::string ApartmentOfThread() {
  APTTYPE type{};
  APTTYPEQUALIFIER qualifier{};
  const HRESULT result = CoGetApartmentType(&type, &qualifier);
  return FAILED(result) ? "none" : std::to_string(type) + "/" + std::to_string(qualifier);
}

TEST(QueryManagement, LeavesTheThreadsApartmentAsItIs) {
  for (const int kind : {-1, int{COINIT_APARTMENTTHREADED}, int{COINIT_MULTITHREADED}}) {
    std::thread([kind] {
      if (kind >= 0) CoInitializeEx(nullptr, static_cast<DWORD>(kind));
      const std::string before = ApartmentOfThread();
      EXPECT_FALSE(kStandard.QueryManagement(u"Win32_BIOS", u"Name").empty());
      EXPECT_EQ(ApartmentOfThread(), before);
      if (kind >= 0) CoUninitialize();
    }).join();
  }
}

}  // namespace
}  // namespace ZQ7Standard
