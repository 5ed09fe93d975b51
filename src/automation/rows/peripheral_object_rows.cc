#include <ZQ7Standard/PeripheralObject.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {

ClassRow PeripheralObjectEntry() {
  ClassRow info = {.name = "PeripheralObject",
                   .help = "Commands to devices on a serial line, such as a cash drawer.",
                   .create = [](const HostServices& services) -> std::shared_ptr<void> {
                     return std::make_shared<PeripheralObject>(
                         PeripheralServices{.message_box = services.message_box});
                   }};
  AddSubject(
      info, "Devices on a serial line",
      {Operation<&PeripheralObject::SendCommMsg>(
           1, "SendCommMsg", {"iControl", "iCode", "iPort", Optional("Setting", u"9600,N,8,1")},
           "Sends a text to a device; 0, or the error number.",
           {{{u"SerialPort", u"READY", 99}, 8002}, {{u"SerialPort", u"READY", 99, u"9600"}, 380}}),
       Operation<&PeripheralObject::OpenDraw>(2, "OpenDraw", {"iControl", "iCode", "iPort"},
                                              "Opens a cash drawer; always 1.",
                                              {{{u"SerialPort", u"\x1bp0", 99}, 1}})});
  return info;
}

ClassRow SerialPortEntry() {
  ClassRow info = {.name = "SerialPort",
                   .help = "A serial line, for the operations of `PeripheralObject`.",
                   .create = [](const HostServices& services) -> std::shared_ptr<void> {
                     return SystemSerialPort(services.serial_devices);
                   }};
  info.properties = {
      SetOnlyProperty<&SerialPort::SetCommPort>(1, "CommPort", "The number of the port, from 1."),
      SetOnlyProperty<&SerialPort::SetSettings>(2, "Settings",
                                                "Baud, parity, data bits and stop bits."),
      SetOnlyProperty<&SerialPort::SetInputLen>(3, "InputLen",
                                                "How many characters a reading takes."),
      Property<&SerialPort::PortOpen, &SerialPort::SetPortOpen>(4, "PortOpen",
                                                                "Whether the port is open."),
      SetOnlyProperty<&SerialPort::SetOutput>(5, "Output", "The text to write.")};
  return info;
}

}  // namespace ZQ7Standard::Automation
