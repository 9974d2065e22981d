#pragma once

#include <sys/types.h>

#include <functional>

namespace tessaly::bench {

/// Another process, which plays a part until this object goes. It begins as a copy of this one at that
/// moment, on the processor that `Seating` has for it, and goes with this one too.
class Partner {
 public:
  using IsReady = std::function<void()>;
  using Part = std::function<void(const IsReady& isReady)>;

  /// Returns when the part has called what it was given; ends the program where it does not come to that.
  explicit Partner(const Part& part);
  Partner(const Partner&) = delete;
  Partner& operator=(const Partner&) = delete;
  ~Partner();

 private:
  pid_t process_;
};

}  // namespace tessaly::bench
