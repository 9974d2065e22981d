#pragma once

#include <map>
#include <string>
#include <string_view>

#include "tessaly/forms/Picture.h"

namespace sheet {

/// The pictures of a folder, by their names without the ending.
class Artwork {
 public:
  explicit Artwork(std::u16string_view folder) : folder_(folder) {}

  /// Raises what `LoadPicture` does where there is no such picture.
  tessaly::PictureReference picture(std::u16string_view name);

 private:
  tessaly::String folder_;
  std::map<tessaly::String, tessaly::PictureReference> pictures_;
};

}  // namespace sheet
