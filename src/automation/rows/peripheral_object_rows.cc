#include <ZQ7Standard/PeripheralObject.h>

#include <memory>

#include "automation/catalogue_rows.h"
#include "automation/classes.h"

namespace ZQ7Standard::Automation {

using enum Effect;

ClassRow PeripheralObjectRows() {
  ClassRow info = {.name = "PeripheralObject",
                   .create = [](const Services& services) -> std::shared_ptr<void> {
                     return std::make_shared<PeripheralObject>(services);
                   }};
  AddOperations(info,
                MayBlock({Operation<&PeripheralObject::SendCommMsg>(
                              1, "SendCommMsg", kOutside,
                              {"iControl", "iCode", "iPort", Optional("Setting", u"9600,N,8,1")},
                              {{{u"SerialPort", u"READY", 99}, 8002},
                               {{u"SerialPort", u"READY", 99, u"9600"}, 380}}),
                          Operation<&PeripheralObject::OpenDraw>(
                              2, "OpenDraw", kOutside, {"iControl", "iCode", "iPort"},
                              {{{u"SerialPort", u"\x1bp0", 99}, 1}})}));
  return info;
}

ClassRow SerialPortRows() {
  ClassRow info = {.name = "SerialPort",
                   .create = [](const Services& services) -> std::shared_ptr<void> {
                     return SystemSerialPort(services.serial_devices);
                   }};
  info.properties = {
      Outside(SetOnlyProperty<&SerialPort::SetCommPort>(1, "CommPort")),
      Outside(SetOnlyProperty<&SerialPort::SetSettings>(2, "Settings")),
      Outside(SetOnlyProperty<&SerialPort::SetInputLen>(3, "InputLen")),
      MayBlock(Outside(Property<&SerialPort::PortOpen, &SerialPort::SetPortOpen>(4, "PortOpen"))),
      MayBlock(Outside(SetOnlyProperty<&SerialPort::SetOutput>(5, "Output")))};
  return info;
}

}  // namespace ZQ7Standard::Automation
