#pragma once

#include <windows.h>

namespace tessaly::bench {

/// This program once more, with the logger's receiving end, which counts lines and does nothing with them.
class ReceiverProcess {
 public:
  /// Returns when its window is there; ends the program where it does not come to that.
  ReceiverProcess();
  ReceiverProcess(const ReceiverProcess&) = delete;
  ReceiverProcess& operator=(const ReceiverProcess&) = delete;
  ~ReceiverProcess();

  /// Its window, found by its title.
  HWND window() const { return window_; }

  /// Ends it; how many lines it has received.
  DWORD end();

 private:
  PROCESS_INFORMATION process_{};
  HANDLE ready_;
  HANDLE end_;
  HWND window_ = nullptr;
};

/// What the other process does with its arguments; false where they are not those of one.
bool runAsReceiver(int argc, char** argv, DWORD& lines);

}  // namespace tessaly::bench
