#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessaly::tests {

/// How a program is started, beside its arguments.
struct ProcessOptions {
  /// Variables that it finds beside the test's own, or in their place.
  std::vector<std::pair<std::string, std::string>> environment;

  /// Its errors come with its output; else they go where the test's own go.
  bool joinErrors = false;
};

/// Another program, which goes with this object: what still runs then is killed. Its input and output are
/// pipes of the test's; no other handle of the test gets into it. Texts are UTF-8. For one thread, except
/// that any may call `kill`, `suspend` and `resume`.
class Process {
 public:
  /// What `wait` gives for a program that was killed.
  static constexpr int kKilled = -9;

  /// Starts a program: its name where it stands in this program's folder, or an absolute path, without
  /// ".exe". A program that can't be started is a `std::runtime_error`.
  explicit Process(std::string_view program, const std::vector<std::string>& arguments = {},
                   const ProcessOptions& options = {});
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  ~Process();

  std::uint32_t id() const;

  /// Waits for the next line of output, without its end; none where the output has ended.
  std::optional<std::string> readLine();

  /// Hands bytes to its input; false where it no longer reads.
  bool write(std::string_view bytes);

  /// Its input ends here.
  void closeInput();

  /// Ends it at once, wherever it stands.
  void kill();

  /// Asks it to end: by SIGTERM, and on Windows by WM_CLOSE to its top-level windows. False where it can't be
  /// asked, as on Windows without a window.
  bool terminate();

  /// Holds it wherever it stands, until it is resumed.
  void suspend();
  void resume();

  /// Waits for its end: its exit code, and on Linux the negative number of the signal that has ended it.
  int wait();

 private:
  struct Parts;

  /// Appends to what is unread; false where the output has ended.
  bool readMore();

  std::unique_ptr<Parts> parts_;
  std::string unread_;
};

}  // namespace tessaly::tests
