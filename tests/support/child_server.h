#ifndef ZQ7STANDARD_TESTS_SUPPORT_CHILD_SERVER_H_
#define ZQ7STANDARD_TESTS_SUPPORT_CHILD_SERVER_H_

#include <sys/types.h>

#include <string>
#include <vector>

namespace ZQ7Standard {

/// A program that serves until its input ends, and is ended by the destructor if it goes on.
class ChildServer {
 public:
  explicit ChildServer(const std::vector<std::string>& command);
  ChildServer(const ChildServer&) = delete;
  ChildServer& operator=(const ChildServer&) = delete;
  ~ChildServer();

  /// The first line that the program prints; empty if it ends without one.
  const std::string& FirstLine() const { return first_line_; }

 private:
  pid_t process_ = -1;
  int input_ = -1;
  std::string first_line_;
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_CHILD_SERVER_H_
