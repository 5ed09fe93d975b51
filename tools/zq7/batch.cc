#include "batch.h"

#include <string>
#include <string_view>

#include "batch_session.h"
#include "line_reader.h"

namespace ZQ7Tool {

void RunBatch(std::streambuf& in, std::ostream& out, const Settings& settings) {
  BatchSession session(settings);
  LineReader reader(in, [&] { out.flush(); });
  std::string_view line;
  while (out) {
    switch (reader.Next(line)) {
      case LineReader::Found::kEnd:
        return;
      case LineReader::Found::kTooLong:
        out << ErrorLine("a line of more than 16 MiB") << '\n';
        break;
      case LineReader::Found::kLine:
        if (line.find_first_not_of(" \t\r") == std::string_view::npos) continue;
        out << session.Answer(line) << '\n';
    }
  }
}

}  // namespace ZQ7Tool
