// What CRegistry writes stands in the registry in its documented form, and what stands there is read in all
// its odd corners.

#include <gtest/gtest.h>

#include <limits>

#include "tessaly/settings/CRegistry.h"
#include "tests/support/Print.h"
#include "tests/support/SettingsWorld.h"

namespace tessaly {
namespace {

using namespace std::string_literals;
using platform::kBinary;
using platform::kCurrentUser;
using platform::kNumber;
using platform::kText;
using tests::Body;
using tests::shown;
using tests::StoredValue;

constexpr Long kMost = std::numeric_limits<Long>::max();
constexpr Long kLeast = std::numeric_limits<Long>::min();

class ValuesTest : public testing::TestWithParam<Body> {
 protected:
  ValuesTest() {
    settings_.root(2);
    settings_.rootPath(world_->path());
  }

  void put(const char* name, const StoredValue& value) {
    ASSERT_TRUE(tests::putValue(kCurrentUser, world_->path(), name, value));
  }
  void putText(const std::string& text) { put("v", {kText, text}); }
  void putBytes(const std::string& bytes) { put("v", {kBinary, bytes}); }

  StoredValue stored(const char* name) {
    return tests::valueAt(kCurrentUser, world_->path(), name).value_or(StoredValue());
  }

  std::string text(std::u16string_view name = u"v") const {
    return shown(settings_.GetString(name, u"default"));
  }

