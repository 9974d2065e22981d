#include "tessaly/platform/pictures/PictureFile.h"

namespace tessaly::platform {
namespace {

struct Reader {
  std::string_view mark;
  std::optional<PictureFile> (*read)(std::string_view bytes);
};

constexpr Reader kReaders[] = {{kPngMark, pngPicture},        {"BM", bmpPicture},
                               {"GIF87a", gifPicture},        {"GIF89a", gifPicture},
                               {"\xFF\xD8\xFF", jpegPicture}, {{"\0\0\1\0", 4}, iconPicture}};

}  // namespace

std::optional<PictureFile> pictureFile(std::string_view bytes) {
  for (const Reader& reader : kReaders) {
    if (bytes.starts_with(reader.mark)) return reader.read(bytes);
  }
  return std::nullopt;
}

}  // namespace tessaly::platform
