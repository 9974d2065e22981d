// The control as pictures that were looked at and found right; scripts/approve puts others in their place.

#include <algorithm>
#include <filesystem>
#include <ostream>

#include "tests/controls/Golden.h"
#include "tests/controls/GoldenSheets.h"

namespace tessaly::tests {

void PrintTo(const GoldenSheet& sheet, std::ostream* out) { *out << sheet.name; }

namespace {

class GoldenTest : public testing::TestWithParam<GoldenSheet> {};

TEST_P(GoldenTest, LooksAsItWasApproved) { EXPECT_TRUE(isGolden(GetParam().name, GetParam().draw())); }

std::string testName(const testing::TestParamInfo<GoldenSheet>& info) {
  std::string name = info.param.name;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(TransparentBitmap, GoldenTest, testing::ValuesIn(goldenSheets()), testName);

TEST(GoldenFolderTest, HasNoPictureThatNobodyDraws) {
  for (const auto& entry : std::filesystem::directory_iterator(kGoldenFolder)) {
    const std::string name = entry.path().stem().string();
    EXPECT_TRUE(
        std::ranges::any_of(goldenSheets(), [&](const GoldenSheet& sheet) { return sheet.name == name; }))
        << entry.path().string() << " is no sheet's; remove it";
  }
}

}  // namespace
}  // namespace tessaly::tests
