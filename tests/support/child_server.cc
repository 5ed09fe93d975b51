#include "tests/support/child_server.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace ZQ7Standard {

ChildServer::ChildServer(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  for (const std::string& argument : command) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);
  int input[2];
  int output[2];
  if (pipe2(input, O_CLOEXEC) != 0 || pipe2(output, O_CLOEXEC) != 0) return;
  process_ = fork();
  if (process_ == 0) {
    dup2(input[0], STDIN_FILENO);
    dup2(output[1], STDOUT_FILENO);
    execvp(arguments[0], arguments.data());
    _exit(127);
  }
  close(input[0]);
  close(output[1]);
  input_ = input[1];
  char c = 0;
  while (read(output[0], &c, 1) == 1 && c != '\n') first_line_ += c;
  close(output[0]);
}

ChildServer::~ChildServer() {
  if (process_ < 0) return;
  close(input_);
  kill(process_, SIGTERM);
  waitpid(process_, nullptr, 0);
}

}  // namespace ZQ7Standard
