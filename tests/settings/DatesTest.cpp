// CRegistry keeps a date as a text with the user's decimal separator, and reads it by the point alone.

#include <gtest/gtest.h>

#include <limits>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/Registry.h"
#include "tessaly/settings/CRegistry.h"
#include "tests/support/Errors.h"
#include "tests/support/Print.h"
#include "tests/support/SettingsWorld.h"

namespace tessaly {
namespace {

using tests::errorOf;
using tests::shown;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

class DatesTest : public testing::Test {
 protected:
  DatesTest() {
    settings_.root(2);
    settings_.rootPath(u"Tool");
  }

  /// What a stored text, or a default, is read as.
  double readAs(std::u16string_view text) {
    settings_.SetString(u"v", text);
    return settings_.GetDate(u"v", u"1");
  }
  double defaultAs(std::u16string_view text) { return settings_.GetDate(u"missing", text); }

  std::string writtenAs(double date) {
    settings_.SetDate(u"v", date);
    const auto stored = tests::valueAt(platform::kCurrentUser, u"Tool", "v");
    EXPECT_EQ(stored.value_or(tests::StoredValue()).type, platform::kText);
    return stored.value_or(tests::StoredValue()).bytes;
  }

  platform::fake::Registry registry_;
  platform::fake::Locale english_{1033, u"."};
  platform::fake::Locale german_{1031, u","};
  platform::Override registryInForce_{registry_};
  platform::Override localeInForce_{english_};
  CRegistry settings_;
};

TEST_F(DatesTest, StandAsDaysSinceTheThirtiethOfDecember1899) {
  const std::pair<double, const char*> rows[] = {{0, "0"},
                                                 {-0.0, "0"},
                                                 {38353.5, "38353.5"},
                                                 {-1.25, "-1.25"},
                                                 {38353 + 1.0 / 3, "38353.3333333333"},
                                                 {0.0001, "0.0001"},
                                                 {0.00001, "1E-05"},
                                                 {-657434, "-657434"},
                                                 {2958465.99999999, "2958465.99999999"}};
  for (const auto& [date, text] : rows) {
    EXPECT_EQ(writtenAs(date), text);
    EXPECT_NEAR(settings_.GetDate(u"v", u"1"), date, 1e-9);
  }
}

TEST_F(DatesTest, AreWrittenWithTheUsersSeparatorAndLoseTheTimeOfDayWhereItIsNoPoint) {
  const platform::Override override(german_);
  EXPECT_EQ(writtenAs(38353.5), "38353,5");
  EXPECT_EQ(settings_.GetDate(u"v", u"1"), 38353);
  EXPECT_EQ(writtenAs(38353), "38353");
  EXPECT_EQ(settings_.GetDate(u"v", u"1"), 38353);
  EXPECT_EQ(writtenAs(-0.5), "-0,5");
  EXPECT_EQ(settings_.GetDate(u"v", u"1"), 0);
  EXPECT_EQ(writtenAs(1.5e-5), "1,5E-05");
  EXPECT_EQ(settings_.GetDate(u"v", u"3"), 1);
}

TEST_F(DatesTest, AreReadByThePointWhateverTheUsersSeparator) {
  writtenAs(38353.5);
  const platform::Override override(german_);
  EXPECT_EQ(settings_.GetDate(u"v", u"1"), 38353.5);
  EXPECT_EQ(defaultAs(u"2.5"), 2.5);
}

TEST_F(DatesTest, TakeADefaultInTheFormOfAStoredText) {
  EXPECT_EQ(defaultAs(u"38353.5"), 38353.5);
  EXPECT_EQ(defaultAs(u""), 0);
  EXPECT_EQ(defaultAs(u"tomorrow"), 0);
  EXPECT_EQ(defaultAs(u"1\t2\r\n3"), 123);
}

TEST_F(DatesTest, AreTheNumberAtTheFrontOfAText) {
  EXPECT_EQ(readAs(u" 1 2.5 days"), 12.5);
  EXPECT_EQ(readAs(u"1e3"), 1000);
  EXPECT_EQ(readAs(u"12/31/2004"), 12);
  EXPECT_EQ(readAs(u""), 0);
  EXPECT_EQ(readAs(u"soon"), 0);
  EXPECT_EQ(readAs(u"12\t34"), 12);
}

TEST_F(DatesTest, OutsideTheirRangeRaiseErrorSix) {
  EXPECT_EQ(readAs(u"-657434.999"), -657434.999);
  EXPECT_EQ(readAs(u"2958465.999"), 2958465.999);
  for (const std::u16string_view text :
       {u"-657435", u"2958466", u"-657435.5", u"1e300", u"-1e300", u"1e999", u"-1e999"}) {
    EXPECT_EQ(errorOf([&] { readAs(text); }), RuntimeError::Overflow) << shown(text);
    EXPECT_EQ(errorOf([&] { defaultAs(text); }), RuntimeError::Overflow) << shown(text);
  }
}

TEST_F(DatesTest, ThatAreNotFiniteRaiseErrorSixAndWriteNothing) {
  for (const double date : {kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(errorOf([&] { settings_.SetDate(u"new", date); }), RuntimeError::Overflow);
  }
  EXPECT_FALSE(tests::hasKey(platform::kCurrentUser, u"Tool"));
}

TEST_F(DatesTest, StandAtTheUnnamedValueToo) {
  settings_.SetDate(u"*", 3.5);
  EXPECT_EQ(settings_.GetDate(u"*", u""), 3.5);
  EXPECT_EQ(settings_.GetString(u"", u""), u"3.5");
}

TEST_F(DatesTest, AreWrittenFarBeyondTheirRange) {
  EXPECT_EQ(writtenAs(1e15), "1E+15");
  EXPECT_EQ(errorOf([&] { settings_.GetDate(u"v", u""); }), RuntimeError::Overflow);
}

}  // namespace
}  // namespace tessaly
