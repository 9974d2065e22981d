#pragma once

#include "tessaly/base/Export.h"
#include "tessaly/platform/Locale.h"

namespace tessaly::platform::fake {

/// A user whose language, number form and code page a test chooses. The conversions are the platform's own.
class TESSALY_API Locale final : public platform::Locale {
 public:
  /// The code page is 1252.
  Locale(Long lcid, String decimalSeparator);
  Locale(Long lcid, String decimalSeparator, Long codePage);

  Long GetUserDefaultLCID() override { return lcid_; }
  String decimalSeparator() override { return decimalSeparator_; }
  Long GetACP() override { return codePage_; }
  std::string WideCharToMultiByte(Long codePage, std::u16string_view text) override;
  String MultiByteToWideChar(Long codePage, std::string_view text) override;
  String CharUpperW(std::u16string_view text) override;

 private:
  Long lcid_;
  String decimalSeparator_;
  Long codePage_;
};

}  // namespace tessaly::platform::fake
