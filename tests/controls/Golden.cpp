#include "tests/controls/Golden.h"

#include <filesystem>
#include <fstream>
#include <iomanip>
#include <optional>
#include <sstream>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/base/Text.h"

namespace tessaly::tests {
namespace {

constexpr std::uint32_t kColour = 0xFFFFFF;

/// None where there is no such picture, or it is damaged.
PictureReference goldenOf(const std::string& path) {
  try {
    return LoadPicture(fromUtf8(path));
  } catch (const RuntimeError&) {
    return nullptr;
  }
}

std::string shownPixel(std::uint32_t pixel) {
  std::ostringstream text;
  text << "#" << std::hex << std::uppercase << std::setw(6) << std::setfill('0') << (pixel & kColour);
  return text.str();
}

std::string shownSize(PixelSize size) {
  return std::to_string(size.width) + "x" + std::to_string(size.height);
}

/// How the sheet differs from the golden picture, if it does.
std::optional<std::string> difference(const Sheet& sheet, const Picture& got,
                                      const PictureReference& golden) {
  if (!golden) return "there is none that can be read";
  if (got.size() != golden->size()) {
    return "it is " + shownSize(got.size()) + " instead of " + shownSize(golden->size());
  }
  for (std::size_t index = 0; index < got.pixels().size(); ++index) {
    const std::uint32_t pixel = got.pixels()[index];
    const std::uint32_t wanted = golden->pixels()[index];
    if (((pixel ^ wanted) & kColour) == 0) continue;
    const auto place = static_cast<Long>(index);
    return "the first pixel that differs is " +
           sheet.nameAt({place % got.size().width, place / got.size().width}) + ", " + shownPixel(pixel) +
           " instead of " + shownPixel(wanted);
  }
  return std::nullopt;
}

}  // namespace

testing::AssertionResult isGolden(const std::string& name, const Sheet& sheet) {
  const std::string path = kGoldenFolder + "/" + name + ".png";
  const std::filesystem::path gotFolder = TESSALY_GOLDEN_GOT;
  const auto got = sheet.picture();
  const auto found = difference(sheet, *got, goldenOf(path));
  if (!found) {
    std::filesystem::remove(gotFolder / (name + ".png"));
    return testing::AssertionSuccess();
  }
  std::filesystem::create_directories(gotFolder);
  std::ofstream(gotFolder / (name + ".png"), std::ios::binary) << pngOf(*got);
  return testing::AssertionFailure() << path << ": " << *found
                                     << "; what was drawn is in the build's golden-got";
}

}  // namespace tessaly::tests
