#ifndef ZQ7STANDARD_MODULES_NETWORK_LINUX_ATTACHED_FILE_H_
#define ZQ7STANDARD_MODULES_NETWORK_LINUX_ATTACHED_FILE_H_

#include <ZQ7Standard/Services.h>
#include <ZQ7Standard/Types.h>
#include <curl/curl.h>

#include <cstddef>
#include <exception>

#include "platform/linux/open_file.h"

namespace ZQ7Standard {

/// A file that is read piece by piece while a message is sent. It keeps the size that it had when
/// it was opened; one that has become shorter stops the message.
class AttachedFile {
 public:
  /// Opens a regular file; raises what `FileReader` does for others.
  AttachedFile(TextView path, const DriveMap& drives);

  /// Makes the file the content of a part of the message, which it must outlive.
  void AddTo(curl_mimepart* part);

  /// Raises what made a read fail, if one did.
  void RaiseFailure() const;

 private:
  static std::size_t OnRead(char* buffer, std::size_t size, std::size_t count, void* file);
  static int OnSeek(void* file, curl_off_t offset, int origin);
  std::size_t Read(std::span<char> buffer);

  OpenFile file_;
  curl_off_t size_;
  curl_off_t left_;
  std::exception_ptr failure_ = nullptr;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_MODULES_NETWORK_LINUX_ATTACHED_FILE_H_
