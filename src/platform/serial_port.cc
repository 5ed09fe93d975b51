#include <ZQ7Standard/platform/serial_port.h>

namespace ZQ7Standard {

SerialPort::~SerialPort() = default;

}  // namespace ZQ7Standard
