#include <ZQ7Standard/platform/file_contents.h>
#include <ZQ7Standard/platform/file_rewrite.h>
#include <ZQ7Standard/platform/file_status.h>

namespace ZQ7Standard {

FileStatusSource::~FileStatusSource() = default;

FileReader::~FileReader() = default;

FileWriter::~FileWriter() = default;

FileRewrite::~FileRewrite() = default;

FileRewriter::~FileRewriter() = default;

}  // namespace ZQ7Standard
