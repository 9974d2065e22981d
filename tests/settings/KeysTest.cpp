// The operations of CRegistry that count, name and delete keys.

#include <gtest/gtest.h>

#include <limits>

#include "tessaly/settings/CRegistry.h"
#include "tests/support/Errors.h"
#include "tests/support/Print.h"
#include "tests/support/SettingsWorld.h"

namespace tessaly {
namespace {

using namespace std::string_literals;
using platform::kCurrentUser;
using tests::Body;
using tests::errorOf;
using tests::shown;

constexpr Long kUserRoot = 2;

class KeysTest : public testing::TestWithParam<Body> {
 protected:
  String inner(std::u16string_view name) const { return world_->path() + u"\\" + String(name); }

  void put(std::initializer_list<std::u16string_view> names) {
    ASSERT_TRUE(tests::putKey(kCurrentUser, world_->path()));
    for (const std::u16string_view name : names) ASSERT_TRUE(tests::putKey(kCurrentUser, inner(name)));
  }

  bool has(std::u16string_view name) const { return tests::hasKey(kCurrentUser, inner(name)); }
  bool isThere() const { return tests::hasKey(kCurrentUser, world_->path()); }

  String nameAt(Long index) { return registry_.GetSubKeyName(kUserRoot, world_->path(), index); }

  std::string names() {
    std::string result;
    for (Long index = 1; index <= registry_.GetSubkeysNumber(kUserRoot, world_->path()).toLong(); ++index) {
      result += '<' + shown(nameAt(index)) + '>';
    }
    return result;
  }

  /// Whether the deletion failed, as its result says.
  bool failsToDelete() {
    const Variant failed = registry_.DeletePath(kUserRoot, world_->path());
    EXPECT_TRUE(std::holds_alternative<Boolean>(failed.value()));
    return failed.toLong() != 0;
  }

