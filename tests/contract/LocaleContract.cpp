// What a body of the area Locale must do, whichever it is.

#include "tessaly/platform/Locale.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tests/support/Print.h"

namespace tessaly::tests {
namespace {

void expectSound(platform::Locale& locale) {
  EXPECT_NE(locale.GetUserDefaultLCID(), 0);
  EXPECT_EQ(locale.GetUserDefaultLCID(), locale.GetUserDefaultLCID());
  EXPECT_FALSE(locale.decimalSeparator().empty());
  EXPECT_EQ(locale.decimalSeparator(), locale.decimalSeparator());
}

TEST(LocaleContract, TheOwnBodyGivesALanguageAndASeparator) { expectSound(*platform::core().locale); }

TEST(LocaleContract, TheFakeBodyGivesWhatItWasTold) {
  platform::fake::Locale locale(1036, u",");
  expectSound(locale);
  EXPECT_EQ(locale.GetUserDefaultLCID(), 1036);
  EXPECT_EQ(shown(locale.decimalSeparator()), ",");
}

/// Run once for each of several locales, with what is expected of each in the environment beside it.
TEST(LocaleContract, LocaleOfTheEnvironment) {
  const char* lcid = std::getenv("TESSALY_EXPECTED_LCID");
  const char* separator = std::getenv("TESSALY_EXPECTED_SEPARATOR");
  if (lcid == nullptr || separator == nullptr)
    GTEST_SKIP() << "runs where the environment tells what to expect";
  EXPECT_EQ(std::to_string(platform::core().locale->GetUserDefaultLCID()), lcid);
  EXPECT_EQ(shown(platform::core().locale->decimalSeparator()),
            separator == std::string("comma") ? "," : ".");
}

}  // namespace
}  // namespace tessaly::tests
