// A bag as text: every value comes back, and what is no such text is refused.

#include <gtest/gtest.h>

#include <chrono>
#include <clocale>
#include <cmath>
#include <limits>
#include <locale>

#include "tessaly/base/Text.h"
#include "tessaly/forms/PropertyBag.h"
#include "tests/forms/PixelsOfTests.h"
#include "tests/support/Errors.h"
#include "tests/support/Print.h"

namespace tessaly::tests {
namespace {

const Variant kDefault(u"no such key");

PropertyValue readBack(const PropertyValue& value) {
  PropertyBag bag;
  bag.WriteProperty(u"Key", value, kDefault);
  return PropertyBag::fromText(bag.text()).ReadProperty(u"Key", kDefault);
}

String textOf(const PropertyValue& value) {
  PropertyBag bag;
  bag.WriteProperty(u"Key", value, kDefault);
  return bag.text();
}

Long refusal(std::u16string_view text) {
  return errorOf([&] { PropertyBag::fromText(text); });
}

TEST(BagTextTest, EachKindOfValueHasItsLine) {
  EXPECT_EQ(shown(textOf(Variant(True))), "Key = Boolean True\n");
  EXPECT_EQ(shown(textOf(Variant(False))), "Key = Boolean False\n");
  EXPECT_EQ(shown(textOf(Variant(Boolean(1)))), "Key = Boolean 1\n");
  EXPECT_EQ(shown(textOf(Variant(std::int16_t{-5}))), "Key = Integer -5\n");
  EXPECT_EQ(shown(textOf(Variant(Long{0xFF00FF}))), "Key = Long 16711935\n");
  EXPECT_EQ(shown(textOf(Variant(0.1))), "Key = Double 0.1\n");
  EXPECT_EQ(shown(textOf(Variant(u"Größe \"1\"\r\n"))), "Key = String \"Größe \\\"1\\\"\\r\\n\"\n");
  EXPECT_EQ(shown(textOf(PictureReference())), "Key = Picture nothing\n");
  EXPECT_EQ(shown(textOf(LoadPicture(u""))), "Key = Picture empty\n");
  EXPECT_EQ(shown(textOf(pictured({"r"}))).substr(0, 24), "Key = Picture iVBORw0KGg");
}

TEST(BagTextTest, KindsAndValuesComeBack) {
  constexpr auto kLeast = std::numeric_limits<Long>::min();
  constexpr auto kMost = std::numeric_limits<Long>::max();
  for (const Variant& value : {Variant(True),
                               Variant(False),
                               Variant(Boolean(2)),
                               Variant(Boolean(-32768)),
                               Variant(std::int16_t{0}),
                               Variant(std::int16_t{-1}),
                               Variant(std::int16_t{32767}),
                               Variant(kLeast),
                               Variant(kMost),
                               Variant(0.0),
                               Variant(0.1),
                               Variant(1.0 / 3),
                               Variant(-1e-5),
                               Variant(1e308),
                               Variant(5e-324),
                               Variant(std::numeric_limits<double>::infinity()),
                               Variant(u""),
                               Variant(u" a = Long 1 "),
                               Variant(String(u"a\0b", 3)),
                               Variant(u"\"\\\t\r\n\x85\u2028\uFEFF\u007F"),
                               Variant(u"😀 日本")}) {
    EXPECT_EQ(std::get<Variant>(readBack(value)), value) << shown(textOf(value));
  }
  const auto noNumber = std::get<Variant>(readBack(Variant(std::numeric_limits<double>::quiet_NaN())));
  EXPECT_TRUE(std::isnan(std::get<double>(noNumber.value())));
}

TEST(BagTextTest, LoneSurrogatesComeBackAndTheTextIsWellFormed) {
  for (const String& text :
       {String{0xD800}, String{0xDC00}, String{u'a', 0xDBFF, u'b'}, String{0xDC00, 0xD800},
        String{0xD800, 0xD800, 0xDC00, 0xDC00}, String{0xFFFF}, String{0xFFFE}}) {
    EXPECT_EQ(std::get<Variant>(readBack(Variant(text))), Variant(text));
    EXPECT_EQ(fromUtf8(toUtf8(textOf(Variant(text)))), textOf(Variant(text)));
  }
}

TEST(BagTextTest, WhatAnEditorMightLoseStandsThereInDigits) {
  EXPECT_EQ(shown(textOf(Variant(String{1, 0x7F, 0x85, 0x2028, 0x2029, 0xFEFF, 0xFFFE, 0xFFFF, 0xD800}))),
            "Key = String \"\\u0001\\u007F\\u0085\\u2028\\u2029\\uFEFF\\uFFFE\\uFFFF\\uD800\"\n");
}

TEST(BagTextTest, KeysOfAnyCharactersComeBackInTheirOrder) {
  const std::vector<String> names = {u"B",  u"a",           u"",    u"a b", u"a = Long 1", u"\"",
                                     u"\n", String{0xD800}, u"日本"};
  PropertyBag bag;
  Long number = 0;
  for (const String& name : names) bag.WriteProperty(name, Variant(++number), kDefault);
  const PropertyBag again = PropertyBag::fromText(bag.text());
  EXPECT_EQ(shown(again.text()), shown(bag.text()));
  number = 0;
  for (const String& name : names) EXPECT_EQ(longOf(again.ReadProperty(name, kDefault)), ++number);
}

TEST(BagTextTest, AnEmptyBagIsAnEmptyText) {
  EXPECT_EQ(PropertyBag().text(), u"");
  EXPECT_EQ(PropertyBag::fromText(u"").text(), u"");
}

TEST(BagTextTest, PicturesComeBack) {
  EXPECT_EQ(pictureOf(readBack(PictureReference())), nullptr);
  EXPECT_TRUE(pictureOf(readBack(LoadPicture(u"")))->isEmpty());
  EXPECT_EQ(shownRows(*pictureOf(readBack(pictured({"rg.", "wkb"})))), (Rows{"rg.", "wkb"}));
}

TEST(BagTextTest, APictureIsTheSameEachTimeThatItIsRead) {
  const PropertyBag bag = PropertyBag::fromText(textOf(pictured({"r"})));
  PropertyBag copy;
  copy = bag;
  const auto first = pictureOf(bag.ReadProperty(u"key", kDefault));
  EXPECT_EQ(pictureOf(bag.ReadProperty(u"Key", kDefault)), first);
  EXPECT_EQ(pictureOf(copy.ReadProperty(u"Key", kDefault)), first);
  EXPECT_EQ(bag.text(), textOf(pictured({"r"})));
}

TEST(BagTextTest, ADamagedPictureIsError481WhereItIsRead) {
  const PropertyBag bag = PropertyBag::fromText(u"Picture = Picture AAAA\nWidth = Long 5\n");
  EXPECT_EQ(errorOf([&] { bag.ReadProperty(u"Picture", kDefault); }), RuntimeError::InvalidPicture);
  EXPECT_EQ(longOf(bag.ReadProperty(u"Width", kDefault)), 5);
  EXPECT_EQ(shown(bag.text()), "Picture = Picture AAAA\nWidth = Long 5\n");
}

TEST(BagTextTest, APictureThatIsNoFileIsError481WhereItIsWritten) {
  PropertyBag bag;
  bag.WriteProperty(u"Picture",
                    std::make_shared<const Picture>(PixelSize{32768, 1}, std::vector<std::uint32_t>(32768)),
                    PictureReference());
  EXPECT_EQ(errorOf([&] { bag.text(); }), RuntimeError::InvalidPicture);
}

TEST(BagTextTest, LinesMayEndInEitherWayAndTheLastInNone) {
  const PropertyBag bag = PropertyBag::fromText(u"\r\nA = Long 1\r\n\nB = String \"x\"\r\nC = Boolean True");
  EXPECT_EQ(shown(bag.text()), "A = Long 1\nB = String \"x\"\nC = Boolean True\n");
}

TEST(BagTextTest, QuotesAroundAPlainKeyDoNotCount) {
  EXPECT_EQ(shown(PropertyBag::fromText(u"\"A\" = Long 1").text()), "A = Long 1\n");
}

TEST(BagTextTest, WhatIsNoTextOfABagIsError380) {
  for (const auto* text : {u" ",
                           u"A",
                           u"A =",
                           u"A = ",
                           u"A = Long",
                           u"A = Long ",
                           u"A= Long 1",
                           u"A =Long 1",
                           u" A = Long 1",
                           u"A  = Long 1",
                           u"A = Long  1",
                           u"A = Long 1 ",
                           u"A = Long +1",
                           u"A = Long 0x1",
                           u"A = Long 1.0",
                           u"A = Long 2147483648",
                           u"A = Long -2147483649",
                           u"A = Long １",
                           u"A = long 1",
                           u"A = Integer 32768",
                           u"A = Integer -32769",
                           u"A = Boolean true",
                           u"A = Boolean 65535",
                           u"A = Boolean",
                           u"A = Double",
                           u"A = Double 1,5",
                           u"A = Double 1e999",
                           u"A = Double 1.5.5",
                           u"A = Double .",
                           u"A = String x",
                           u"A = String \"",
                           u"A = String \"x",
                           u"A = String \"x\" ",
                           u"A = String \"x\"y\"",
                           u"A = String \"\\",
                           u"A = String \"\\\"",
                           u"A = String \"\\x\"",
                           u"A = String \"\\u12\"",
                           u"A = String \"\\u12g4\"",
                           u"A = String \"\\u00e4\"",
                           u"A = Picture",
                           u"A = Picture ",
                           u"A = Picture None.",
                           u"A = Picture A",
                           u"A = Picture AAA",
                           u"A = Picture AAAAA",
                           u"A = Picture AA=A",
                           u"A = Picture A===",
                           u"A = Picture ====",
                           u"A = Picture =",
                           u"A = Picture AAAA====",
                           u"A = Picture AB==",
                           u"A = Picture AAB=",
                           u"A = Picture AA AA",
                           u"A = Picture AA-_",
                           u"A = Picture ÄAAA",
                           u"A = Date 1",
                           u"= Long 1",
                           u" = Long 1",
                           u"a-b = Long 1",
                           u"ä = Long 1",
                           u"\"A = Long 1",
                           u"\"A\"= Long 1",
                           u"\"A\"B = Long 1",
                           u"\"\\q\" = Long 1",
                           u"A = Long 1\nB",
                           u"A = Long 1\na = Long 1",
                           u"A = Long 1\n\"\\u0041\" = Long 2",
                           u"A = Long 1\rB = Long 2",
                           u"\uFEFFA = Long 1"}) {
    EXPECT_EQ(refusal(text), RuntimeError::InvalidPropertyValue) << shown(text);
  }
  EXPECT_EQ(refusal(std::u16string_view(u"A = Long 1\0", 11)), RuntimeError::InvalidPropertyValue);
  EXPECT_EQ(refusal(String{u'"', 0xD800}), RuntimeError::InvalidPropertyValue);
}

struct CommaForm final : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(BagTextTest, NumbersDoNotDependOnTheLocaleOfTheProgram) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaForm));
  std::setlocale(LC_ALL, "de_DE.UTF-8");  // where it is there
  const String text = textOf(Variant(1234567.5));
  const auto again = std::get<Variant>(readBack(Variant(1234567.5)));
  std::locale::global(before);
  EXPECT_EQ(shown(text), "Key = Double 1234567.5\n");
  EXPECT_EQ(again, Variant(1234567.5));
}

TEST(BagTextTest, AHundredThousandPropertiesAreReadInGoodTime) {
  String text;
  for (int i = 0; i < 100000; ++i) text += u"Name" + fromUtf8(std::to_string(i)) + u" = Long 1\n";
  const auto begin = std::chrono::steady_clock::now();
  const PropertyBag bag = PropertyBag::fromText(text);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(10));
  EXPECT_EQ(longOf(bag.ReadProperty(u"name99999", kDefault)), 1);
}

}  // namespace
}  // namespace tessaly::tests
