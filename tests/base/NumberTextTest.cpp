#include "tessaly/base/NumberText.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/Errors.h"
#include "tests/support/Print.h"

namespace tessaly {
namespace {

using tests::errorOf;
using tests::shown;

using Double = std::numeric_limits<double>;

TEST(NumberText, WritesUpToFifteenDigits) {
  const std::pair<double, const char*> rows[] = {{0, "0"},
                                                 {-0.0, "0"},
                                                 {3, "3"},
                                                 {-3.5, "-3.5"},
                                                 {38353.5, "38353.5"},
                                                 {0.1, "0.1"},
                                                 {1.0 / 3, "0.333333333333333"},
                                                 {2.0 / 3, "0.666666666666667"},
                                                 {123456789012345, "123456789012345"},
                                                 {999999999999999, "999999999999999"},
                                                 {1e15, "1E+15"},
                                                 {1.5e15, "1.5E+15"},
                                                 {0.0001, "0.0001"},
                                                 {0.00001, "1E-05"},
                                                 {-1.25e-7, "-1.25E-07"},
                                                 {1e100, "1E+100"}};
  for (const auto& [value, text] : rows) EXPECT_EQ(shown(numberText(value)), text);
}

TEST(NumberText, RaisesErrorSixForWhatIsNotFinite) {
  EXPECT_EQ(errorOf([] { numberText(Double::infinity()); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([] { numberText(std::numeric_limits<double>::quiet_NaN()); }), RuntimeError::Overflow);
}

TEST(NumberText, ReadsSignsFractionsExponentsAndBlanksAround) {
  const std::pair<const char16_t*, double> rows[] = {{u"0", 0},           {u"7", 7},
                                                     {u"007", 7},         {u"+7", 7},
                                                     {u"-7", -7},         {u" \t7\r\n", 7},
                                                     {u"1.5", 1.5},       {u"1,5", 1.5},
                                                     {u".5", 0.5},        {u"5.", 5},
                                                     {u"1e3", 1000},      {u"1E+3", 1000},
                                                     {u"-1.5e-1", -0.15}, {u"4294967296", 4294967296.0}};
  for (const auto& [text, value] : rows) EXPECT_EQ(parseNumber(text, u","), value) << shown(text);
}

TEST(NumberText, RefusesWhatIsNoNumber) {
  for (const char16_t* text :
       {u"",        u" ",    u"-",    u"+",     u".",   u",",   u"-.",     u"e",     u"e5",     u"1e",
        u"1e+",     u"x",    u"1x",   u"x1",    u"1 2", u"- 1", u"--1",    u"+-1",   u"1.2.3",  u"1,2.3",
        u"1.000,5", u"0x10", u"&H10", u"1e5.5", u"inf", u"nan", u"1\x660", u"\x661", u"1\x00A0"}) {
    EXPECT_EQ(parseNumber(text, u","), std::nullopt) << shown(text);
  }
}

TEST(NumberText, TakesAnySeparatorThatALocaleHas) {
  EXPECT_EQ(parseNumber(u"1\x066B"
                        u"5",
                        u"\x066B"),
            1.5);
  EXPECT_EQ(parseNumber(u"1::5", u"::"), 1.5);
  EXPECT_EQ(parseNumber(u"1.5", u""), 1.5);
  EXPECT_EQ(parseNumber(u"1,5", u"."), std::nullopt);
}

TEST(NumberText, TakesNumbersThatADoubleCannotHoldForInfiniteOrZero) {
  const String zeros(400, u'0');
  EXPECT_EQ(parseNumber(u"1e999", u"."), Double::infinity());
  EXPECT_EQ(parseNumber(u"-1e999", u"."), -Double::infinity());
  EXPECT_EQ(parseNumber(u"1" + zeros, u"."), Double::infinity());
  EXPECT_EQ(parseNumber(u"1e99999999999999999999999", u"."), Double::infinity());
  EXPECT_EQ(parseNumber(u"1e-999", u"."), 0.0);
  EXPECT_EQ(parseNumber(u"." + zeros + u"1", u"."), 0.0);
  EXPECT_EQ(parseNumber(u"1e-99999999999999999999999", u"."), 0.0);
  EXPECT_EQ(parseNumber(u"." + zeros + u"1e401", u"."), 1.0);
  EXPECT_EQ(parseNumber(u"." + zeros + u"1e800", u"."), Double::infinity());
  EXPECT_EQ(parseNumber(u"1" + zeros + u"e-800", u"."), 0.0);
  EXPECT_EQ(parseNumber(u"0e999", u"."), 0.0);
  // The exponents at the ends of 64 bits once ran over when the fraction's place was added.
  EXPECT_EQ(parseNumber(u"1e9223372036854775807", u"."), Double::infinity());
  EXPECT_EQ(parseNumber(u"0.001e-9223372036854775808", u"."), 0.0);
}

TEST(NumberText, ReadsAPlainNumberByAShortWay) {
  EXPECT_EQ(parsePlainLong(u"0"), 0);
  EXPECT_EQ(parsePlainLong(u"175"), 175);
  EXPECT_EQ(parsePlainLong(u"-1036"), -1036);
  EXPECT_EQ(parsePlainLong(u"999999999"), 999999999);
  for (const char16_t* text : {u"", u"-", u"+1", u" 1", u"1 ", u"1.5", u"1e2", u"1000000000", u"--1"}) {
    EXPECT_EQ(parsePlainLong(text), std::nullopt) << shown(text);
  }
}

}  // namespace
}  // namespace tessaly
