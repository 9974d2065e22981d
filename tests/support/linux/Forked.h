#pragma once

#include <sys/types.h>

#include <functional>

namespace tessaly::tests {

/// Starts a process that runs the work and ends with what it gives.
pid_t start(const std::function<int()>& work);

/// Waits for a process: its exit code, or minus the signal that has killed it.
int endOf(pid_t process);

/// Kills a process that still runs, and waits for it.
void killNow(pid_t process);

/// Runs work in a process of its own: what it gives.
inline int inProcess(const std::function<int()>& work) { return endOf(start(work)); }

/// Likewise, as a user who has no rights in what others own; of this user's own files he may only do what
/// their modes allow.
int asNobody(const std::function<int()>& work);

/// Numbers that processes tell one another. Make it before the processes that share it.
class Telling {
 public:
  Telling();
  Telling(const Telling&) = delete;
  Telling& operator=(const Telling&) = delete;
  ~Telling();

  /// May be called by a signal handler.
  void tell(long number) const noexcept;

  /// Waits for the next number.
  long hear() const;

 private:
  int ends_[2] = {-1, -1};
};

}  // namespace tessaly::tests
