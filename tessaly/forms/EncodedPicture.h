#pragma once

#include <string>
#include <utility>

#include "tessaly/forms/Picture.h"

namespace tessaly {

/// A picture's file, which is looked at when the picture is asked for first.
class EncodedPicture {
 public:
  explicit EncodedPicture(std::string bytes) : bytes_(std::move(bytes)) {}

  const std::string& bytes() const { return bytes_; }

  /// The same picture each time. Error 481 where the file is damaged.
  const PictureReference& picture() {
    if (!picture_) picture_ = pictureFromBytes(bytes_);
    return picture_;
  }

 private:
  std::string bytes_;
  PictureReference picture_;
};

}  // namespace tessaly
