#include <ZQ7Standard/StandardObject.h>

#include "base/raise.h"
#include "platform/service_set.h"

namespace ZQ7Standard {

OleDate StandardObject::getRemoteTOD(TextView ServerName) const {
  return Named({"getRemoteTOD", "ServerName"}, [&] {
    return services_->Zone().ToLocal(services_->TimeServers().UtcOf(ServerName));
  });
}

}  // namespace ZQ7Standard
