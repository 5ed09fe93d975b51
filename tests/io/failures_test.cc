#include "io/failures.h"

#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/DiskObject.h>
#include <ZQ7Standard/PeripheralObject.h>
#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/platform/file_contents.h>
#include <ZQ7Standard/platform/file_copier.h>
#include <ZQ7Standard/platform/file_status.h>
#include <ZQ7Standard/platform/message_box.h>
#include <ZQ7Standard/platform/printers.h>
#include <ZQ7Standard/platform/registry.h>
#include <ZQ7Standard/platform/serial_port.h>

#include <fstream>

#include "tests/support/printers.h"
#include "tests/support/row_tests.h"
#include "tests/support/temp_folder.h"

namespace ZQ7Standard {
namespace {

using namespace std::chrono_literals;

using Raise = std::function<void()>;

// What services throw: a library error, a standard exception, and something else.
const Raise kRaises[] = {[] { throw RunTimeError(57, "x"); }, [] { throw std::logic_error("x"); },
                         [] { throw 5; }};

/// Services whose every call fails.
struct Thrower final : FileStatusSource, FileReader, FileCopier, MessageBox, Registry, SerialPort {
  explicit Thrower(Raise thrown) : raise(std::move(thrown)) {}

  std::optional<FileStatus> StatusOf(TextView /*path*/) override { return raise(), std::nullopt; }
  std::chrono::nanoseconds TimeStep(TextView /*path*/) override { return raise(), 1ns; }
  void ClearReadOnly(TextView /*path*/) override { raise(); }
  std::optional<std::string> ReadAll(TextView /*path*/) override { return raise(), ""; }
  std::size_t ReadStart(TextView /*path*/, std::span<char> /*buffer*/) override {
    return raise(), 0;
  }
  void Copy(TextView /*from*/, TextView /*to*/, ExistingTarget /*existing*/) override { raise(); }
  void Show(const Message& /*message*/) override { raise(); }
  std::unique_ptr<RegistryKey> Open(std::int32_t /*root*/, TextView /*path*/,
                                    std::uint32_t /*access*/) override {
    return raise(), nullptr;
  }
  std::unique_ptr<RegistryKey> Create(std::int32_t /*root*/, TextView /*path*/,
                                      const KeyCreation& /*creation*/) override {
    return raise(), nullptr;
  }
  void SetCommPort(std::int16_t /*port*/) override { raise(); }
  void SetSettings(TextView /*settings*/) override { raise(); }
  void SetInputLen(std::int16_t /*length*/) override { raise(); }
  void SetPortOpen(bool /*open*/) override { raise(); }
  void SetOutput(TextView /*text*/) override { raise(); }
  bool PortOpen() const override { return raise(), false; }

  Raise raise;
};

/// The result of `call`, or "thrown".
std::string OutcomeOf(const auto& call) {
  try {
    return Shown(call());
  } catch (...) {
    return "thrown";
  }
}

TEST(Failures, OfServicesStayInsideOperationsThatRaiseNothing) {
  const TempFolder folder;
  const Text file = folder.Path("file");
  const Text none = folder.Path("none\\x");
  std::ofstream(folder.Native() / "file") << "x";
  for (const Raise& raise : kRaises) {
    const auto thrower = std::make_shared<Thrower>(raise);
    ASCIIObject texts({.file_status = thrower, .file_reader = thrower, .message_box = thrower});
    texts.SetDisableMsgLevel(1);
    const DiskObject blind({.file_status = thrower, .file_copier = thrower});
    const DiskObject files({.file_copier = thrower});
    const RegistryObject values({.registry = thrower});
    const PeripheralObject devices({.message_box = thrower});
    const std::tuple<const char*, std::function<int()>, const char*> rows[] = {
        {"GetValue", [&] { return texts.GetValue(file, u"K").size(); }, "0"},
        {"Setvalue", [&] { return texts.Setvalue(file, u"K", u"v"), 1; }, "1"},
        {"AddLog", [&] { return texts.AddLog(file, u"", u"", u"", u""), 1; }, "1"},
        {"SaveString", [&] { return texts.SaveStringToTextFile(file, u""), 1; }, "1"},
        {"CopyFileCheck, status", [&] { return blind.CopyFileCheck(file, none); }, "0"},
        {"CopyFileCheck, copy", [&] { return files.CopyFileCheck(file, none); }, "1"},
        {"GetKeyValueLong", [&] { return values.GetKeyValueLong(1, u"K", u"V"); }, "0"},
        {"GetKeyValueString", [&] { return values.GetKeyValueString(1, u"K", u"V").size(); }, "0"},
        {"UpdateKeyValueLong", [&] { return values.UpdateKeyValueLong(1, u"K", u"V", 1); }, "1"},
        {"UpdateKeyValueString", [&] { return values.UpdateKeyValueString(1, u"", u"", u""); },
         "1"},
        {"OpenDraw", [&] { return devices.OpenDraw(thrower, u"", 1); }, "1"},
    };
    for (const auto& [name, call, expected] : rows) EXPECT_EQ(OutcomeOf(call), expected) << name;
  }
}

TEST(Failures, OfPrintersStayInsideOrBecomePrinterErrors) {
  for (const Raise& raise : kRaises) {
    const auto outcomes = [&](const std::string& refused) {
      PrintRecord record{"", Refusing(refused, raise)};
      return OutcomeOf([&] {
        PrintObject printer({.printers = Recorded(record)});
        const std::string checked = Shown(printer.CheckPaperSize(8)) +
                                    Shown(printer.CheckPaperBin(1)) +
                                    Shown(printer.PrintSet(1, 1, 0, u"a"));
        return checked + ResultOf([&] { return printer.PrintOut(); });
      });
    };
    ExpectRows<std::string>(outcomes,
                            {{{"Get"}, "0000"}, {{"Set"}, "8100"}, {{"PrintLine"}, "8100"}});
    const std::string number = &raise == kRaises ? "57" : "482";
    EXPECT_EQ(outcomes("Current"), "000error " + number);
    EXPECT_EQ(outcomes("End"), "810error " + number);
  }
}

/// A list whose only printer has no settings and no document.
struct BarePrinters final : PrinterList {
  std::vector<Printer> Installed() override { return {Current()}; }
  Printer Current() override { return {u"Bare", nullptr, nullptr}; }
  void MakeCurrent(const Printer& /*printer*/) override {}
};

TEST(Failures, OfAHostsListToSetAFieldArePrinterErrors) {
  PrintObject printer({.printers = std::make_shared<BarePrinters>()});
  EXPECT_EQ(printer.CheckPaperSize(9), 0);
  EXPECT_EQ(printer.CheckPaperBin(1), 0);
  EXPECT_EQ(printer.PrintSet(1, 1, 0, u"a"), 0);
  EXPECT_EQ(ErrorOf([&] { printer.PrintStart(); }), 482);
  EXPECT_EQ(ErrorOf([&] { printer.PrintGraphicText(u"a"); }), 482);
  EXPECT_EQ(ErrorOf([&] { printer.PrintGraphicObject(std::make_shared<PlainPicture>()); }), 482);
  EXPECT_EQ(ErrorOf([&] { printer.PrintOut(); }), 482);
  EXPECT_EQ(ErrorOf([&] { printer.PrintCancel(); }), 482);
}

}  // namespace
}  // namespace ZQ7Standard
