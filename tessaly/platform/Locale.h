#pragma once

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// The user's language and number form. No call throws but for want of memory; any thread may call.
struct Locale {
  virtual ~Locale() = default;

  /// The user's language as a Windows language identifier; 1033 where the user has chosen none.
  virtual Long GetUserDefaultLCID() = 0;

  /// What the user puts before the fraction of a number.
  virtual String decimalSeparator() = 0;
};

}  // namespace tessaly::platform
