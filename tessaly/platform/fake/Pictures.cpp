#include "tessaly/platform/fake/Pictures.h"

#include <utility>

#include "tessaly/platform/Desktop.h"

namespace tessaly::platform::fake {

Pictures::Pictures() : real_(desktop().pictures) {}

void Pictures::put(std::string bytes, PicturePixels picture) {
  pictures_.insert_or_assign(std::move(bytes), std::move(picture));
}

std::optional<PicturePixels> Pictures::decode(std::string_view bytes) {
  calls_.emplace_back(__func__);
  if (decodeFails_) return std::nullopt;
  const auto known = pictures_.find(bytes);
  return known != pictures_.end() ? known->second : real_->decode(bytes);
}

std::string Pictures::encodePng(const PicturePixels& picture) {
  calls_.emplace_back(__func__);
  return encodeFails_ ? std::string() : real_->encodePng(picture);
}

}  // namespace tessaly::platform::fake
