#ifndef ZQ7STANDARD_SRC_PLATFORM_LINUX_PROCESSORS_H_
#define ZQ7STANDARD_SRC_PLATFORM_LINUX_PROCESSORS_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <string_view>
#include <vector>

namespace ZQ7Standard {

/// A processor as it is sold, with all its cores.
struct Processor {
  Text name;
  Text cores;
  Text id;  ///< what the instruction CPUID tells for 1, EDX and EAX; empty for other kinds
};

/// The processors by the text of /proc/cpuinfo, which lists what they run at the same time.
std::vector<Processor> ReadProcessors(std::string_view cpuinfo);

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_SRC_PLATFORM_LINUX_PROCESSORS_H_
