#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/platform/message_box.h>
#include <ZQ7Standard/platform/path_text.h>
#include <ZQ7Standard/platform/printers.h>
#include <ZQ7Standard/platform/registry.h>

#include <functional>
#include <memory>

#include "bench/stress/stress.h"

namespace ZQ7Standard::Stress {
namespace {

namespace fs = std::filesystem;

constexpr int kRounds = 100;
constexpr std::size_t kSize = 20'000;

struct CountingBox final : MessageBox {
  void Show(const Message& /*message*/) override { ++count; }
  int count = 0;
};

/// Works on a disk with more and less room, and compares what is reported with what is there.
class Disk {
 public:
  explicit Disk(Folder folder) : folder_(std::move(folder)) { object_.SetDisableMsgLevel(1); }

  void Round(int round) {
    LeaveRoom(static_cast<std::uintmax_t>(round % 25) * 4'000);
    RewriteSettings(static_cast<char>('a' + round % 26));
    MakeNewFile();
    UpdateRegistry(round);
    PrintPage();
  }

  bool Report() const {
    return tally_.Report("operations, " + std::to_string(refused_) + " had no room") &&
           refused_ > 0;
  }

 private:
  /// Leaves about `room` bytes of the disk.
  void LeaveRoom(std::uintmax_t room) const {
    const Folder filler = folder_ / "filler";
    fs::remove(filler);
    const std::uintmax_t available = fs::space(folder_).available;
    const std::uintmax_t size = available > room ? available - room : 0;
    std::ofstream(filler, std::ios::binary) << std::string(size, 'x');
  }

  /// Whether `change` shows no failure.
  bool Succeeds(const std::function<void()>& change) {
    const int before = box_->count;
    change();
    return box_->count == before;
  }

  void Check(bool done, bool is_well, const std::string& what) {
    tally_.Check(is_well, what + (done ? " that was written" : " that had no room"));
    refused_ += done ? 0 : 1;
  }

  void RewriteSettings(char letter) {
    const Folder file = folder_ / "set.ini";
    const std::string value(kSize, letter);
    const std::string before = BytesOf(file);
    const bool done = Succeeds([&] { object_.Setvalue(PathText(file), u"A", FromUtf8(value)); });
    Check(done, BytesOf(file) == (done ? "[A]=" + value + "\r\n" : before), "settings");
  }

  void MakeNewFile() {
    const Folder file = folder_ / "new";
    const std::string value(kSize, 'x');
    const bool done =
        Succeeds([&] { object_.SaveStringToTextFile(PathText(file), FromUtf8(value)); });
    Check(done, done ? BytesOf(file) == value : !fs::exists(file), "new file");
    fs::remove(file);
  }

  void UpdateRegistry(int number) {
    const auto read = [&] { return registry_.GetKeyValueLong(HKEY_CURRENT_USER, u"S", u"N"); };
    const int before = read();
    const bool done = !registry_.UpdateKeyValueLong(HKEY_CURRENT_USER, u"S", u"N", number);
    Check(done, read() == (done ? number : before), "registry");
  }

  void PrintPage() {
    bool done = true;
    try {
      printer_.PrintGraphicText(u"a", 20, 30);
      printer_.PrintOut();
    } catch (const RunTimeError&) {
      done = false;
    }
    const auto count = std::distance(fs::directory_iterator(pages_), {});
    Check(done, count == (done ? 1 : 0), "page");
    for (const auto& page : fs::directory_iterator(pages_)) fs::remove(page);
  }

  Folder folder_;
  Folder pages_ = folder_ / "pages";
  std::shared_ptr<CountingBox> box_ = std::make_shared<CountingBox>();
  ASCIIObject object_{Services{.message_box = box_}};
  Folder database_ = folder_ / "registry";
  RegistryObject registry_{{.registry = SystemRegistry({database_, database_})}};
  PrintObject printer_{{.printers = SystemPrinters(pages_)}};
  Tally tally_{"full disk"};
  int refused_ = 0;
};

}  // namespace

bool FullDisk(const Folder& folder) {
  fs::create_directory(folder / "pages");
  Disk disk(folder);
  for (int round = 0; round < kRounds; ++round) disk.Round(round);
  return disk.Report();
}

}  // namespace ZQ7Standard::Stress
