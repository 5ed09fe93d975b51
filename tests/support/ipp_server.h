#ifndef ZQ7STANDARD_TESTS_SUPPORT_IPP_SERVER_H_
#define ZQ7STANDARD_TESTS_SUPPORT_IPP_SERVER_H_

#include <cups/cups.h>

#include <string>
#include <thread>

namespace ZQ7Standard {

/// A print server of one printer, "Odd", on a port of the loopback of its own.
class IppServer {
 public:
  IppServer();
  IppServer(const IppServer&) = delete;
  IppServer& operator=(const IppServer&) = delete;
  ~IppServer();

  std::string Address() const;
  /// The names of the attributes that jobs asked for, each with a blank behind.
  std::string JobAttributes() const { return job_attributes_; }

 private:
  void Run();
  void Serve(http_t* client);
  void Answer(http_t* client, ipp_t* request);

  int listener_;
  int stop_[2];
  std::string job_attributes_;
  std::thread thread_;  // the last, which uses all of them
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_IPP_SERVER_H_
