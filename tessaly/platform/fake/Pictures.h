#pragma once

#include <map>
#include <string>
#include <vector>

#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/Pictures.h"

namespace tessaly::platform::fake {

/// The platform's own pictures behind files of a test's choice and scripted failures, with a record of what
/// was asked of it. Not for several threads at once.
class TESSALY_DESKTOP_API Pictures final : public platform::Pictures {
 public:
  /// Hands on to the body that was in force; it must outlive this one.
  Pictures();

  /// From now on these bytes are this picture, whatever they are; such as "red" for a red one.
  void put(std::string bytes, PicturePixels picture);

  /// From now on, `decode` gives nothing.
  void failDecode() { decodeFails_ = true; }

  /// From now on, `encodePng` gives nothing.
  void failEncode() { encodeFails_ = true; }

  /// The names of the calls in their order, such as "decode".
  const std::vector<std::string>& calls() const { return calls_; }

  std::optional<PicturePixels> decode(std::string_view bytes) override;
  std::string encodePng(const PicturePixels& picture) override;

 private:
  platform::Pictures* real_;
  std::map<std::string, PicturePixels, std::less<>> pictures_;
  bool decodeFails_ = false;
  bool encodeFails_ = false;
  std::vector<std::string> calls_;
};

}  // namespace tessaly::platform::fake