  std::unique_ptr<tests::SettingsWorld> world_ = tests::SettingsWorld::make(GetParam());
  CRegistry settings_;
};

INSTANTIATE_TEST_SUITE_P(Body, ValuesTest, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(ValuesTest, StoreATextWithoutANul) {
  settings_.SetString(u"v", u"C:\\Tools and more");
  EXPECT_EQ(stored("v"), (StoredValue{kText, "C:\\Tools and more"}));
  EXPECT_EQ(text(), "C:\\Tools and more");
}

TEST_P(ValuesTest, StoreANumberAsFourBytesLowByteFirst) {
  const std::pair<Long, std::string> rows[] = {
      {0, "\0\0\0\0"s},         {1, "\1\0\0\0"s},         {0x12345678, "\x78\x56\x34\x12"},
      {-1, "\xFF\xFF\xFF\xFF"}, {-2, "\xFE\xFF\xFF\xFF"}, {kMost, "\xFF\xFF\xFF\x7F"},
      {kLeast, "\0\0\0\x80"s}};
  for (const auto& [number, bytes] : rows) {
    settings_.SetLong(u"v", number);
    EXPECT_EQ(stored("v"), (StoredValue{kNumber, bytes})) << number;
    EXPECT_EQ(settings_.GetLong(u"v", 7), number);
  }
}

TEST_P(ValuesTest, StoreATruthValueAsOneOrZero) {
  const std::pair<Boolean, std::string> rows[] = {
      {True, "\1\0\0\0"s}, {False, "\0\0\0\0"s}, {Boolean(1), "\1\0\0\0"s}, {Boolean(-300), "\1\0\0\0"s}};
  for (const auto& [value, bytes] : rows) {
    settings_.SetBool(u"v", value);
    EXPECT_EQ(stored("v"), (StoredValue{kNumber, bytes})) << value;
    EXPECT_EQ(settings_.GetBool(u"v", !value), Boolean(value != 0));
  }
}

TEST_P(ValuesTest, StoreAColourAsTheNumberThatItIs) {
  settings_.SetColor(u"v", static_cast<Long>(0x80000005));
  EXPECT_EQ(stored("v"), (StoredValue{kNumber, "\5\0\0\x80"s}));
  EXPECT_EQ(settings_.GetColor(u"v", 0), static_cast<Long>(0x80000005));
  EXPECT_EQ(settings_.GetLong(u"v", 0), static_cast<Long>(0x80000005));
}

TEST_P(ValuesTest, ReplaceWhatStoodThereWithItsType) {
  settings_.SetString(u"v", u"a text of some length");
  settings_.SetLong(u"v", 5);
  EXPECT_EQ(stored("v").type, kNumber);
  settings_.SetString(u"v", u"x");
  EXPECT_EQ(stored("v"), (StoredValue{kText, "x"}));
}

TEST_P(ValuesTest, GiveTheDefaultForWhatIsMissing) {
  for (const bool keyExists : {false, true}) {
    if (keyExists) settings_.SetLong(u"other", 1);
    EXPECT_EQ(text(), "default");
    EXPECT_EQ(settings_.GetLong(u"v", -7), -7);
    EXPECT_EQ(settings_.GetLong(u"v", kLeast), kLeast);
    EXPECT_EQ(settings_.GetColor(u"v", 255), 255);
    EXPECT_EQ(settings_.GetBool(u"v", True), True);
    EXPECT_EQ(settings_.GetBool(u"v", False), False);
    EXPECT_EQ(settings_.GetBool(u"v", Boolean(5)), True);
    EXPECT_EQ(settings_.LongKeyExists(u"v"), False);
    EXPECT_EQ(settings_.StringKeyExists(u"v"), False);
  }
}

TEST_P(ValuesTest, GiveADefaultTextAsItIs) {
  EXPECT_EQ(settings_.GetString(u"v", u"tab\tand spaces  "), u"tab\tand spaces  ");
  EXPECT_EQ(settings_.GetString(u"v", u""), u"");
  EXPECT_EQ(settings_.GetString(u"v", u"日本"), u"日本");
}

TEST_P(ValuesTest, MakeNoKeyByReading) {
  text();
  settings_.GetLong(u"v", 0);
  settings_.StringKeyExists(u"v");
  EXPECT_FALSE(tests::hasKey(kCurrentUser, world_->path()));
}

TEST_P(ValuesTest, MakeTheKeyAndItsParentsByWriting) {
  settings_.rootPath(world_->path() + u"\\one\\two");
  settings_.SetLong(u"v", 3);
  EXPECT_TRUE(tests::hasKey(kCurrentUser, world_->path() + u"\\one\\two"));
  EXPECT_EQ(settings_.GetLong(u"v", 0), 3);
}

TEST_P(ValuesTest, LoseTheSpacesAtTheEndOfATextOfTheirOwn) {
  settings_.SetString(u"v", u"  spaces around  ");
  EXPECT_EQ(stored("v").bytes, "  spaces around  ");
  EXPECT_EQ(text(), "  spaces around");
  settings_.SetString(u"v", u"   ");
  EXPECT_EQ(text(), "");
}

TEST_P(ValuesTest, ReadAnEmptyTextAsEmpty) {
  settings_.SetString(u"v", u"");
  EXPECT_EQ(stored("v"), (StoredValue{kText, ""}));
  EXPECT_EQ(text(), "");
}

TEST_P(ValuesTest, CutATextBeforeItsFirstControlCharacter) {
  for (const char16_t control : {u'\t', u'\r', u'\n', u'\x1', u'\x1F', u'\0'}) {
    settings_.SetString(u"v", u"before " + String(1, control) + u"behind");
    EXPECT_EQ(text(), "before ") << static_cast<int>(control);
  }
  settings_.SetString(u"v", u"\tbehind");
  EXPECT_EQ(text(), "");
  settings_.SetString(u"v", u"~\x7F!");
  EXPECT_EQ(text(), "~\x7F!");
}

TEST_P(ValuesTest, StoreATextWithItsNuls) {
  settings_.SetString(u"v", u"a\0b"s);
  EXPECT_EQ(stored("v"), (StoredValue{kText, "a\0b"s}));
}

TEST_P(ValuesTest, ReadATextThatWasStoredWithItsNulWhole) {
  putText("spaces behind  \0"s);
  EXPECT_EQ(text(), "spaces behind  ");
  putText("  \0"s);
  EXPECT_EQ(text(), "  ");
  putText("\0"s);
  EXPECT_EQ(text(), "");
  putText("one\0two"s);
  EXPECT_EQ(text(), "one");
}

TEST_P(ValuesTest, ReadUpToThirtyThousandBytes) {
  putText(std::string(30000, 'x'));
  EXPECT_EQ(text(), std::string(30000, 'x'));
  putText(std::string(30001, 'x'));
  EXPECT_EQ(text(), "default");
  putBytes(std::string(29999, 'y') + ' ');
  EXPECT_EQ(text(), std::string(29999, 'y'));
}

TEST_P(ValuesTest, WriteMoreThanTheyRead) {
  settings_.SetString(u"v", String(30001, u'x'));
  EXPECT_EQ(stored("v").bytes.size(), 30001U);
  EXPECT_EQ(text(), "default");
}

TEST_P(ValuesTest, TellWhetherAValueFits) {
  struct Row {
    std::size_t size;
    Boolean asLong;
    Boolean asString;
  };
  for (const Row& row : {Row{0, True, True}, Row{1, True, True}, Row{4, True, True}, Row{5, False, True},
                         Row{1000, False, True}, Row{1001, False, False}}) {
    putBytes(std::string(row.size, 'x'));
    EXPECT_EQ(settings_.LongKeyExists(u"v"), row.asLong) << row.size;
    EXPECT_EQ(settings_.StringKeyExists(u"v"), row.asString) << row.size;
    EXPECT_EQ(text(), std::string(row.size, 'x'));
  }
}

TEST_P(ValuesTest, AskForNoTypeWhenTheyTellThatAValueIsThere) {
  settings_.SetLong(u"v", 1);
  EXPECT_EQ(settings_.StringKeyExists(u"v"), True);
  putText("abc");
  EXPECT_EQ(settings_.LongKeyExists(u"v"), True);
  putText("abcd");
  EXPECT_EQ(settings_.LongKeyExists(u"v"), True);
  putText("abcd\0"s);
  EXPECT_EQ(settings_.LongKeyExists(u"v"), False);
}

TEST_P(ValuesTest, ReadAnyValueOfUpToFourBytesAsANumber) {
  const std::pair<std::string, Long> rows[] = {
      {"", 0},      {"\x05", 5}, {"\xFF\xFF", 65535}, {"\1\2\3", 0x030201}, {"\xFF\xFF\xFF\xFF", -1},
      {"12345", -7}};
  for (const auto& [bytes, number] : rows) {
    putBytes(bytes);
    EXPECT_EQ(settings_.GetLong(u"v", -7), number) << bytes.size();
  }
  putText("12");
  EXPECT_EQ(settings_.GetLong(u"v", -7), 0x3231);
  putText("12345");
  EXPECT_EQ(settings_.GetLong(u"v", -7), -7);
}

TEST_P(ValuesTest, ReadANumberAsTheTextOfItsBytes) {
  settings_.SetLong(u"v", 0x44434241);
  EXPECT_EQ(text(), "ABCD");
  settings_.SetLong(u"v", 0x00434241);
  EXPECT_EQ(text(), "ABC");
  settings_.SetLong(u"v", 0x20204241);
  EXPECT_EQ(text(), "AB");
  settings_.SetLong(u"v", 5);
  EXPECT_EQ(text(), "");
}

TEST_P(ValuesTest, TakeAnyNumberButZeroForTrue) {
  for (const Long number : {1, -1, 2, 0x10000, kLeast}) {
    settings_.SetLong(u"v", number);
    EXPECT_EQ(settings_.GetBool(u"v", False), True) << number;
  }
  settings_.SetLong(u"v", 0);
  EXPECT_EQ(settings_.GetBool(u"v", True), False);
  putText("12345");
  EXPECT_EQ(settings_.GetBool(u"v", True), True);
  EXPECT_EQ(settings_.GetBool(u"v", False), False);
}

TEST_P(ValuesTest, TakeAStarForTheUnnamedValue) {
  settings_.SetString(u"*", u"unnamed");
  EXPECT_EQ(stored(nullptr), (StoredValue{kText, "unnamed"}));
  EXPECT_EQ(text(u"*"), "unnamed");
  EXPECT_EQ(settings_.StringKeyExists(u"*"), True);
  settings_.SetLong(u"*", 9);
  EXPECT_EQ(stored(nullptr).type, kNumber);
  EXPECT_EQ(settings_.GetLong(u"*", 0), 9);
  EXPECT_EQ(settings_.LongKeyExists(u"*"), True);
}

TEST_P(ValuesTest, NeverReachAValueThatIsNamedAStar) {
  put("*", {kText, "star"});
  EXPECT_EQ(text(u"*"), "default");
  settings_.SetString(u"*", u"unnamed");
  EXPECT_EQ(stored("*").bytes, "star");
}

TEST_P(ValuesTest, HandOnAnEmptyNameWhichIsTheUnnamedValueToo) {
  settings_.SetString(u"", u"unnamed");
  EXPECT_EQ(stored(nullptr).bytes, "unnamed");
  EXPECT_EQ(text(u""), "unnamed");
}

TEST_P(ValuesTest, FindNamesInAnyCase) {
  settings_.SetLong(u"Window Left", 12);
  EXPECT_EQ(settings_.GetLong(u"WINDOW left", 0), 12);
  settings_.rootPath(world_->path() + u"\\Sub");
  settings_.SetLong(u"v", 1);
  settings_.rootPath(world_->path() + u"\\sUB");
  EXPECT_EQ(settings_.GetLong(u"V", 0), 1);
}

TEST_P(ValuesTest, SeeWhatAnotherObjectWrote) {
  CRegistry other = settings_;
  other.SetString(u"v", u"first");
  EXPECT_EQ(text(), "first");
  other.SetString(u"v", u"second");
  EXPECT_EQ(text(), "second");
}

}  // namespace
}  // namespace tessaly
