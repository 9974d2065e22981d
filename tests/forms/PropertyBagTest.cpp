// A bag of properties: what it keeps, and what its values are as a property's type.

#include "tessaly/forms/PropertyBag.h"

#include <gtest/gtest.h>

#include <limits>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tests/forms/PixelsOfTests.h"
#include "tests/support/Errors.h"

namespace tessaly::tests {
namespace {

constexpr Long kAbsent = -99;
const Variant kAbsentNumber(kAbsent);

class PropertyBagTest : public testing::Test {
 protected:
  Long read(std::u16string_view name) { return longOf(bag_.ReadProperty(name, kAbsentNumber)); }
  void write(std::u16string_view name, Long value) {
    bag_.WriteProperty(name, Variant(value), Variant(Long{0}));
  }

  PropertyBag bag_;
};

TEST_F(PropertyBagTest, GivesTheDefaultForAKeyThatItLacks) {
  EXPECT_EQ(read(u"Width"), kAbsent);
  const auto picture = pictured({"r"});
  EXPECT_EQ(pictureOf(bag_.ReadProperty(u"Picture", picture)), picture);
  EXPECT_EQ(pictureOf(bag_.ReadProperty(u"Picture", PictureReference())), nullptr);
}

TEST_F(PropertyBagTest, FindsAKeyInAnyCase) {
  write(u"Grün", 5);
  EXPECT_EQ(read(u"GRÜN"), 5);
  EXPECT_EQ(read(u"grün"), 5);
  EXPECT_EQ(read(u"Grun"), kAbsent);
  write(u"gRÜN", 6);
  EXPECT_EQ(read(u"Grün"), 6);
  EXPECT_EQ(bag_.text(), u"\"Grün\" = Long 6\n");
}

TEST_F(PropertyBagTest, DoesNotKeepTheDefault) {
  write(u"Width", 5);
  write(u"Width", 0);
  EXPECT_EQ(read(u"Width"), kAbsent);
  bag_.WriteProperty(u"Flag", Variant(Boolean(1)), Variant(True));
  EXPECT_EQ(booleanOf(bag_.ReadProperty(u"Flag", kAbsentNumber)), 1);
  bag_.WriteProperty(u"Kind", Variant(Long{0}), Variant(False));
  EXPECT_EQ(read(u"Kind"), 0);
}

TEST_F(PropertyBagTest, APictureIsEqualToItselfAlone) {
  const auto picture = pictured({"r"});
  bag_.WriteProperty(u"Same", picture, picture);
  bag_.WriteProperty(u"Empty", LoadPicture(u""), PictureReference());
  bag_.WriteProperty(u"None", PictureReference(), PictureReference());
  bag_.WriteProperty(u"Picture", picture, PictureReference());
  EXPECT_EQ(std::get<Variant>(bag_.ReadProperty(u"Same", kAbsentNumber)), kAbsentNumber);
  EXPECT_TRUE(pictureOf(bag_.ReadProperty(u"Empty", kAbsentNumber))->isEmpty());
  EXPECT_EQ(std::get<Variant>(bag_.ReadProperty(u"None", kAbsentNumber)), kAbsentNumber);
  EXPECT_EQ(pictureOf(bag_.ReadProperty(u"Picture", kAbsentNumber)), picture);
}

TEST_F(PropertyBagTest, ACopyIsABagOfItsOwn) {
  write(u"Width", 5);
  PropertyBag copy = bag_;
  write(u"Width", 6);
  EXPECT_EQ(longOf(copy.ReadProperty(u"Width", kAbsentNumber)), 5);
  copy = bag_;
  EXPECT_EQ(longOf(copy.ReadProperty(u"Width", kAbsentNumber)), 6);
}

TEST(PropertyValueTest, AsALong) {
  EXPECT_EQ(longOf(Variant(Long{7})), 7);
  EXPECT_EQ(longOf(Variant(True)), -1);
  EXPECT_EQ(longOf(Variant(2.5)), 2);
  EXPECT_EQ(longOf(Variant(u" 12 ")), 12);
  EXPECT_EQ(errorOf([] { longOf(Variant(u"twelve")); }), RuntimeError::TypeMismatch);
  EXPECT_EQ(errorOf([] { longOf(PictureReference()); }), RuntimeError::TypeMismatch);
  EXPECT_EQ(errorOf([] { longOf(Variant(3e9)); }), RuntimeError::Overflow);
}

TEST(PropertyValueTest, AsAString) {
  platform::fake::Locale locale(1031, u",");
  const platform::Override inForce(locale);
  EXPECT_EQ(stringOf(Variant(u" text ")), u" text ");
  EXPECT_EQ(stringOf(Variant(True)), u"True");
  EXPECT_EQ(stringOf(Variant(Boolean(7))), u"True");
  EXPECT_EQ(stringOf(Variant(False)), u"False");
  EXPECT_EQ(stringOf(Variant(Long{-2147483647})), u"-2147483647");
  EXPECT_EQ(stringOf(Variant(std::int16_t{7})), u"7");
  EXPECT_EQ(stringOf(Variant(0.5)), u"0,5");
  EXPECT_EQ(errorOf([] { stringOf(Variant(std::numeric_limits<double>::infinity())); }),
            RuntimeError::Overflow);
  EXPECT_EQ(errorOf([] { stringOf(PictureReference()); }), RuntimeError::TypeMismatch);
}

TEST(PropertyValueTest, AsABoolean) {
  EXPECT_EQ(booleanOf(Variant(Boolean(7))), 7);
  EXPECT_EQ(booleanOf(Variant(std::int16_t{7})), -1);
  EXPECT_EQ(booleanOf(Variant(Long{65536})), -1);
  EXPECT_EQ(booleanOf(Variant(Long{0})), 0);
  EXPECT_EQ(booleanOf(Variant(0.25)), -1);
  EXPECT_EQ(booleanOf(Variant(0.0)), 0);
  EXPECT_EQ(booleanOf(Variant(u"tRUE")), -1);
  EXPECT_EQ(booleanOf(Variant(u"FALSE")), 0);
  EXPECT_EQ(booleanOf(Variant(u"0.25")), -1);
  EXPECT_EQ(booleanOf(Variant(u"0")), 0);
}

TEST(PropertyValueTest, WhatIsNoBoolean) {
  for (const auto* text : {u"", u"yes", u"True ", u"1 2"}) {
    EXPECT_EQ(errorOf([&] { booleanOf(Variant(text)); }), RuntimeError::TypeMismatch);
  }
  EXPECT_EQ(errorOf([] { booleanOf(LoadPicture(u"")); }), RuntimeError::TypeMismatch);
  EXPECT_EQ(errorOf([] { booleanOf(Variant(1e300)); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([] { booleanOf(Variant(u"1e300")); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([] { booleanOf(Variant(std::numeric_limits<double>::quiet_NaN())); }),
            RuntimeError::Overflow);
}

TEST(PropertyValueTest, AsAPicture) {
  const auto picture = pictured({"r"});
  EXPECT_EQ(pictureOf(picture), picture);
  EXPECT_EQ(pictureOf(PictureReference()), nullptr);
  EXPECT_EQ(errorOf([] { pictureOf(Variant(Long{0})); }), RuntimeError::TypeMismatch);
}

}  // namespace
}  // namespace tessaly::tests
