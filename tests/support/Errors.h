#pragma once

#include "tessaly/base/RuntimeError.h"

namespace tessaly::tests {

/// The number of the error that a call raises, or 0 where it raises none.
template <class Call>
Long errorOf(Call call) {
  try {
    call();
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

}  // namespace tessaly::tests
