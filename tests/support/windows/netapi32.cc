// Stands for the system's netapi32.dll in the tests of the time servers: the machine "clock" tells
// 2024-01-15 02:30:00.25 UTC, and no other answers.
// clang-format off
#include <windows.h>
#include <lm.h>
// clang-format on

#include <atomic>
#include <string_view>

namespace {

std::atomic<int> questions_asked = 0;
TIME_OF_DAY_INFO told = [] {
  TIME_OF_DAY_INFO time{};
  time.tod_elapsedt = 1705285800;
  time.tod_hunds = 25;
  return time;
}();

}  // namespace

extern "C" {

NET_API_STATUS WINAPI FakeRemoteTOD(LPCWSTR server, LPBYTE* buffer) {
  ++questions_asked;
  if (std::wstring_view(server) != LR"(\\clock)") return ERROR_BAD_NETPATH;
  *buffer = reinterpret_cast<BYTE*>(&told);
  return NERR_Success;
}

NET_API_STATUS WINAPI FakeBufferFree(LPVOID /*buffer*/) {
  return NERR_Success;
}

int QuestionsAsked() {
  return questions_asked;
}
}
