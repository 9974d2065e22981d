#include <gtest/gtest.h>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Files.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/Xml.h"

namespace tessaly::platform {
namespace {

TEST(Overrides, PutABodyInPlaceForAScope) {
  Files* const own = core().files;
  fake::Files files;
  {
    const Override override(files);
    EXPECT_EQ(core().files, &files);
  }
  EXPECT_EQ(core().files, own);
}

TEST(Overrides, LeaveTheOtherAreasAlone) {
  Xml* const xml = core().xml;
  Locale* const locale = core().locale;
  fake::Files files;
  const Override override(files);
  EXPECT_EQ(core().xml, xml);
  EXPECT_EQ(core().locale, locale);
}

TEST(Overrides, NestAndEndInTheReverseOfTheirOrder) {
  fake::Locale french(1036, u",");
  fake::Locale german(1031, u",");
  const Override outer(french);
  {
    const Override inner(german);
    fake::Xml xml;
    const Override another(xml);
    EXPECT_EQ(core().locale->GetUserDefaultLCID(), 1031);
    EXPECT_EQ(core().xml, &xml);
  }
  EXPECT_EQ(core().locale->GetUserDefaultLCID(), 1036);
}

}  // namespace
}  // namespace tessaly::platform
