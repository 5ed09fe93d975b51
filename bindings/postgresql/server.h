#ifndef ZQ7STANDARD_BINDINGS_POSTGRESQL_SERVER_H_
#define ZQ7STANDARD_BINDINGS_POSTGRESQL_SERVER_H_

/// The server's headers, in C. They replace `printf` and its family by macros, so nothing of C++ may
/// be included after them.
#define PGDLLEXPORT __attribute__((visibility("default")))

extern "C" {
// clang-format off: the first one prepares the others
#include <postgres.h>
// clang-format on
#include <access/xact.h>
#include <catalog/namespace.h>
#include <catalog/pg_type_d.h>
#include <fmgr.h>
#include <mb/pg_wchar.h>
#include <utils/array.h>
#include <utils/builtins.h>
#include <utils/guc.h>
#include <utils/memutils.h>
#include <utils/timestamp.h>
}

#endif  // ZQ7STANDARD_BINDINGS_POSTGRESQL_SERVER_H_
