#pragma once

#include <optional>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/forms/PropertyBag.h"

namespace tessaly::win32 {

/// What one who makes a window by a call of the library's has for its control, and what goes wrong in it. It
/// waits for the next control of this thread while it lives.
class Restoring {
 public:
  explicit Restoring(const PropertyBag& bag);
  Restoring(const Restoring&) = delete;
  Restoring& operator=(const Restoring&) = delete;
  ~Restoring();

  const std::optional<RuntimeError>& error() const { return error_; }

 private:
  friend class Beginning;

  const PropertyBag* bag_;
  std::optional<RuntimeError> error_;
  Restoring* before_;
};

/// The beginning of a control whose window is made: it takes what waits for it.
class Beginning {
 public:
  Beginning();

  /// None for a new control.
  const PropertyBag* bag() const;

  /// To the one who waits, or else to whoever hears of errors.
  void fail(const RuntimeError& error) noexcept;

 private:
  Restoring* restoring_;
};

}  // namespace tessaly::win32
