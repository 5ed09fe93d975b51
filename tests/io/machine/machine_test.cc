#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/platform/file_versions.h>
#include <ZQ7Standard/platform/machine.h>
#include <ZQ7Standard/platform/management.h>
#include <ZQ7Standard/platform/special_folders.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "formats/volume_serial.h"
#include "tests/support/pe_file.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"
#include "tests/support/variable.h"

namespace ZQ7Standard {
namespace {

/// A file of a machine; a content that begins with "->" is that of a symbolic link.
struct File {
  std::string path;
  std::string content;
};

/// The files of another machine, and an object on it.
class Tree {
 public:
  explicit Tree(const std::vector<File>& files) {
    for (const auto& [path, content] : files) {
      const std::filesystem::path file = folder_.Native() / path;
      std::filesystem::create_directories(file.parent_path());
      if (content.starts_with("->")) {
        std::filesystem::create_symlink(content.substr(2), file);
      } else {
        std::ofstream(file, std::ios::binary) << content;
      }
    }
  }

  StandardObject Standard() const {
    const MachineFiles files = {.root = folder_.Native()};
    return StandardObject({.machine = SystemMachine(files),
                           .management = SystemManagement(files),
                           .special_folders = SystemSpecialFolders(files),
                           .file_versions = SystemFileVersions(files)});
  }

