#pragma once

#include <memory>

namespace tessaly::zplogger {

/// What happens outside while the tool runs.
struct Happening {
  enum class Kind {
    Key,
    End,
    ReaderGone,

    /// The terminal was somebody else's meanwhile.
    Back
  };
  Kind kind = Kind::End;
  char32_t key = 0;
};

/// The keys of the terminal and the wishes that the tool end. While it lives keys come singly and are not
/// shown, if the input is a terminal and this program may use it. One at a time, made on the main thread
/// before any other thread begins.
class Console {
 public:
  Console();
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;
  ~Console();

  /// Waits for the next thing to happen; for the main thread.
  Happening wait();

  /// Has `wait` give an end. Any thread may call.
  void end();

  /// Puts the terminal's mode back, for good; for the main thread. The end of this object does it too.
  void restore();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace tessaly::zplogger
