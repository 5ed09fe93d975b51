#ifndef ZQ7STANDARD_TESTS_SUPPORT_IPP_SERVER_H_
#define ZQ7STANDARD_TESTS_SUPPORT_IPP_SERVER_H_

#include <cups/cups.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <thread>
#include <vector>

#include "platform/linux/descriptor.h"

namespace ZQ7Standard {

/// What is wrong with a print server.
enum class Fault : std::uint8_t {
  kNone,
  kIsOutOfReach,    ///< cannot be connected to
  kHangsUp,         ///< on every client
  kIsSilent,        ///< accepts and never answers
  kDribbles,        ///< a byte of an answer every 0.2 s
  kIsSlow,          ///< 2 s for each answer
  kPauses,          ///< 0.3 s within each answer
  kWantsPassword,   ///< answers 401
  kGuardsJobs,      ///< answers 401 only to jobs
  kStallsInJob,     ///< reads only the start of a job
  kStallsAfterJob,  ///< reads a job and does not answer
  kDiesInJob,
};

/// A print server with one printer, "Odd", on a loopback port of its own, which serves one
/// connection at a time.
class IppServer {
 public:
  explicit IppServer(Fault fault = Fault::kNone);
  IppServer(const IppServer&) = delete;
  IppServer& operator=(const IppServer&) = delete;
  ~IppServer();

  std::string Address() const;
  int Connections() const { return connections_; }
  /// The names of the attributes requested by jobs, each followed by a blank.
  std::string JobAttributes() const { return job_attributes_; }

 private:
  void FillQueue();
  void Run();
  void Serve(http_t* client);
  bool Answer(http_t* client, ipp_t* request);
  void Send(http_t* client, ipp_t* request) const;
  bool Wait(int milliseconds) const;

  Fault fault_;
  int listener_;
  int stop_[2];
  std::atomic<int> connections_ = 0;
  std::string job_attributes_;
  std::vector<Descriptor> waiting_;  // connections that nobody accepts
  std::thread thread_;               // declared last, because it uses all others
};

}  // namespace ZQ7Standard

#endif  // ZQ7STANDARD_TESTS_SUPPORT_IPP_SERVER_H_