 private:
  TempFolder folder_;
};

constexpr std::string_view kMounts =
    "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
    "27 1 259:2 / / rw,relatime shared:1 - ext4 /dev/nvme0n1p2 rw\n"
    "28 27 259:1 / /boot/efi rw - vfat /dev/nvme0n1p1 rw\n"
    "29 27 253:0 / /srv rw shared:9 master:3 - xfs /dev/mapper/vg-srv rw\n"
    "30 27 0:40 /@home /home rw - btrfs /dev/mapper/luks rw\n"
    "31 27 0:50 / /mnt/shop\\040nas rw - nfs4 nas:/shop rw\n"
    "32 27 0:51 / /net rw - autofs systemd-1 rw\n"
    "33 27 8:33 / /media/usb rw - fuseblk /dev/sdc1 rw\n"
    "34 27 259:2 /etc/hosts /srv/hosts rw - ext4 /dev/nvme0n1p2 rw\n"
    "35 27 0:60 / /tmp rw - tmpfs tmpfs rw\n"
    "broken line - ext4\n";

constexpr std::string_view kCpu =
    "processor\t: 0\nvendor_id\t: GenuineIntel\ncpu family\t: 6\nmodel\t\t: 158\n"
    "model name\t: Intel(R) Core(TM) i7-8700\nstepping\t: 10\nphysical id\t: 0\n"
    "cpu cores\t: 6\n"
    "flags\t\t: fpu vme de pse tsc msr pae mce cx8 apic sep mtrr pge mca cmov pat pse36 clflush "
    "dts "
    "acpi mmx fxsr sse sse2 ss ht tm pbe syscall\n\n";

/// A laptop with NVMe, an encrypted btrfs on a SATA disk, and a volume of LVM on a RAID.
std::vector<File> Laptop() {
  const std::string nvme = "sys/devices/pci/nvme/nvme0/nvme0n1/";
  const std::string sata = "sys/devices/pci/ata1/";
  std::string second(kCpu);
  second.replace(second.find(": 0"), 3, ": 1");
  return {
      {"proc/self/mountinfo", std::string(kMounts)},
      {"proc/sys/kernel/hostname", "shop-01.shop.example\n"},
      {"proc/sys/kernel/osrelease", "6.1.0-18-amd64\n"},
      {"proc/meminfo", "MemTotal:       16316412 kB\nMemFree: 1 kB\n"},
      {"proc/stat", "cpu 1 2 3\nbtime 1705285800\n"},
      {"proc/cpuinfo", std::string(kCpu) + second},
      {"etc/os-release", "NAME=x\nPRETTY_NAME=\"Debian GNU/Linux 12 (bookworm)\"\n"},
      {"sys/class/dmi/id/sys_vendor", "LENOVO\n"},
      {"sys/class/dmi/id/product_name", "  ร้าน\xFF\t1 " + std::string(300, 'x')},
      {"sys/class/dmi/id/bios_version", "N2HET66W (1.49 )\n"},
      {"sys/dev/block/259:2", "->../../devices/pci/nvme/nvme0/nvme0n1/nvme0n1p2"},
      {"sys/dev/block/259:1", "->../../devices/pci/nvme/nvme0/nvme0n1/nvme0n1p1"},
      {"sys/dev/block/259:0", "->../../devices/pci/nvme/nvme0/nvme0n1"},
      {"sys/block/nvme0n1", "->../devices/pci/nvme/nvme0/nvme0n1"},
      {nvme + "dev", "259:0\n"},
      {nvme + "size", "1000215216\n"},
      {nvme + "device", "->../../nvme0"},
      {nvme + "nvme0n1p1/partition", "1\n"},
      {nvme + "nvme0n1p2/partition", "2\n"},
      {"sys/devices/pci/nvme/nvme0/serial", "S4EVNX0N123456      \n"},
      {"sys/devices/pci/nvme/nvme0/model", "Samsung SSD 970\n"},
      {"sys/dev/block/253:0", "->../../devices/virtual/block/dm-0"},
      {"sys/block/dm-0", "->../devices/virtual/block/dm-0"},
      {"sys/devices/virtual/block/dm-0/slaves/md0", "->../../md0"},
      {"sys/devices/virtual/block/md0/slaves/sda1", "->../../../../pci/ata1/sda/sda1"},
      {"sys/devices/virtual/block/md0/slaves/sdb1", "->../../../../pci/ata1/sdb/sdb1"},
      {sata + "sda/dev", "8:0\n"},
      {sata + "sda/sda1/partition", "1\n"},
      {sata + "sda/serial", "from /sys\n"},
      {sata + "sdb/sdb1/partition", "1\n"},
      {"run/udev/data/b8:0", "S:disk/by-id/x\nE:ID_SERIAL=WDC_WD10_WX1\nE:ID_SERIAL_SHORT=WX1\n"},
      {"dev/mapper/luks", "->../dm-1"},
      {"sys/class/block/dm-1", "->../../devices/virtual/block/dm-1"},
      {"sys/dev/block/253:1", "->../../devices/virtual/block/dm-1"},
      {"sys/devices/virtual/block/dm-1/dev", "253:1\n"},
      {"sys/devices/virtual/block/dm-1/slaves/sda1", "->../../../../pci/ata1/sda/sda1"},
      {"run/udev/data/b253:1", "E:ID_FS_UUID=00000001-0000-0002-0000-000400000008\n"},
      {"run/udev/data/b8:33", "E:ID_FS_UUID=0123456789ABCDEF\n"},
      {"dev/disk/by-uuid/1A2B-3C4D", "->../../nvme0n1p1"},
      {"dev/disk/by-uuid/ffffffff-0000-0000-0000-000000000000", "->../../nvme0n1p2"},
      {"sys/block/sr0/device/model", "DVD\n"},
      {"sys/block/loop0/size", "8\n"},
      {"sys/class/net/lo/ifindex", "1\n"},
      {"sys/class/net/eth0/ifindex", "10\n"},
      {"sys/class/net/eth0/address", "00:1a:2b:3c:4d:5e\n"},
      {"sys/class/net/wlan0/ifindex", "2\n"},
      {"sys/class/net/wlan0/address", "aa:bb:cc:dd:ee:ff\n"},
      {"sys/class/net/bonding_masters", "\n"},
      {"data", "->srv/data"},
      {"srv/data/up", "->../../boot/efi"},
      {"loop", "->loop"},
      {"mnt/shop nas/trap", "->/srv"},
      {"net/trap", "->/srv"},
      {"nas", "->/mnt/shop nas"},
      {"srv/app.exe", PeFile(0x20B)},
      {"srv/folder/x", ""},
  };
}

TEST(Machine, TellsDisksAndVolumesApart) {
  const Tree laptop(Laptop());
  const StandardObject standard = laptop.Standard();
  EXPECT_EQ(standard.GetComputerName(), u"shop-01");
  ExpectRows<TextView>(
      [&](TextView path) {
        return standard.GetDiskSerialNumber(path) + u" " + standard.GetVolumeSerialNumber(path);
      },
      {{{u"C:"}, "S4EVNX0N123456 FFFFFFFF"},
       {{u"C:\\boot\\efi\\EFI"}, "S4EVNX0N123456 1A2B3C4D"},
       {{u"C:\\boot\\efix"}, "S4EVNX0N123456 FFFFFFFF", "another folder"},
       {{u"C:\\srv\\none"}, "WX1 ", "an array of disks, formatted without an identifier"},
       {{u"C:\\boot\\..\\srv\\.\\x\\"}, "WX1 "},
       {{u"C:\\home\\somchai"}, "WX1 0000000F", "btrfs, encrypted"},
       {{u"C:\\media\\usb\\a.txt"}, " 89ABCDEF", "NTFS"},
       {{u"C:\\data\\a.txt"}, "WX1 ", "a link"},
       {{u"C:\\data\\up"}, "S4EVNX0N123456 1A2B3C4D", "links to links"},
       {{u"C:\\loop"}, "S4EVNX0N123456 FFFFFFFF"},
       {{u"C:\\mnt\\shop nas\\trap"}, " ", "links on a network are not read"},
       {{u"C:\\nas\\trap"}, " "},
       {{u"C:\\net\\trap"}, " ", "an automounter is not woken"},
       {{u"C:\\tmp\\a"}, " ", "memory"}});
}

TEST(Machine, FoldsIdentifiers) {
  ExpectRows<const char*>([](const char* identifier) { return VolumeSerial(identifier); },
                          {{{"1a2b-3c4d"}, "1A2B3C4D"},
                           {{"0123456789ABCDEF"}, "89ABCDEF"},
                           {{"2023-05-01-12-34-56-01"}, "32175300", "of a disc"},
                           {{"f0000000-0f00-0000-00f0-00000000000f"}, "FFF0000F"},
                           {{"12345678-9"}, "12345671"},
                           {{"no"}, ""}});
}

std::string Joined(const std::vector<Text>& texts) {
  std::string joined;
  for (const Text& text : texts) joined += "[" + Utf8(text) + "]";
  return joined;
}

TEST(QueryManagement, ReadsAWholeMachine) {
  const Variable zone("TZ", "Asia/Bangkok");
  const Tree laptop(Laptop());
  const StandardObject standard = laptop.Standard();
  ExpectRows<TextView, TextView, TextView>(
      [&](TextView name, TextView property, TextView condition) {
        return Joined(standard.QueryManagement(name, property, condition));
      },
      {{{u"win32_computersystem", u"NAME", u""}, "[shop-01]"},
       {{u"Win32_ComputerSystem", u"Manufacturer", u""}, "[LENOVO]"},
       {{u"Win32_ComputerSystem", u"TotalPhysicalMemory", u""}, "[16708005888]"},
       {{u"Win32_BIOS", u"SMBIOSBIOSVersion", u""}, "[N2HET66W (1.49 )]"},
       {{u"Win32_BIOS", u"SerialNumber", u""}, "[]"},
       {{u"Win32_BaseBoard", u"Product", u""}, "[]"},
       {{u"Win32_Processor", u"Name", u""}, "[Intel(R) Core(TM) i7-8700]"},
       {{u"Win32_Processor", u"NumberOfCores", u""}, "[6]"},
       {{u"Win32_Processor", u"ProcessorId", u""}, "[BFEBFBFF000906EA]"},
       {{u"Win32_DiskDrive", u"Model", u""}, "[Samsung SSD 970]", "no optical drive, no loop"},
       {{u"Win32_DiskDrive", u"SerialNumber", u""}, "[S4EVNX0N123456]"},
       {{u"Win32_DiskDrive", u"Size", u""}, "[512110190592]"},
       {{u"Win32_LogicalDisk", u"DeviceID", u""}, "[C:][C:\\boot\\efi][C:\\srv][C:\\home]"},
       {{u"Win32_LogicalDisk", u"VolumeSerialNumber", u" DeviceID = c:\\BOOT\\efi "}, "[1A2B3C4D]"},
       {{u"Win32_LogicalDisk", u"DeviceID", u"VolumeSerialNumber="}, "[C:\\srv]"},
       {{u"Win32_NetworkAdapter", u"MACAddress", u""}, "[AA:BB:CC:DD:EE:FF][00:1A:2B:3C:4D:5E]"},
       {{u"Win32_NetworkAdapter", u"NetConnectionID", u"macaddress=00:1a:2b:3c:4d:5e"}, "[eth0]"},
       {{u"Win32_NetworkAdapter", u"NetConnectionID", u"MACAddress=00"}, ""},
       {{u"Win32_OperatingSystem", u"Caption", u""}, "[Debian GNU/Linux 12 (bookworm)]"},
       {{u"Win32_OperatingSystem", u"Version", u""}, "[6.1.0-18-amd64]"},
       {{u"Win32_OperatingSystem", u"LastBootUpTime", u""}, "[20240115093000.000000+420]"},
       {{u"Win32_Disk", u"Size", u""}, "error 438"},
       {{u"Win32_BIOS", u"Size", u""}, "error 438"},
       {{u"Win32_BIOS", u"SerialNumber", u"Serial=1"}, "error 438"},
       {{u"Win32_BIOS", u"SerialNumber", u"SerialNumber"}, "error 5"},
       {{u"Win32_BIOS", u"SerialNumber", u" =1"}, "error 5"}});
  const Text size = standard.QueryManagement(u"Win32_LogicalDisk", u"Size").front();
  const Text free = standard.QueryManagement(u"Win32_LogicalDisk", u"FreeSpace").front();
  EXPECT_GT(std::stoull(Utf8(size)), std::stoull(Utf8(free)));
  const Variable west("TZ", "America/New_York");
  EXPECT_EQ(Joined(standard.QueryManagement(u"Win32_OperatingSystem", u"LastBootUpTime")),
            "[20240114213000.000000-300]");
}

TEST(QueryManagement, CleansTexts) {
  const Tree laptop(Laptop());
  const std::string model =
      Utf8(laptop.Standard().QueryManagement(u"Win32_ComputerSystem", u"Model").front());
  EXPECT_EQ(model.substr(0, 18),
            "ร้าน\xEF\xBF\xBD"
            "1 x");
  EXPECT_EQ(model.size(), 256U);
}

TEST(QueryManagement, NamesTheNearest) {
  try {
    StandardObject().QueryManagement(u"Win32_DiskDrives", u"Model");
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_NE(std::string(error.what()).find("Win32_DiskDrive?"), std::string::npos)
        << error.what();
  }
}

TEST(QueryManagement, NeedsNothing) {
  const Tree container(
      std::vector<File>{{"proc/self/mountinfo", "1 0 0:40 / / rw - overlay overlay rw\n"}});
  const StandardObject standard = container.Standard();
  EXPECT_EQ(standard.GetComputerName(), u"");
  EXPECT_EQ(standard.GetDiskSerialNumber(), u"");
  EXPECT_EQ(standard.GetVolumeSerialNumber(u"a.txt"), u"");
  for (const ManagementClass& known : SystemManagement()->Classes()) {
    for (const std::string_view property : known.properties) {
      const std::string found =
          Joined(standard.QueryManagement(FromUtf8(known.name), FromUtf8(property)));
      EXPECT_TRUE(found.empty() || found == "[]") << known.name << property << found;
      StandardObject().QueryManagement(FromUtf8(known.name), FromUtf8(property));
    }
  }
}

TEST(GetSpecialFolder, FollowsTheUser) {
  const Variable home("HOME", "/home/somchai");
  const Variable config("XDG_CONFIG_HOME", "");
  const Variable data("XDG_DATA_HOME", "relative");
  const Tree desktop(
      std::vector<File>{{"home/somchai/.config/user-dirs.dirs",
                         "XDG_DESKTOP_DIR=\"$HOME/เดสก์ท็อป\"\nXDG_MUSIC_DIR=\"/srv/music\"\n"}});
  const StandardObject standard = desktop.Standard();
  ExpectRows<int>(
      [&](int folder) { return standard.GetSpecialFolder(static_cast<VirtualFolder>(folder)); },
      {{{CSIDL_DESKTOP}, "C:\\home\\somchai\\เดสก์ท็อป"},
       {{CSIDL_MYMUSIC}, "C:\\srv\\music"},
       {{CSIDL_PERSONAL}, "C:\\home\\somchai", "not named: home"},
       {{CSIDL_STARTUP}, "C:\\home\\somchai\\.config\\autostart"},
       {{CSIDL_APPDATA}, "C:\\home\\somchai\\.config"},
       {{CSIDL_LOCAL_APPDATA}, "C:\\home\\somchai\\.local\\share"},
       {{CSIDL_COMMON_PROGRAMS}, "C:\\usr\\share\\applications"},
       {{CSIDL_BITBUCKET}, ""},
       {{-1}, "error 5"},
       {{15}, "error 5"},
       {{27}, "error 5"},
       {{40}, "error 5"}});
  const Variable other("XDG_CONFIG_HOME", "/etc/shop");
  EXPECT_EQ(standard.GetSpecialFolder(CSIDL_APPDATA), u"C:\\etc\\shop");
  EXPECT_EQ(standard.GetSpecialFolder(CSIDL_DESKTOP), u"C:\\home\\somchai\\Desktop");
  const Variable nobody("HOME", "");
  EXPECT_EQ(standard.GetSpecialFolder(CSIDL_DESKTOP), u"");
}

TEST(GetFileVersion, ReadsFilesOfWindows) {
  const Tree laptop(Laptop());
  const StandardObject standard = laptop.Standard();
  ExpectRows<TextView>([&](TextView path) { return standard.GetFileVersion(path); },
                       {{{u"C:\\srv\\app.exe"}, "1.2.3.65535"},
                        {{u"C:\\srv\\none.exe"}, "error 53"},
                        {{u"C:\\none\\app.exe"}, "error 53"},
                        {{u""}, "error 53"},
                        {{u"C:\\srv\\folder"}, "error 75"}});
}

TEST(GetFileVersion, ReadsWhatALinkerWrote) {
  const TempFolder folder;
  std::ofstream(folder.Native() / "a.rc")
      << "1 VERSIONINFO\nFILEVERSION 10,20,30,40\nPRODUCTVERSION 1,1,1,1\nBEGIN\nEND\n";
  folder.Run(
      "{ x86_64-w64-mingw32-windres --preprocessor=cpp a.rc a.o && "
      "x86_64-w64-mingw32-ld -shared -o a.dll a.o; } 2>&1");
  if (!std::filesystem::exists(folder.Native() / "a.dll")) GTEST_SKIP() << "no linker";
  EXPECT_EQ(StandardObject().GetFileVersion(folder.Path("a.dll")), u"10.20.30.40");
}

/// A machine whose package database is a script.
class PackagesTest : public ::testing::Test {
 protected:
  void Answer(const std::string& script) const {
    const auto program = folder_.Native() / "dpkg-query";
    std::ofstream(program) << "#!/bin/sh\n" << script << "\n";
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  }

