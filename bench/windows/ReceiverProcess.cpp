#include "bench/windows/ReceiverProcess.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>

#include "tools/zplogger/Receiver.h"

namespace tessaly::bench {
namespace {

constexpr std::string_view kMode = "--receive-for";

[[noreturn]] void fail(const char* what) {
  std::fprintf(stderr, "trace-bench: %s\n", what);
  std::exit(1);
}

/// Events are named by the process that waits for lines to be received.
HANDLE eventOf(const std::string& process, const char* what) {
  return CreateEventA(nullptr, TRUE, FALSE, ("tessaly-bench-" + process + what).c_str());
}

std::string commandLine() {
  char path[MAX_PATH];
  if (GetModuleFileNameA(nullptr, path, sizeof path) == 0) fail("this program can't be found");
  return '"' + std::string(path) + "\" " + std::string(kMode) + ' ' + std::to_string(GetCurrentProcessId());
}

class CountingListener final : public zplogger::Listener {
 public:
  DWORD lines() const { return lines_; }

  void addClient(const zplogger::Sender& /*sender*/, const zplogger::ClientRecord& /*record*/) override {}
  void trace(const zplogger::Sender& /*sender*/, const zplogger::TraceRecord& /*record*/) override {
    ++lines_;
  }
  void deleteClient(const zplogger::Sender& /*sender*/) override {}
  void fault(const zplogger::Sender& /*sender*/, std::string_view /*why*/) override {}

 private:
  DWORD lines_ = 0;
};

}  // namespace

ReceiverProcess::ReceiverProcess()
    : ready_(eventOf(std::to_string(GetCurrentProcessId()), "-ready")),
      end_(eventOf(std::to_string(GetCurrentProcessId()), "-end")) {
  STARTUPINFOA start{};
  start.cb = sizeof start;
  std::string command = commandLine();
  if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                      &process_))
    fail("no other process");
  const HANDLE either[] = {ready_, process_.hProcess};
  if (WaitForMultipleObjects(2, either, FALSE, INFINITE) != WAIT_OBJECT_0) fail("the receiver has ended");
  window_ = FindWindowA(nullptr, zplogger::kServerTitle);
  DWORD owner = 0;
  GetWindowThreadProcessId(window_, &owner);
  if (owner != process_.dwProcessId) fail("another logger is running");
}

ReceiverProcess::~ReceiverProcess() {
  TerminateProcess(process_.hProcess, 1);
  for (const HANDLE handle : {process_.hProcess, process_.hThread, ready_, end_}) CloseHandle(handle);
}

DWORD ReceiverProcess::end() {
  DWORD lines = 0;
  SetEvent(end_);
  WaitForSingleObject(process_.hProcess, INFINITE);
  GetExitCodeProcess(process_.hProcess, &lines);
  return lines;
}

bool runAsReceiver(int argc, char** argv, DWORD& lines) {
  if (argc != 3 || argv[1] != kMode) return false;
  const HANDLE ready = eventOf(argv[2], "-ready");
  const HANDLE end = eventOf(argv[2], "-end");
  CountingListener listener;
  zplogger::Receiver receiver(listener);
  if (receiver.window() == 0) fail("no window for the logger");
  std::thread stopper([&] {
    WaitForSingleObject(end, INFINITE);
    receiver.stop();
  });
  SetEvent(ready);
  receiver.run();
  stopper.join();
  lines = listener.lines();
  return true;
}

}  // namespace tessaly::bench
