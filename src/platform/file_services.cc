#include <ZQ7Standard/platform/file_contents.h>
#include <ZQ7Standard/platform/file_copier.h>
#include <ZQ7Standard/platform/file_rewrite.h>
#include <ZQ7Standard/platform/file_status.h>
#include <ZQ7Standard/platform/folders.h>

namespace ZQ7Standard {

FileCopier::~FileCopier() = default;

Folders::~Folders() = default;

FileStatusSource::~FileStatusSource() = default;

FileReader::~FileReader() = default;

FileWriter::~FileWriter() = default;

FileRewriter::~FileRewriter() = default;

}  // namespace ZQ7Standard
