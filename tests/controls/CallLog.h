#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tessaly/base/RuntimeError.h"

namespace tessaly::tests {

using Calls = std::vector<std::string>;

/// What engine and platform were told, in the order of it.
class CallLog {
 public:
  /// Writes a call down, and raises an error where the call is the one that is to fail.
  void note(std::string call) {
    calls_.push_back(std::move(call));
    if (calls_.back() == failing_) throw RuntimeError(number_);
  }

  /// From now on a call raises an error, once it was written down; none for an empty one.
  void fail(std::string call, Long number) {
    failing_ = std::move(call);
    number_ = number;
  }

  /// The calls since they were taken last.
  Calls take() { return std::exchange(calls_, {}); }

 private:
  Calls calls_;
  std::string failing_;
  Long number_ = 0;
};

}  // namespace tessaly::tests
