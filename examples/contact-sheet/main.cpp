// Draws one picture with the picture button in all its states and anchors, into a file, without a display. It
// is what scripts/demo shows; with --compare it tells whether a file still holds just that picture.

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include "examples/contact-sheet/Sections.h"
#include "examples/support/Print.h"
#include "tessaly/base/RuntimeError.h"

namespace {

using examples::printLine;
using tessaly::Picture;

constexpr std::u16string_view kFolder = u"examples/contact-sheet/pictures";

Picture drawSheet() {
  sheet::Artwork artwork(kFolder);
  sheet::Canvas canvas(*artwork.picture(u"sheet"));
  sheet::putStates(canvas, artwork);
  sheet::putSizes(canvas, artwork);
  sheet::putAnchors(canvas, artwork);
  sheet::putFlattened(canvas, artwork);
  sheet::putBorderColours(canvas, artwork);
  return canvas.picture();
}

int save(const Picture& picture, const char* file) {
  const std::string bytes = tessaly::pngOf(picture);
  std::ofstream out(file, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (out) return 0;
  printLine(u"Can't write ", tessaly::fromUtf8(file));
  return 2;
}

int compare(const Picture& picture, const char* file) {
  const auto stored = tessaly::LoadPicture(tessaly::fromUtf8(file));
  if (stored->size() != picture.size()) {
    printLine(tessaly::fromUtf8(file), u" is of another size than the sheet");
    return 1;
  }
  const auto got =
      std::mismatch(picture.pixels().begin(), picture.pixels().end(), stored->pixels().begin()).first;
  if (got == picture.pixels().end()) {
    printLine(u"The sheet is as it is kept: ", picture.size().width, u" by ", picture.size().height,
              u" pixels");
    return 0;
  }
  const auto place = static_cast<tessaly::Long>(got - picture.pixels().begin());
  printLine(u"The sheet is another one than ", tessaly::fromUtf8(file), u", first at ",
            place % picture.size().width, u", ", place / picture.size().width);
  return 1;
}

}  // namespace

int main(int argc, char** argv) try {
  const bool compares = argc == 3 && std::string_view(argv[1]) == "--compare";
  if (argc != 2 && !compares) {
    printLine(u"Usage: contact-sheet FILE.png | contact-sheet --compare FILE.png");
    return 2;
  }
  const Picture picture = drawSheet();
  return compares ? compare(picture, argv[2]) : save(picture, argv[1]);
} catch (const tessaly::RuntimeError& error) {
  printLine(u"Error ", error.number(), u": ", tessaly::fromUtf8(error.what()),
            u" (run it in the project's folder)");
  return 2;
}
