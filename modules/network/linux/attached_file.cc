#include "network/linux/attached_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

#include "platform/linux/native_path.h"

namespace ZQ7Standard {

AttachedFile::AttachedFile(TextView path, const DriveMap& drives)
    : file_(path, NativePath(path, drives), O_RDONLY | O_NONBLOCK), size_(file_.Status().st_size) {
  if (!S_ISREG(file_.Status().st_mode)) file_.Fail(EISDIR, "attach");
  left_ = size_;
}

void AttachedFile::AddTo(curl_mimepart* part) {
  curl_mime_data_cb(part, size_, &AttachedFile::OnRead, &AttachedFile::OnSeek, nullptr, this);
}

void AttachedFile::RaiseFailure() const {
  if (failure_ != nullptr) std::rethrow_exception(failure_);
}

std::size_t AttachedFile::Read(std::span<char> buffer) {
  if (left_ == 0) return 0;
  const std::size_t most = std::min(buffer.size(), static_cast<std::size_t>(left_));
  const std::size_t count = file_.Read(buffer.first(most));
  if (count == 0) file_.Fail(EIO, "read");
  left_ -= static_cast<curl_off_t>(count);
  return count;
}

std::size_t AttachedFile::OnRead(char* buffer, std::size_t size, std::size_t count, void* file) {
  auto& self = *static_cast<AttachedFile*>(file);
  try {
    return self.Read({buffer, size * count});
  } catch (...) {
    self.failure_ = std::current_exception();
    return CURL_READFUNC_ABORT;
  }
}

int AttachedFile::OnSeek(void* file, curl_off_t offset, int origin) {
  auto& self = *static_cast<AttachedFile*>(file);
  if (origin != SEEK_SET || lseek(self.file_.Descriptor(), offset, SEEK_SET) != offset) {
    return CURL_SEEKFUNC_FAIL;
  }
  self.left_ = self.size_ - offset;
  return CURL_SEEKFUNC_OK;
}

}  // namespace ZQ7Standard
