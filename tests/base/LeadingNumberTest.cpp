#include "tessaly/base/LeadingNumber.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tessaly/base/Types.h"
#include "tests/support/Print.h"

namespace tessaly {
namespace {

using tests::shown;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

using Rows = std::initializer_list<std::pair<std::u16string_view, double>>;

void expect(Rows rows) {
  for (const auto& [text, number] : rows) EXPECT_EQ(leadingNumber(text), number) << shown(text);
}

TEST(LeadingNumber, ReadsSignsFractionsAndExponents) {
  expect({{u"0", 0},
          {u"7", 7},
          {u"007", 7},
          {u"+7", 7},
          {u"-7", -7},
          {u"38353.5", 38353.5},
          {u".5", 0.5},
          {u"-.5", -0.5},
          {u"5.", 5},
          {u"1e3", 1000},
          {u"1E3", 1000},
          {u"1E+3", 1000},
          {u"1e-3", 0.001},
          {u"5.e1", 50},
          {u".5e1", 5},
          {u"1E-05", 0.00001},
          {u"1E+15", 1e15},
          {u"-1.5E-1", -0.15},
          {u"123456789012345", 123456789012345.0}});
}

TEST(LeadingNumber, SkipsBlanksWhereverTheyStand) {
  expect({{u"  7", 7},
          {u"7  ", 7},
          {u"1 2 3", 123},
          {u" - 7", -7},
          {u"+\t7", 7},
          {u"1 . 5", 1.5},
          {u". 5", 0.5},
          {u"1 e 3", 1000},
          {u"1e - 3", 0.001},
          {u"1\r\n2", 12},
          {u"\t\r\n 7", 7},
          {u"1e 1 0", 1e10},
          {u"3 8 3 5 3 . 5 ", 38353.5}});
}

TEST(LeadingNumber, EndsAtTheFirstCharacterThatCannotGoOn) {
  expect({{u"38353,5", 38353},
          {u"7x", 7},
          {u"1.2.3", 1.2},
          {u"1..2", 1},
          {u"1e2.5", 100},
          {u"1e2e3", 100},
          {u"1-2", 1},
          {u"1+2", 1},
          {u"0x10", 0},
          {u"12/31/2004", 12},
          {u"1'000", 1},
          {u"7\u00A0"
           u"8",
           7},
          {u"7\u3000"
           u"8",
           7},
          {u"7\v8", 7},
          {u"1\u0662", 1}});
  expect({{std::u16string_view(u"1\0"
                               u"2",
                               3),
           1}});
}

TEST(LeadingNumber, TakesAnExponentOnlyWithDigits) {
  expect({{u"5e", 5},
          {u"5E", 5},
          {u"5e+", 5},
          {u"5e-", 5},
          {u"5ex", 5},
          {u"5e--1", 5},
          {u"5e+-1", 5},
          {u"5e.5", 5},
          {u"5 e", 5},
          {u"5d2", 5}});
}

TEST(LeadingNumber, GivesZeroWhereThereIsNoNumber) {
  expect({{u"", 0},
          {u" ", 0},
          {u"\t\r\n", 0},
          {u"-", 0},
          {u"+", 0},
          {u".", 0},
          {u"-.", 0},
          {u"e", 0},
          {u"e5", 0},
          {u".e5", 0},
          {u"x7", 0},
          {u",5", 0},
          {u"--7", 0},
          {u"+-7", 0},
          {u"-+7", 0},
          {u"&H10", 0},
          {u"inf", 0},
          {u"nan", 0},
          {u"1e"
           u"\0",
           1},
          {u"\uFF17", 0},
          {u"(7)", 0}});
}

TEST(LeadingNumber, TakesNumbersThatADoubleCannotHoldForInfiniteOrZero) {
  const String zeros(400, u'0');
  expect({{u"1e999", kInfinity},
          {u"-1e999", -kInfinity},
          {u"1e99999999999999999999999", kInfinity},
          {u"1e-99999999999999999999999", 0},
          {u"0e99999999999999999999999", 0},
          {u"0.0e999", 0},
          {u"1e-999", 0}});
  expect({{u"1" + zeros, kInfinity}, {u"." + zeros + u"1", 0}, {u"." + zeros + u"1e401", 1}});
}

TEST(LeadingNumber, KeepsTheSignOfZero) {
  EXPECT_TRUE(std::signbit(leadingNumber(u"-0")));
  EXPECT_FALSE(std::signbit(leadingNumber(u"-")));
}

TEST(LeadingNumber, ReadsAMillionDigitsAndBlanksInOnePass) {
  const String blanks(1'000'000, u' ');
  const String digits(1'000'000, u'1');
  EXPECT_EQ(leadingNumber(blanks + u"7" + blanks + u"8"), 78);
  EXPECT_EQ(leadingNumber(digits), kInfinity);
  EXPECT_NEAR(leadingNumber(u"." + digits), 1.0 / 9, 1e-15);
}

}  // namespace
}  // namespace tessaly
