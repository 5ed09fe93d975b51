// The C test as C++: the header serves both.
#pragma GCC diagnostic ignored "-Wold-style-cast"
#include "interface_test.c"  // NOLINT(bugprone-suspicious-include)
