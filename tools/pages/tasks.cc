#include "tasks.h"

#include <array>

namespace ZQ7Pages {
namespace {

constexpr auto kMoney = std::to_array<Task>({
    {"write the amount of a cheque in Thai words",
     "BahtStringObject.MoneyText StandardObject.FixNumber"},
    {"write it in English words", "BahtStringObject.MoneyText BahtStringObject.MoneyTextE", 1},
    {"put the words between signs that nothing can be added to", "BahtStringObject.BahtString"},
    {"round an amount to satang", "StandardObject.FixNumber StandardObject.Round"},
    {"round it to whole baht, up or down",
     "StandardObject.FixNumberWithCutMode StandardObject.FixMoneyDecimal", 1},
    {"read a number that a user typed",
     "StandardObject.StrVal StandardObject.StrVal2 StandardObject.StrLng"},
    {"hide a cost price in letters",
     "StandardObject.FormatCostCode StandardObject.FormatCostCode2"},
    {"read a price from its letters",
     "StandardObject.DeFormatCostCode StandardObject.DeFormatCostCode2"},
});

constexpr auto kDates = std::to_array<Task>({
    {"read a date that a user typed", "StandardObject.CTDATE StandardObject.IsTDate"},
    {"read a date in any form", "StandardObject.GETValidDate StandardObject.IsTDateTime"},
    {"know whether a date was left blank",
     "StandardObject.isBlankDate StandardObject.GETBlankDate"},
    {"show a date in the form of the system",
     "StandardObject.FormatTDate StandardObject.FormatTDateTime"},
    {"show a Thai date with a short month", "StandardObject.FormatTDate2"},
    {"show a date in Thai words", "StandardObject.FormatThai", 1},
    {"show a date in English words", "StandardObject.FormatEnglish"},
    {"put a digit of a date into each box of a form", "StandardObject.FormatTDate2", 2},
    {"write a date into a database query",
     "StandardObject.FormatQuery StandardObject.FormatQueryTime"},
    {"tell the year in the Buddhist Era", "StandardObject.Year2000 StandardObject.CTYEAR"},
    {"list the Thai month names", "StandardObject.MonthText StandardObject.GETMonthTextArray"},
    {"tell the weekday", "StandardObject.DayText StandardObject.ISWeekHoliday"},
    {"read a time that a user typed",
     "StandardObject.Str2TIME StandardObject.CTTime StandardObject.isTTime", 1},
    {"show hours as hours and minutes", "StandardObject.FormatHour StandardObject.CTHour"},
});

constexpr auto kTerms = std::to_array<Task>({
    {"work out a due date", "StandardObject.GetConditionDueDate"},
    {"print the payment term", "StandardObject.FormatCondition2"},
    {"add months or years to a date", "StandardObject.AddMonth StandardObject.AddYear"},
    {"find the last day of a month",
     "StandardObject.GETLastDayOfMonthYear StandardObject.GETFirstDayOfMonthYear"},
    {"tell the week or the pay period",
     "StandardObject.GETWeekOfMonth StandardObject.GETPeriodOfMonth", 1},
    {"read and show the period of a report", "StandardObject.CTPeriod StandardObject.FormatPeriod"},
    {"tell how long work will still take",
     "StandardObject.TimeLeftText StandardObject.FormatTimeleft"},
});

constexpr auto kKeys = std::to_array<Task>({
    {"number the next invoice", "StandardObject.IncreaseString"},
    {"clean a customer code as typed", "StandardObject.FormatPrimaryKey"},
    {"clean a serial number", "StandardObject.FormatSerialNo"},
    {"read a bar code", "StandardObject.FormatBarCode"},
    {"check a bar code by its check digit",
     "StandardObject.GetEAN13ChekDigit StandardObject.GetITF14ChekDigit"},
    {"sort keys with numbers in them", "StandardObject.FormatTextSort"},
    {"keep a list in one text",
     "StandardObject.AddList StandardObject.ReverseList StandardObject.TrimN"},
    {"find a text in another, in any case", "StandardObject.Instr2", 1},
    {"shrink blanks to one", "StandardObject.TrimSpaceToOne"},
    {"hide a text from a glance", "StandardObject.EncryptBS StandardObject.DecryptBS"},
    {"encipher a text", "StandardObject.Encrypt StandardObject.Decrypt"},
    {"compare two texts by their digest", "StandardObject.CalculateMD5"},
});

constexpr auto kFiles = std::to_array<Task>({
    {"read a setting from a text file", "ASCIIObject.GetValue"},
    {"keep settings in a text file", "ASCIIObject.Setvalue ASCIIObject.DeleteValue"},
    {"keep a log", "ASCIIObject.AddLog"},
    {"read or write a whole text file",
     "ASCIIObject.GETAllTextFile ASCIIObject.SaveStringToTextFile"},
    {"create all folders of a path", "DiskObject.CreateFullPath"},
    {"copy a file if it changed", "DiskObject.CopyFileCheck"},
    {"copy a folder", "DiskObject.XCopyFile"},
    {"split a path", "DiskObject.FileName DiskObject.Pathname"},
    {"show a long path in a short box", "DiskObject.ScaleFullPath"},
    {"find the size of a logo", "CImageInfo.ReadImageInfo"},
    {"write a picture as a JPEG", "StandardObject.SavePictureAsJPEG"},
    {"read a value of the registry",
     "RegistryObject.GetKeyValueLong RegistryObject.GetKeyValueString"},
    {"store a value in the registry",
     "RegistryObject.UpdateKeyValueLong RegistryObject.UpdateKeyValueString"},
});

constexpr auto kNumbers = std::to_array<Task>({
    {"fill a grid", "GridValueObject.Setvalue GridValueObject.SetFirst"},
    {"sum a column of a grid", "GridValueObject.SumCol"},
    {"sum a row of a grid", "GridValueObject.SumRow"},
    {"write a number in binary or hexadecimal", "BitByteObject.Dec2hex BitByteObject.Dec2Bin"},
    {"set or read one bit", "BitByteObject.BitWrite BitByteObject.BitRead"},
    {"turn a column number into spreadsheet letters",
     "BitByteObject.Base10To26 BitByteObject.Base26To10"},
});

constexpr auto kDevices = std::to_array<Task>({
    {"print a page", "PrintObject.PrintOut PrintObject.PrintStart PrintObject.PrintGraphicText"},
    {"print a line of text", "PrintObject.PrintGraphicText PrintObject.PrintSet"},
    {"print a logo", "PrintObject.PrintGraphicObject"},
    {"choose the printer and its paper", "PrintObject.SelectPrinter PrintObject.CheckPaperSize"},
    {"kick the drawer", "PeripheralObject.OpenDraw"},
    {"send a text to a serial device", "PeripheralObject.SendCommMsg"},
});

constexpr auto kPrograms = std::to_array<Task>({
    {"start a program", "StandardObject.ExecuteProgram"},
    {"open a page or a document", "StandardObject.OpenBrowser"},
    {"begin a message", "StandardObject.OpenMail"},
    {"open an appointment", "StandardObject.OpenCalendar"},
});

constexpr auto kMachine = std::to_array<Task>({
    {"tell one machine from another",
     "StandardObject.GetComputerName StandardObject.GetDiskSerialNumber "
     "StandardObject.GetVolumeSerialNumber"},
    {"ask for the parts of the machine", "StandardObject.QueryManagement"},
    {"find the folder for settings or documents", "StandardObject.GetSpecialFolder"},
    {"know the version of a program", "StandardObject.GetFileVersion"},
});

constexpr auto kNetwork = std::to_array<Task>({
    {"ask a server for the time", "StandardObject.getRemoteTOD"},
    {"send a message with attachments", "StandardObject.SendMail"},
});

constexpr auto kSubjects = std::to_array<Subject>({
    {"Money and numbers", kMoney},
    {"Dates and times", kDates},
    {"Due dates and periods", kTerms},
    {"Keys, codes and texts", kKeys},
    {"Files and the registry", kFiles},
    {"Grids and bits", kNumbers},
    {"Printers and devices", kDevices},
    {"Programs and the desktop", kPrograms},
    {"The machine", kMachine},
    {"The network", kNetwork},
});

}  // namespace

std::span<const Subject> Subjects() {
  return kSubjects;
}

}  // namespace ZQ7Pages