  TempFolder folder_;
  Variable path_ = Variable("PATH", folder_.Native().string() + ":/usr/bin:/bin");
  StandardObject standard_;
};

TEST_F(PackagesTest, AreAskedForOtherFiles) {
  const std::string file = (folder_.Native() / "a[1]* b").string();
  std::ofstream(file) << "text";
  const Text path = PathText(file);
  Answer(
      "[ $1 = -W ] && { printf ' 1:2.3-4 '; exit; }\n"
      "[ \"$3\" = '" +
      folder_.Native().string() +
      "/a\\[1]\\* b' ] || exit 1\n"
      "echo noise >&2\necho 'diversion by dash from: " +
      file +
      "'\n"
      "echo 'shop:amd64, other: " +
      file + "'\necho 'none: " + file + "x'");
  EXPECT_EQ(standard_.GetFileVersion(path), u"1:2.3-4");
  Answer("echo 'diversion by dash from: " + file + "'");
  EXPECT_EQ(standard_.GetFileVersion(path), u"");
  const Variable nowhere("PATH", "/nowhere");
  EXPECT_EQ(standard_.GetFileVersion(path), u"");
}

TEST_F(PackagesTest, AreNotWaitedFor) {
  Answer("sleep 30");
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(ErrorOf([&] { standard_.GetFileVersion(u"C:\\bin\\ls"); }), 70);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20));
  Answer("while echo much; do :; done");
  EXPECT_EQ(ErrorOf([&] { standard_.GetFileVersion(u"C:\\bin\\ls"); }), 70);
}

TEST(GetFileVersion, KnowsThisMachinesPackages) {
  const std::string known = TempFolder().Run("dpkg-query -W -f '${Version}' coreutils 2>/dev/null");
  if (known.empty()) GTEST_SKIP() << "no packages of Debian";
  for (const TextView path : {u"C:\\bin\\ls", u"C:\\usr\\bin\\ls"}) {
    const std::string version = ResultOf([&] { return StandardObject().GetFileVersion(path); });
    if (version == "error 70") GTEST_SKIP() << "the machine is too busy to answer in time";
    EXPECT_EQ(version, known);
  }
}

}  // namespace
}  // namespace ZQ7Standard
