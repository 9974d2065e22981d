#include "tessaly/localisation/TextToLong.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/Errors.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Print.h"

namespace tessaly {
namespace {

using tests::errorOf;
using tests::shown;

TEST(TextToLong, TakesANumberInEachOfItsForms) {
  const tests::LanguageFolder german(1031, u",");
  const std::pair<const char16_t*, Long> rows[] = {{u"0", 0},
                                                   {u"175", 175},
                                                   {u"-5", -5},
                                                   {u"+5", 5},
                                                   {u" 5 ", 5},
                                                   {u"\t5\n", 5},
                                                   {u"1.5", 2},
                                                   {u"2,5", 2},
                                                   {u"-1,5", -2},
                                                   {u"1e2", 100},
                                                   {u"1036,0", 1036},
                                                   {u"000000000007", 7},
                                                   {u".4", 0},
                                                   {u"2147483647", 2147483647},
                                                   {u"-2147483648", std::numeric_limits<Long>::min()},
                                                   {u"-0", 0}};
  for (const auto& [text, value] : rows) EXPECT_EQ(textToLong(text), value) << shown(text);
}

TEST(TextToLong, RaisesErrorThirteenForWhatIsNoNumber) {
  const tests::LanguageFolder german(1031, u",");
  for (const char16_t* text :
       {u"", u" ", u"x", u"1x", u"1.000,5", u"1 000", u"0x10", u"&H10", u"--1", u"1-", u"\x0661"}) {
    EXPECT_EQ(errorOf([&] { textToLong(text); }), RuntimeError::TypeMismatch) << shown(text);
  }
}

TEST(TextToLong, TakesACommaOnlyWhereItIsTheUsersOwn) {
  const tests::LanguageFolder english(1033, u".");
  EXPECT_EQ(errorOf([&] { textToLong(u"1,5"); }), RuntimeError::TypeMismatch);
  EXPECT_EQ(textToLong(u"1.4"), 1);
}

TEST(TextToLong, RaisesErrorSixBeyondThirtyTwoBits) {
  for (const char16_t* text :
       {u"2147483648", u"-2147483649", u"1e10", u"99999999999999999999", u"1e999", u"-1e999"}) {
    EXPECT_EQ(errorOf([&] { textToLong(text); }), RuntimeError::Overflow) << shown(text);
  }
}

}  // namespace
}  // namespace tessaly
