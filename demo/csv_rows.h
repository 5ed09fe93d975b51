#ifndef DEMO_CSV_ROWS_H_
#define DEMO_CSV_ROWS_H_

#include <ZQ7Standard/Types.h>

#include <string>
#include <string_view>
#include <vector>

namespace InvoiceDemo {

/// One row of a table of comma-separated fields.
struct CsvRow {
  int line = 0;                           ///< the line of the file it begins on, from 1
  std::vector<ZQ7Standard::Text> fields;  ///< those before the mistake when it has one
  std::string mistake;                    ///< why the row could not be read, else empty
};

/// Reads UTF-8 rows as spreadsheets write them (RFC 4180), ended by LF or CR LF. A field
/// in quotes may hold commas, line breaks and doubled quotes. Blanks around a field do not
/// count, rows without any text are left out, and so is a byte-order mark at the front.
///
/// A row with a quote in the wrong place has a mistake; the next one begins on the next
/// line, so that a forgotten quote costs no more than its own line.
std::vector<CsvRow> ReadCsv(std::string_view bytes);

}  // namespace InvoiceDemo

#endif  // DEMO_CSV_ROWS_H_
