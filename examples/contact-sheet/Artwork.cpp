#include "examples/contact-sheet/Artwork.h"

namespace sheet {

tessaly::PictureReference Artwork::picture(std::u16string_view name) {
  tessaly::PictureReference& picture = pictures_[tessaly::String(name)];
  if (!picture) picture = tessaly::LoadPicture(folder_ + u"/" + tessaly::String(name) + u".png");
  return picture;
}

}  // namespace sheet
