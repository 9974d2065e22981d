#pragma once

#include "tessaly/platform/Locale.h"

namespace tessaly::platform::fake {

/// A user whose language and number form a test chooses.
class Locale final : public platform::Locale {
 public:
  Locale(Long lcid, String decimalSeparator) : lcid_(lcid), decimalSeparator_(std::move(decimalSeparator)) {}

  Long GetUserDefaultLCID() override { return lcid_; }
  String decimalSeparator() override { return decimalSeparator_; }

 private:
  Long lcid_;
  String decimalSeparator_;
};

}  // namespace tessaly::platform::fake
