// `Trace` to a receiver in another process, beside the platform's own calls that it is made of, to the same
// receiver: the window is looked at, a record goes into the block, a message is sent.

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <string>

#include "bench/windows/Compare.h"
#include "bench/windows/ReceiverProcess.h"
#include "tessaly/base/Text.h"
#include "tessaly/trace/Trace.h"

namespace tessaly::bench {
namespace {

constexpr char kLine[] = "Opened the document, 3 pages, 17 fields";
constexpr LPARAM kClientId = 458;
constexpr DWORD kBlockSize = 5000;

/// The record of the line, made beforehand.
std::string record() {
  const DWORD colours[] = {0, 0xFFFFFF};
  const DWORD length = sizeof kLine - 1;
  std::string bytes(reinterpret_cast<const char*>(colours), sizeof colours);
  bytes += '\1';
  bytes += '\0';
  bytes.append(reinterpret_cast<const char*>(&length), sizeof length);
  return bytes + kLine;
}

class PlatformCalls {
 public:
  explicit PlatformCalls(HWND window)
      : window_(window),
        message_(RegisterWindowMessageA("ZPLoggerWindowMsgAddTrace")),
        mapping_(CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, kBlockSize,
                                    "ZPLoggerMappedFile1CA")),
        view_(MapViewOfFile(mapping_, FILE_MAP_WRITE, 0, 0, kBlockSize)) {}
  PlatformCalls(const PlatformCalls&) = delete;
  PlatformCalls& operator=(const PlatformCalls&) = delete;
  ~PlatformCalls() {
    UnmapViewOfFile(view_);
    CloseHandle(mapping_);
  }

  void send() const {
    if (GetWindowLongPtrA(window_, GWLP_HINSTANCE) == 0) return;
    std::memcpy(view_, record_.data(), record_.size());
    SendMessageA(window_, message_, 0, kClientId);
  }

 private:
  std::string record_ = record();
  HWND window_;
  UINT message_;
  HANDLE mapping_;
  void* view_;
};

void measureNowhere() {
  const auto traceALot = [] {
    for (int n = 0; n < 1000; ++n) Trace(u"Opened the document, 3 pages, 17 fields");
  };
  compare("1000 lines to nowhere", {{"Tessaly, off", traceALot, {}}});
}

/// Whether all lines have arrived.
bool measureConnected() {
  ReceiverProcess receiver;
  const PlatformCalls calls(receiver.window());
  ZPLoggerClient client;
  client.Init(u"Bench", u"", u"");
  logger = &client;
  const String line = fromUtf8(kLine);
  compare("a line to another process", {{"limit: the calls themselves", [&] { calls.send(); }, {}},
                                        {"Tessaly", [&] { Trace(line); }, {}}});
  logger = nullptr;
  return receiver.end() == 2 * kRounds * kCallsInRound;
}

}  // namespace
}  // namespace tessaly::bench

int main(int argc, char** argv) {
  using namespace tessaly::bench;
  DWORD lines = 0;
  if (runAsReceiver(argc, argv, lines)) return static_cast<int>(lines);
  measureNowhere();
  const bool isDone = measureConnected();
  if (!isDone) std::fputs("trace-bench: lines were lost\n", stderr);
  return isDone ? 0 : 1;
}
