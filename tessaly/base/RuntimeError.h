#pragma once

#include <stdexcept>

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"

namespace tessaly {

/// The one exception of the library: a numbered error with an English text in `what()`.
/// Nothing else leaves the library but `std::bad_alloc`.
class TESSALY_API RuntimeError : public std::runtime_error {
 public:
  enum Number : Long {
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    InvalidPropertyValue = 380,
    PropertyNotSettableAtRunTime = 382,
    PropertyReadOnly = 383,
    EntryPointNotFound = 453,
    InvalidPicture = 481,
  };

  explicit RuntimeError(Long number);

  /// The number, by which callers tell errors apart.
  Long number() const noexcept { return number_; }

 private:
  Long number_;
};

}  // namespace tessaly
