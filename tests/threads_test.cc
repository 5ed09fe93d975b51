// Distinct instances on distinct threads: run under ThreadSanitizer, which fails the program if
// they share anything that one of them changes.

#include <ZQ7Standard/ASCIIObject.h>
#include <ZQ7Standard/BahtStringObject.h>
#include <ZQ7Standard/BitByteObject.h>
#include <ZQ7Standard/CImageInfo.h>
#include <ZQ7Standard/DiskObject.h>
#include <ZQ7Standard/GridValueObject.h>
#include <ZQ7Standard/PeripheralObject.h>
#include <ZQ7Standard/PrintObject.h>
#include <ZQ7Standard/RegistryObject.h>
#include <ZQ7Standard/RunTimeError.h>
#include <ZQ7Standard/StandardObject.h>
#include <ZQ7Standard/automation/invoke.h>
#include <ZQ7Standard/platform/message_box.h>
#include <ZQ7Standard/platform/recording_printers.h>
#include <gtest/gtest.h>

#include <functional>
#include <thread>
#include <vector>

#include "tests/support/temp_folder.h"

namespace ZQ7Standard {
namespace {

/// Runs `steps` in four threads, passing each its number.
void InThreads(const std::function<void(int id)>& steps) {
  std::vector<std::thread> threads;
  for (int id = 0; id < 4; ++id) threads.emplace_back(steps, id);
  for (std::thread& thread : threads) thread.join();
}

void UseDatesAndNumbers(int id) {
  const StandardObject object;
  BahtStringObject words;
  GridValueObject grid;
  grid.SetCols(1);
  const Text expected = BahtStringObject().BahtString(id + 20.01);
  for (int i = 0; i < 500; ++i) {
    const OleDate date = OleDate::FromParts(2000 + id, 1 + i % 12, 1 + i % 28);
    const Text text = object.FormatTDate2(date, ZQ7Detect);
    ASSERT_TRUE(object.IsTDate(text));
    ASSERT_EQ(object.CTDATE(text), date);
    ASSERT_EQ(object.AddMonth(object.AddMonth(date, 1), -1), date);
    ASSERT_FALSE(object.IsTDateTime(u"Feb 30"));
    ASSERT_EQ(object.FixNumber(object.StrVal(u"1,234.565"), 2), 1234.57);
    words.MoneyText(i + 0.5, false, true, u"Dollar");
    ASSERT_EQ(words.BahtString(id + 20.01), expected);
    ASSERT_EQ(object.DecryptBS(object.EncryptBS(text, u"key"), u"key"), text);
    ASSERT_EQ(object.CalculateMD5(u"abc"), u"900150983cd24fb0d6963f7d28e17f72");
    ASSERT_GE(object.Random(1, 6), 1);
    ASSERT_TRUE(grid.Setvalue(i, 0, 1) && grid.SumCol(0) == i + 1);
  }
}

/// Leaves nothing for the user to find: neither keys nor pages.
void UseFilesAndDevices() {
  const TempFolder folder;
  const Text file = folder.Path("set.ini");
  const ASCIIObject texts;
  CImageInfo image;
  PrintObject printer;
  for (int i = 0; i < 20; ++i) {
    texts.Setvalue(file, u"KEY", u"value");
    texts.AddLog(folder.Path("log"), u"", u"", u"", u"");
    ASSERT_EQ(texts.GetValue(file, u"Key"), u"value");
    ASSERT_EQ(DiskObject().FileName(file), u"set.ini");
    ASSERT_LE(DiskObject().CopyFileCheck(file, folder.Path("copy"), true), 1);
    image.ReadImageInfo(file);
    ASSERT_EQ(image.ImageType(), itUNKNOWN);
    ASSERT_EQ(BitByteObject().Bin2Dec(u"1010"), 10);
    ASSERT_EQ(PeripheralObject().SendCommMsg(nullptr, u"", 1), 91);
    ASSERT_EQ(printer.GETPaperBinText(1), u"Upper Bin");
    ASSERT_EQ(RegistryObject().GetKeyValueLong(HKEY_CURRENT_USER, u"none", u"none"), 0);
  }
}

TEST(Threads, InstancesMadeByDefaultAreIndependent) {
  InThreads([](int id) {
    UseDatesAndNumbers(id);
    UseFilesAndDevices();
  });
}

// The threads start with the catalogue itself, which is built on first use.
TEST(Threads, InstancesMadeByNameAreIndependent) {
  using namespace Automation;
  InThreads([](int /*id*/) {
    const TempFolder drive;
    std::filesystem::create_directory(drive.Native() / "shop");
    Services services = ExampleServices();
    services.message_box = std::make_shared<RecordingMessageBox>();
    services.drives = {{'C', drive.Native()}};
    services.printers = RecordingPrinters();
    for (const ClassInfo& owner : Classes()) {
      for (const OperationInfo& operation : owner.operations) {
        for (const Example& example : operation.examples) {
          const Object object = Create(owner.name, services);
          for (const Call& call : example.before) Invoke(object, call.operation, {call.arguments});
          try {
            Invoke(object, operation.name, {example.arguments});
          } catch (const RunTimeError& error) {
            EXPECT_NE(error.Number(), static_cast<int>(Error::kAutomationError)) << error.what();
          }
        }
      }
    }
  });
}

}  // namespace
}  // namespace ZQ7Standard
