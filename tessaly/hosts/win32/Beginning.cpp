#include "tessaly/hosts/win32/Beginning.h"

#include <utility>

#include "tessaly/hosts/win32/ErrorReport.h"

namespace tessaly::win32 {
namespace {

Restoring*& waiting() {
  static thread_local Restoring* restoring = nullptr;
  return restoring;
}

}  // namespace

Restoring::Restoring(const PropertyBag& bag) : bag_(&bag), before_(std::exchange(waiting(), this)) {}
Restoring::~Restoring() { waiting() = before_; }

Beginning::Beginning() : restoring_(std::exchange(waiting(), nullptr)) {}

const PropertyBag* Beginning::bag() const { return restoring_ != nullptr ? restoring_->bag_ : nullptr; }

void Beginning::fail(const RuntimeError& error) noexcept {
  if (restoring_ == nullptr) return report(nullptr, error);
  restoring_->error_ = error;
}

}  // namespace tessaly::win32