  std::unique_ptr<tests::SettingsWorld> world_ = tests::SettingsWorld::make(GetParam());
  CRegistry registry_;
};

INSTANTIATE_TEST_SUITE_P(Body, KeysTest, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(KeysTest, CountTheDirectSubkeysAsALong) {
  put({u"b", u"a\\deeper", u"c"});
  const Variant count = registry_.GetSubkeysNumber(kUserRoot, world_->path());
  EXPECT_EQ(std::get<Long>(count.value()), 3);
  EXPECT_EQ(std::get<Long>(registry_.GetSubkeysNumber(kUserRoot, inner(u"b")).value()), 0);
}

TEST_P(KeysTest, GiveASmallZeroWhereThereIsNoKeyToCount) {
  EXPECT_EQ(std::get<std::int16_t>(registry_.GetSubkeysNumber(kUserRoot, world_->path()).value()), 0);
  put({u"a"});
  EXPECT_EQ(std::get<std::int16_t>(registry_.GetSubkeysNumber(5, world_->path()).value()), 0);
  EXPECT_EQ(std::get<std::int16_t>(registry_.GetSubkeysNumber(-1, world_->path()).value()), 0);
  EXPECT_EQ(std::get<std::int16_t>(registry_.GetSubkeysNumber(kUserRoot, u"\\" + world_->path()).value()), 0);
}

TEST_P(KeysTest, NameSubkeysFromOneInTheOrderOfTheirUpperCase) {
  put({u"b", u"C", u"a"});
  EXPECT_EQ(names(), "<a><b><C>");
}

TEST_P(KeysTest, GiveNoNameAtAnyOtherPlace) {
  put({u"a"});
  for (const Long index :
       {0, 2, -1, std::numeric_limits<Long>::max(), std::numeric_limits<Long>::min() + 1}) {
    EXPECT_EQ(nameAt(index), u"") << index;
  }
  EXPECT_EQ(registry_.GetSubKeyName(kUserRoot, inner(u"missing"), 1), u"");
  EXPECT_EQ(registry_.GetSubKeyName(9, world_->path(), 1), u"");
}

TEST_P(KeysTest, RaiseErrorSixForTheLowestPlaceOfAKeyThatIsThere) {
  put({u"a"});
  constexpr Long kLowest = std::numeric_limits<Long>::min();
  EXPECT_EQ(errorOf([&] { nameAt(kLowest); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([&] { registry_.GetSubKeyName(kUserRoot, inner(u"missing"), kLowest); }), 0);
}

TEST_P(KeysTest, TakeTheSpacesAtANamesFrontAndLeaveThoseAtItsEnd) {
  put({u"  front", u"rear  ", u"in side"});
  EXPECT_EQ(names(), "<front><in side><rear  >");
}

TEST_P(KeysTest, TakeControlCharactersAtANamesEnd) {
  put({u"a\x1", u"b\x1F\x2", u"c\x1 ", u"\x3x"});
  EXPECT_EQ(names(), "<\x3x><a><b><c\x1 >");
}

TEST_P(KeysTest, GiveAnEmptyNameForOneOfSpacesAlone) {
  put({u"   "});
  EXPECT_EQ(names(), "<>");
}

TEST_P(KeysTest, NameAKeyWithALongName) {
  const String name(200, u'x');
  put({name});
  EXPECT_EQ(nameAt(1), name);
}

TEST_P(KeysTest, UseNothingOfTheObject) {
  put({u"a"});
  registry_.root(0);
  registry_.rootPath(u"elsewhere");
  registry_.subPath(u"further");
  EXPECT_EQ(names(), "<a>");
  EXPECT_FALSE(failsToDelete());
  EXPECT_EQ(registry_.root(), 0);
  EXPECT_EQ(registry_.rootPath(), u"elsewhere");
}

TEST_P(KeysTest, DeleteAKeyWithItsValues) {
  put({});
  ASSERT_TRUE(tests::putValue(kCurrentUser, world_->path(), "v", {platform::kText, "x"}));
  EXPECT_FALSE(failsToDelete());
  EXPECT_FALSE(isThere());
}

TEST_P(KeysTest, DeleteAKeyWithOneSubkeyAtEachLevel) {
  put({u"a\\b\\c\\d"});
  EXPECT_FALSE(failsToDelete());
  EXPECT_FALSE(isThere());
}

TEST_P(KeysTest, FailToDeleteWhatIsNotThere) {
  EXPECT_TRUE(failsToDelete());
  put({u"a"});
  EXPECT_NE(registry_.DeletePath(5, world_->path()).toLong(), 0);
  EXPECT_NE(registry_.DeletePath(kUserRoot, u"\\" + world_->path()).toLong(), 0);
  EXPECT_TRUE(has(u"a"));
}

/// The subkeys are counted once and drop out of the count as they go; the second of two is then reached by
/// its empty name, which is the key itself, and so the key is gone before its own turn.
TEST_P(KeysTest, DeleteAKeyWithTwoSubkeysAndSayThatTheyFailed) {
  put({u"a", u"b"});
  EXPECT_TRUE(failsToDelete());
  EXPECT_FALSE(isThere());
}

TEST_P(KeysTest, DeleteAKeyWithThreeSubkeysAndSayThatTheyFailed) {
  put({u"a", u"b", u"c"});
  EXPECT_TRUE(failsToDelete());
  EXPECT_FALSE(isThere());
}

/// With more of them an empty name comes up below the key's own path with a backslash behind it, where the
/// way still leads on: it goes in circles only where the first name is empty.
TEST_P(KeysTest, DeleteAKeyWithFourOrFiveSubkeysAndSayThatTheyFailed) {
  put({u"a", u"b", u"c", u"d"});
  EXPECT_TRUE(failsToDelete());
  EXPECT_FALSE(isThere());
  put({u"a", u"b", u"c", u"d", u"e"});
  EXPECT_TRUE(failsToDelete());
  EXPECT_FALSE(isThere());
}

TEST_P(KeysTest, StopAtASubkeyThatCannotBeDeleted) {
  put({u"a\\1", u"a\\2", u"b"});
  EXPECT_TRUE(failsToDelete());
  EXPECT_FALSE(has(u"a"));
  EXPECT_TRUE(has(u"b"));
}

TEST_P(KeysTest, ComeToAnEndWhereTheFirstNameIsEmpty) {
  put({u" ", u"a"});
  EXPECT_TRUE(failsToDelete());
  EXPECT_TRUE(has(u" "));
  EXPECT_TRUE(has(u"a"));
}

TEST_P(KeysTest, ComeToAnEndWhereAPathHoldsANul) {
  put({u"a\\b"});
  EXPECT_EQ(registry_.DeletePath(kUserRoot, world_->path() + u"\0more"s).toLong(), 0);
  EXPECT_FALSE(isThere());
}

TEST_P(KeysTest, DeleteNothingByAnEmptyPath) {
  put({u"a"});
  EXPECT_NE(registry_.DeletePath(kUserRoot, u"").toLong(), 0);
  EXPECT_TRUE(has(u"a"));
}

TEST_P(KeysTest, DeleteALevelAtEachCallUntilAllIsGone) {
  put({u"a\\1", u"a\\2", u"b\\1", u"b\\2", u"c"});
  int calls = 0;
  while (isThere() && calls < 20) {
    failsToDelete();
    ++calls;
  }
  EXPECT_LT(calls, 20);
}

}  // namespace
}  // namespace tessaly
