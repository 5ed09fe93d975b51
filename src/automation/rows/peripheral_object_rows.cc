#include <ZQ7Standard/PeripheralObject.h>

#include <memory>

#include "automation/classes.h"
#include "automation/rows.h"

namespace ZQ7Standard::Automation {

ClassInfo PeripheralObjectEntry() {
  ClassInfo info = {.name = "PeripheralObject",
                    .help = "Commands to devices on a serial line, such as a cash drawer.",
                    .create = [](const Services& services) -> std::shared_ptr<void> {
                      return std::make_shared<PeripheralObject>(services);
                    }};
  AddSubject(
      info, "Devices on a serial line",
      {Operation<&PeripheralObject::SendCommMsg>(
           "SendCommMsg", {"iControl", "iCode", "iPort", Optional("Setting", u"9600,N,8,1")},
           "Sends a text to a device; 0, or the error number.",
           {{{u"SerialPort", u"READY", 99}, 8002}, {{u"SerialPort", u"READY", 99, u"9600"}, 380}}),
       Operation<&PeripheralObject::OpenDraw>("OpenDraw", {"iControl", "iCode", "iPort"},
                                              "Opens a cash drawer; always 1.",
                                              {{{u"SerialPort", u"\x1bp0", 99}, 1}})});
  return info;
}

ClassInfo SerialPortEntry() {
  ClassInfo info = {.name = "SerialPort",
                    .help = "A serial line, for the operations of `PeripheralObject`.",
                    .create = [](const Services& services) -> std::shared_ptr<void> {
                      return SystemSerialPort(services.serial_devices);
                    }};
  info.properties = {
      SetOnlyProperty<&SerialPort::SetCommPort>("CommPort", "The number of the port, from 1."),
      SetOnlyProperty<&SerialPort::SetSettings>("Settings",
                                                "Baud, parity, data bits and stop bits."),
      SetOnlyProperty<&SerialPort::SetInputLen>("InputLen", "How many characters a reading takes."),
      Property<&SerialPort::PortOpen, &SerialPort::SetPortOpen>("PortOpen",
                                                                "Whether the port is open."),
      SetOnlyProperty<&SerialPort::SetOutput>("Output", "The text to write.")};
  return info;
}

}  // namespace ZQ7Standard::Automation
