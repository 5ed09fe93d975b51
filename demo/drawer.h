#ifndef DEMO_DRAWER_H_
#define DEMO_DRAWER_H_

#include <string>

namespace InvoiceDemo {

/// Opens a cash drawer that is played by a pseudo-terminal, and returns the bytes that
/// it got: "27 112 0 25 250". Raises a `std::runtime_error` when it got none.
std::string KickDrawer();

}  // namespace InvoiceDemo

#endif  // DEMO_DRAWER_H_
