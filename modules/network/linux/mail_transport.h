#ifndef ZQ7STANDARD_MODULES_NETWORK_LINUX_MAIL_TRANSPORT_H_
#define ZQ7STANDARD_MODULES_NETWORK_LINUX_MAIL_TRANSPORT_H_

#include "platform/modules.h"

namespace ZQ7Standard {

/// The functions of the module: they make the transport of `SystemMailTransport`.
extern const NetworkFunctions kNetworkFunctions;

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_NETWORK_LINUX_MAIL_TRANSPORT_H_
