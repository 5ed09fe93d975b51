#include <ZQ7Standard/StandardObject.h>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {
namespace {

using enum Effect;

void AddIdentity(ClassRow& info) {
  const auto path = Optional("Path", u"C:");
  AddOperations(
      info, MayBlock({Operation<&StandardObject::GetComputerName>(112, "GetComputerName", kOutside,
                                                                  {{{}, u"SHOP-01"}}),
                      Operation<&StandardObject::GetDiskSerialNumber>(
                          113, "GetDiskSerialNumber", kOutside, {path}, {{{}, u"S4EVNX0N123456"}}),
                      Operation<&StandardObject::GetVolumeSerialNumber>(
                          114, "GetVolumeSerialNumber", kOutside, {path},
                          {{{u"C:\\srv\\shop"}, u"1A2B3C4D"}})}));
}

void AddParts(ClassRow& info) {
  AddOperations(
      info, MayBlock({Operation<&StandardObject::QueryManagement>(
                          115, "QueryManagement", kOutside,
                          {"ClassName", "PropertyName", Optional("Condition", u"")},
                          {{{u"Win32_OperatingSystem", u"Version", u"Caption=unknown"}, TextList{}},
                           {{u"Win32_BIOS", u"SerialNo"}, Raises(438)},
                           {{u"Win32_DiskDrive", u"Model", u"Size"}, Raises(5)}}),
                      Operation<&StandardObject::GetSpecialFolder>(
                          116, "GetSpecialFolder", kOutside, {"Folder"},
                          {{{CSIDL_FONTS}, u"C:\\usr\\share\\fonts"},
                           {{CSIDL_PRINTERS}, u""},
                           {{15}, Raises(5)}}),
                      Operation<&StandardObject::GetFileVersion>(
                          117, "GetFileVersion", kOutside, {"Path"},
                          {{{u"C:\\shop\\none.exe"}, Raises(53)}})}));
}

}  // namespace

void AddMachineOperations(ClassRow& owner) {
  AddIdentity(owner);
  AddParts(owner);
}

}  // namespace ZQ7Standard::Automation
