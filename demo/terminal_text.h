#ifndef DEMO_TERMINAL_TEXT_H_
#define DEMO_TERMINAL_TEXT_H_

#include <ZQ7Standard/Types.h>

namespace InvoiceDemo {

/// Fills `text` up with blanks to `width` columns, behind it or in front of it.
ZQ7Standard::Text AlignLeft(ZQ7Standard::TextView text, int width);
ZQ7Standard::Text AlignRight(ZQ7Standard::TextView text, int width);

/// Puts one blank for each run of line breaks and other control characters, so
/// that a typed text stays on its line and cannot steer the terminal.
ZQ7Standard::Text OneLine(ZQ7Standard::TextView text);

}  // namespace InvoiceDemo

#endif  // DEMO_TERMINAL_TEXT_H_
