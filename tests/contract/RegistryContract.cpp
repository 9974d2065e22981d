// What a body of the area Registry must do, whichever it is.

#include "tessaly/platform/Registry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tests/support/Platform.h"
#include "tests/support/RegistryWorld.h"

namespace tessaly::tests {
namespace {

using namespace platform;
using namespace registry_result;
using namespace std::string_literals;

using Names = std::vector<std::string>;

class RegistryContract : public testing::TestWithParam<Body> {
 protected:
  static Registry& registry() { return RegistryWorld::registry(); }
  RegistryKey base() const { return world_.key(); }
  std::string path() const { return world_.path(); }

  static Long opened(RegistryKey key, const char* path, RegistryAccess access = kKeyRead) {
    RegistryKey result = 0;
    const Long failure = registry().RegOpenKeyExA(key, path, access, result);
    if (failure == kSuccess) registry().RegCloseKey(result);
    return failure;
  }

  static RegistryKey open(RegistryKey key, const char* path, RegistryAccess access) {
    RegistryKey result = 0;
    EXPECT_EQ(registry().RegOpenKeyExA(key, path, access, result), kSuccess) << path;
    return result;
  }

  static Long made(RegistryKey key, const char* path, RegistryAccess access = kKeyAllAccess) {
    RegistryKey result = 0;
    const Long failure = registry().RegCreateKeyExA(key, path, access, result);
    if (failure == kSuccess) registry().RegCloseKey(result);
    return failure;
  }

  static RegistryKey make(RegistryKey key, const char* path, RegistryAccess access = kKeyAllAccess) {
    RegistryKey result = 0;
    EXPECT_EQ(registry().RegCreateKeyExA(key, path, access, result), kSuccess) << path;
    return result;
  }

  static Long removed(RegistryKey key, const char* path) { return registry().RegDeleteKeyA(key, path); }

  static Long written(RegistryKey key, const char* name, RegistryType type, const std::string& bytes) {
    // The platform takes a NUL behind the data with it, so something else stands there.
    const std::string given = bytes + "#";
    return registry().RegSetValueExA(key, name, type, given.data(), static_cast<std::uint32_t>(bytes.size()));
  }

  struct Answer {
    Long result = 0;
    RegistryType type = 0;
    std::uint32_t size = 0;
    std::string buffer;
  };

  /// What a query into a buffer of so many bytes gives; the buffer holds '#' before it.
  static Answer query(RegistryKey key, const char* name, std::uint32_t size) {
    Answer answer{0, 99, size, std::string(size + 8U, '#')};
    answer.result = registry().RegQueryValueExA(key, name, answer.type, answer.buffer.data(), answer.size);
    return answer;
  }

  static std::string bytesOf(RegistryKey key, const char* name) {
    const Answer answer = query(key, name, 1000);
    EXPECT_EQ(answer.result, kSuccess);
    return answer.buffer.substr(0, answer.size);
  }

  static Names namesIn(RegistryKey key) {
    Names names;
    std::string buffer(1000, '#');
    for (std::uint32_t i = 0; registry().RegEnumKeyA(key, i, buffer.data(), 1000) == kSuccess; ++i) {
      names.emplace_back(buffer.c_str());
    }
    return names;
  }

  static Long counted(RegistryKey key, std::uint32_t& count) {
    return registry().RegQueryInfoKeyA(key, count);
  }

  bool isWine() const { return GetParam() == Body::Own && underWine(); }

 private:
  RegistryWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Body, RegistryContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(RegistryContract, OpensWhatIsThereAndNothingElse) {
  EXPECT_EQ(opened(base(), "missing"), kNotFound);
  EXPECT_EQ(opened(base(), "missing\\below"), kNotFound);
  ASSERT_EQ(made(base(), "a\\b\\c"), kSuccess);
  EXPECT_EQ(opened(base(), "a"), kSuccess);
  EXPECT_EQ(opened(base(), "a\\b\\c"), kSuccess);
  EXPECT_EQ(opened(base(), "a/b"), kNotFound);
}

TEST_P(RegistryContract, AnEmptyOrNullPathIsTheKeyItself) {
  for (const char* path : {"", static_cast<const char*>(nullptr)}) {
    EXPECT_EQ(opened(base(), path), kSuccess);
    EXPECT_EQ(made(base(), path), kSuccess);
    EXPECT_EQ(opened(kCurrentUser, path), kSuccess);
  }
}

TEST_P(RegistryContract, TakesBackslashesInAPathAsTheyCome) {
  ASSERT_EQ(made(base(), "a\\b"), kSuccess);
  EXPECT_EQ(opened(base(), "a\\b\\"), kSuccess);
  EXPECT_EQ(opened(base(), "a\\b\\\\"), kSuccess);
  EXPECT_EQ(opened(base(), "a\\\\b"), kSuccess);
  EXPECT_EQ(opened(base(), "a\\\\\\b"), kSuccess);
  EXPECT_EQ(opened(base(), "\\a"), kBadPathname);
  EXPECT_EQ(opened(base(), "\\"), kBadPathname);
  EXPECT_EQ(opened(base(), "\\\\"), kBadPathname);
}

TEST_P(RegistryContract, MakesKeysByPathsWithBackslashesAnywhereButInFront) {
  EXPECT_EQ(made(base(), "trail\\"), kSuccess);
  EXPECT_EQ(made(base(), "dou\\\\ble"), kSuccess);
  EXPECT_EQ(made(base(), "\\lead"), kBadPathname);
  EXPECT_EQ(made(base(), "\\"), kBadPathname);
  EXPECT_EQ(namesIn(base()), (Names{"dou", "trail"}));
  EXPECT_EQ(opened(base(), "dou\\ble"), kSuccess);
}

TEST_P(RegistryContract, FindsNamesInAnyCaseAndKeepsTheirOwn) {
  ASSERT_EQ(made(base(), "MixedCase"), kSuccess);
  ASSERT_EQ(made(base(), "mIXEDcASE\\Below"), kSuccess);
  EXPECT_EQ(namesIn(base()), Names{"MixedCase"});
  const RegistryKey key = open(base(), "MIXEDCASE\\below", kKeyAllAccess);
  ASSERT_EQ(written(key, "Value", kNumber, "abcd"), kSuccess);
  EXPECT_EQ(bytesOf(key, "vALUE"), "abcd");
  ASSERT_EQ(written(key, "VALUE", kNumber, "efgh"), kSuccess);
  EXPECT_EQ(bytesOf(key, "Value"), "efgh");
  registry().RegCloseKey(key);
}

TEST_P(RegistryContract, FindsLettersOutsideAsciiInAnyCaseToo) {
  // Codes of windows-1252, in which the tests run.
  ASSERT_EQ(made(base(), "caf\xE9"), kSuccess);
  EXPECT_EQ(opened(base(), "CAF\xC9"), kSuccess);
  EXPECT_EQ(namesIn(base()), Names{"caf\xE9"});
}

TEST_P(RegistryContract, DeletesAKeyWithItsValues) {
  const RegistryKey key = make(base(), "gone");
  ASSERT_EQ(written(key, "v", kNumber, "abcd"), kSuccess);
  registry().RegCloseKey(key);
  EXPECT_EQ(removed(base(), "GONE"), kSuccess);
  EXPECT_EQ(opened(base(), "gone"), kNotFound);
  const RegistryKey again = make(base(), "gone");
  EXPECT_EQ(query(again, "v", 10).result, kNotFound);
  registry().RegCloseKey(again);
}

TEST_P(RegistryContract, DeletesNoKeyWithSubkeys) {
  ASSERT_EQ(made(base(), "a\\b"), kSuccess);
  EXPECT_EQ(removed(base(), "a"), kAccessDenied);
  EXPECT_EQ(opened(base(), "a\\b"), kSuccess);
  EXPECT_EQ(removed(base(), "a\\b"), kSuccess);
  EXPECT_EQ(removed(base(), "a"), kSuccess);
}

TEST_P(RegistryContract, DeletesByPathsAsOpeningTakesThem) {
  ASSERT_EQ(made(base(), "a\\b"), kSuccess);
  EXPECT_EQ(removed(base(), "missing"), kNotFound);
  EXPECT_EQ(removed(base(), "\\a"), kBadPathname);
  EXPECT_EQ(removed(base(), nullptr), kInvalidParameter);
  EXPECT_EQ(removed(base(), "a\\\\b"), kSuccess);
  EXPECT_EQ(removed(base(), "a\\"), kSuccess);
  EXPECT_EQ(namesIn(base()), Names{});
}

TEST_P(RegistryContract, AnEmptyPathDeletesTheKeyItself) {
  const RegistryKey key = make(base(), "gone");
  EXPECT_EQ(removed(key, ""), kSuccess);
  EXPECT_EQ(opened(base(), "gone"), kNotFound);
  EXPECT_EQ(registry().RegCloseKey(key), kSuccess);
}

TEST_P(RegistryContract, AKeyDeletedWhileOpenGivesNothingMore) {
  const RegistryKey key = make(base(), "gone");
  ASSERT_EQ(written(key, "v", kNumber, "abcd"), kSuccess);
  EXPECT_EQ(bytesOf(key, "v"), "abcd");
  ASSERT_EQ(removed(base(), "gone"), kSuccess);
  const auto expectDeleted = [&] {
    EXPECT_EQ(query(key, "v", 10).result, kKeyDeleted);
    EXPECT_EQ(written(key, "v", kNumber, "abcd"), kKeyDeleted);
    EXPECT_EQ(opened(key, ""), kKeyDeleted);
    EXPECT_EQ(opened(key, "x"), kKeyDeleted);
    EXPECT_EQ(made(key, ""), kKeyDeleted);
    EXPECT_EQ(made(key, "x"), kKeyDeleted);
    EXPECT_EQ(removed(key, ""), kKeyDeleted);
    std::uint32_t count = 0;
    EXPECT_EQ(counted(key, count), kKeyDeleted);
    std::string buffer(100, '#');
    EXPECT_EQ(registry().RegEnumKeyA(key, 0, buffer.data(), 100), kKeyDeleted);
  };
  expectDeleted();
  ASSERT_EQ(made(base(), "gone"), kSuccess);
  expectDeleted();
  EXPECT_EQ(registry().RegCloseKey(key), kSuccess);
}

TEST_P(RegistryContract, ClosesAKeyOnce) {
  const RegistryKey key = make(base(), "k");
  EXPECT_EQ(registry().RegCloseKey(key), kSuccess);
  EXPECT_EQ(registry().RegCloseKey(key), kInvalidHandle);
  EXPECT_EQ(registry().RegCloseKey(0), kInvalidHandle);
}

TEST_P(RegistryContract, APredefinedKeyCanBeClosedAndStaysOpen) {
  EXPECT_EQ(registry().RegCloseKey(kCurrentUser), kSuccess);
  EXPECT_EQ(opened(kCurrentUser, ""), kSuccess);
}

TEST_P(RegistryContract, ANumberThatIsNoOpenKeyIsRefusedEverywhere) {
  for (const RegistryKey none : {RegistryKey{0}, RegistryKey{0x1234560}, RegistryKey{2}, RegistryKey{-1}}) {
    if (isWine() && none == -1) continue;  // stands for the process itself there, which is no key either
    EXPECT_EQ(opened(none, "x"), kInvalidHandle) << none;
    EXPECT_EQ(opened(none, ""), kInvalidHandle) << none;
    EXPECT_EQ(made(none, "x"), kInvalidHandle) << none;
    EXPECT_EQ(removed(none, "x"), kInvalidHandle) << none;
    EXPECT_EQ(query(none, "x", 10).result, kInvalidHandle) << none;
    EXPECT_EQ(written(none, "x", kNumber, "abcd"), kInvalidHandle) << none;
    std::uint32_t count = 0;
    EXPECT_EQ(counted(none, count), kInvalidHandle) << none;
    std::string buffer(10, '#');
    EXPECT_EQ(registry().RegEnumKeyA(none, 0, buffer.data(), 10), kInvalidHandle) << none;
  }
}

TEST_P(RegistryContract, GivesTextAndTouchesNoByteBehindIt) {
  ASSERT_EQ(written(base(), "s", kText, "hello"), kSuccess);
  for (const std::uint32_t room : {70U, 6U, 5U}) {
    const Answer answer = query(base(), "s", room);
    EXPECT_EQ(answer.result, kSuccess) << room;
    EXPECT_EQ(answer.type, kText) << room;
    EXPECT_EQ(answer.size, 5U) << room;
    EXPECT_EQ(answer.buffer, "hello" + std::string(room + 8U - 5U, '#')) << room;
  }
}

TEST_P(RegistryContract, TellsTheSizeWhereTheBufferIsTooSmall) {
  ASSERT_EQ(written(base(), "s", kText, "hello"), kSuccess);
  ASSERT_EQ(written(base(), "n", kNumber, "abcd"), kSuccess);
  for (const std::uint32_t room : {0U, 4U}) {
    const Answer answer = query(base(), "s", room);
    EXPECT_EQ(answer.result, kMoreData) << room;
    EXPECT_EQ(answer.size, 5U) << room;
    EXPECT_EQ(answer.type, kText) << room;
    EXPECT_EQ(answer.buffer, std::string(room + 8U, '#')) << room;
  }
  EXPECT_EQ(query(base(), "n", 3).result, kMoreData);
  EXPECT_EQ(query(base(), "n", 3).size, 4U);
}

TEST_P(RegistryContract, TellsTheSizeWithoutABuffer) {
  ASSERT_EQ(written(base(), "s", kText, "hello"), kSuccess);
  RegistryType type = 99;
  std::uint32_t size = 55;
  EXPECT_EQ(registry().RegQueryValueExA(base(), "s", type, nullptr, size), kSuccess);
  EXPECT_EQ(type, kText);
  EXPECT_EQ(size, 5U);
}

TEST_P(RegistryContract, KeepsANulWhereOneWasGiven) {
  ASSERT_EQ(written(base(), "end", kText, "hello\0"s), kSuccess);
  ASSERT_EQ(written(base(), "within", kText, "a\0b\0c"s), kSuccess);
  EXPECT_EQ(bytesOf(base(), "end"), "hello\0"s);
  EXPECT_EQ(bytesOf(base(), "within"), "a\0b\0c"s);
}

TEST_P(RegistryContract, KeepsEmptyValues) {
  for (const RegistryType type : {kNoType, kText, kBinary, kTexts}) {
    ASSERT_EQ(written(base(), "v", type, ""), kSuccess);
    const Answer answer = query(base(), "v", 10);
    EXPECT_EQ(answer.result, kSuccess);
    EXPECT_EQ(answer.type, type);
    EXPECT_EQ(answer.size, 0U);
  }
}

TEST_P(RegistryContract, KeepsTypeAndBytesOfEveryKind) {
  const std::pair<RegistryType, std::string> rows[] = {{kNumber, "\1\2\3\4"},
                                                       {kNumber, "\1\2\3\4\5\6"},
                                                       {kNumber, "\1\2"},
                                                       {kBinary, "\0\xFF"s},
                                                       {kTexts, "ab\0cd\0\0"s},
                                                       {kExpandableText, "%A%"},
                                                       {77, "abc"},
                                                       {0xFFFFFFFF, "abc"},
                                                       {kNoType, "abc"},
                                                       {6, "abc"},
                                                       {11, "12345678"},
                                                       {5, "\0\0\0\1"s}};
  for (const auto& [type, bytes] : rows) {
    ASSERT_EQ(written(base(), "v", type, bytes), kSuccess) << type;
    const Answer answer = query(base(), "v", 100);
    EXPECT_EQ(answer.result, kSuccess) << type;
    EXPECT_EQ(answer.type, type);
    EXPECT_EQ(answer.buffer.substr(0, answer.size), bytes) << type;
  }
}

TEST_P(RegistryContract, KeepsTextOfTheCodePage) {
  const std::string text = "gr\xFC\xDF Gott \x80";
  ASSERT_EQ(written(base(), "s", kText, text), kSuccess);
  EXPECT_EQ(bytesOf(base(), "s"), text);
}

TEST_P(RegistryContract, ANullOrEmptyNameIsTheUnnamedValue) {
  ASSERT_EQ(written(base(), "", kText, "empty"), kSuccess);
  EXPECT_EQ(bytesOf(base(), nullptr), "empty");
  ASSERT_EQ(written(base(), nullptr, kText, "null"), kSuccess);
  EXPECT_EQ(bytesOf(base(), ""), "null");
}

TEST_P(RegistryContract, AMissingValueIsNotFound) {
  const Answer answer = query(base(), "missing", 10);
  EXPECT_EQ(answer.result, kNotFound);
  EXPECT_EQ(answer.buffer, std::string(18, '#'));
  EXPECT_EQ(query(base(), nullptr, 10).result, kNotFound);
}

TEST_P(RegistryContract, ABackslashIsALetterInAValueName) {
  ASSERT_EQ(written(base(), "a\\b", kText, "x"), kSuccess);
  EXPECT_EQ(bytesOf(base(), "A\\B"), "x");
  EXPECT_EQ(namesIn(base()), Names{});
}

TEST_P(RegistryContract, AKeyForReadingTakesNoValue) {
  ASSERT_EQ(made(base(), "k"), kSuccess);
  for (const RegistryAccess access : {kKeyRead, RegistryAccess{0x80000000}}) {
    const RegistryKey key = open(base(), "k", access);
    EXPECT_EQ(written(key, "v", kNumber, "abcd"), kAccessDenied);
    EXPECT_EQ(query(key, "v", 10).result, kNotFound);
    EXPECT_EQ(made(key, "below"), kSuccess);
    EXPECT_EQ(removed(key, "below"), kSuccess);
    registry().RegCloseKey(key);
  }
}

TEST_P(RegistryContract, GivesEachRightAsItWasAskedFor) {
  ASSERT_EQ(made(base(), "k"), kSuccess);
  struct Row {
    RegistryAccess access;
    bool reads;
    bool writes;
    bool lists;
  };
  for (const Row& row : {Row{kSetValue, false, true, false}, Row{kEnumerateSubKeys, false, false, true},
                         Row{kQueryValue, true, false, false}, Row{0x40000000, false, true, false},
                         Row{0x10000000, true, true, true}, Row{0x02000000, true, true, true},
                         Row{0, false, false, false}, Row{kKeyAllAccess, true, true, true}}) {
    const RegistryKey key = open(base(), "k", row.access);
    EXPECT_EQ(query(key, "missing", 10).result, row.reads ? kNotFound : kAccessDenied) << row.access;
    EXPECT_EQ(written(key, "v", kNumber, "abcd"), row.writes ? kSuccess : kAccessDenied) << row.access;
    std::string buffer(10, '#');
    EXPECT_EQ(registry().RegEnumKeyA(key, 0, buffer.data(), 10), row.lists ? kNoMoreItems : kAccessDenied)
        << row.access;
    std::uint32_t count = 0;
    // Windows asks for the right to read values here; Wine does not.
    if (!isWine()) {
      EXPECT_EQ(counted(key, count), row.reads ? kSuccess : kAccessDenied) << row.access;
    }
    EXPECT_EQ(opened(key, ""), kSuccess) << row.access;
    registry().RegCloseKey(key);
  }
}

TEST_P(RegistryContract, ListsSubkeysByTheirUpperCase) {
  for (const char* name : {"b", "A", "c", "Z", "aa", "B1", "1", "\xE9", "\xC9x", "e"})
    ASSERT_EQ(made(base(), name), kSuccess);
  EXPECT_EQ(namesIn(base()), (Names{"1", "A", "aa", "b", "B1", "c", "e", "Z", "\xE9", "\xC9x"}));
  std::uint32_t count = 0;
  EXPECT_EQ(counted(base(), count), kSuccess);
  EXPECT_EQ(count, 10U);
}

TEST_P(RegistryContract, ListsAnUnderlineBehindTheLetters) {
  if (isWine()) GTEST_SKIP() << "Wine lists names by their lower case";
  for (const char* name : {"_", "a_", "b", "aa"}) ASSERT_EQ(made(base(), name), kSuccess);
  EXPECT_EQ(namesIn(base()), (Names{"aa", "a_", "b", "_"}));
}

TEST_P(RegistryContract, ListsNothingPastTheEnd) {
  ASSERT_EQ(made(base(), "only"), kSuccess);
  std::string buffer(100, '#');
  for (const std::uint32_t index : {1U, 99U, 0xFFFFFFFFU}) {
    EXPECT_EQ(registry().RegEnumKeyA(base(), index, buffer.data(), 100), kNoMoreItems);
  }
}

TEST_P(RegistryContract, ANameNeedsRoomForItsNul) {
  ASSERT_EQ(made(base(), "name"), kSuccess);
  std::string buffer(100, '#');
  EXPECT_EQ(registry().RegEnumKeyA(base(), 0, buffer.data(), 4), kMoreData);
  EXPECT_EQ(registry().RegEnumKeyA(base(), 0, buffer.data(), 5), kSuccess);
  EXPECT_EQ(buffer.substr(0, 6), "name\0#"s);
}

TEST_P(RegistryContract, AListingSeesWhatChangesMeanwhile) {
  for (const char* name : {"a", "b", "c"}) ASSERT_EQ(made(base(), name), kSuccess);
  std::string buffer(100, '#');
  ASSERT_EQ(registry().RegEnumKeyA(base(), 0, buffer.data(), 100), kSuccess);
  ASSERT_EQ(removed(base(), "a"), kSuccess);
  ASSERT_EQ(registry().RegEnumKeyA(base(), 1, buffer.data(), 100), kSuccess);
  EXPECT_STREQ(buffer.c_str(), "c");
}

TEST_P(RegistryContract, TakesNamesOf255Characters) {
  const std::string longest(255, 'n');
  EXPECT_EQ(made(base(), longest.c_str()), kSuccess);
  EXPECT_EQ(opened(base(), longest.c_str()), kSuccess);
  EXPECT_EQ(namesIn(base()), Names{longest});
}

TEST_P(RegistryContract, RefusesLongerNamesOfKeys) {
  if (isWine()) GTEST_SKIP() << "Wine has no such bound";
  const std::string tooLong(256, 'n');
  EXPECT_EQ(made(base(), tooLong.c_str()), kInvalidParameter);
  EXPECT_EQ(opened(base(), tooLong.c_str()), kNotFound);
  EXPECT_EQ(namesIn(base()), Names{});
}

TEST_P(RegistryContract, TakesValueNamesOf16383Characters) {
  const std::string longest(16383, 'v');
  EXPECT_EQ(written(base(), longest.c_str(), kNumber, "abcd"), kSuccess);
  EXPECT_EQ(bytesOf(base(), longest.c_str()), "abcd");
  const std::string tooLong(16384, 'v');
  EXPECT_EQ(written(base(), tooLong.c_str(), kNumber, "abcd"), kInvalidParameter);
  EXPECT_EQ(query(base(), tooLong.c_str(), 10).result, kNotFound);
}

TEST_P(RegistryContract, TakesValuesOfAMebibyte) {
  const std::string large(1 << 20, 'x');
  ASSERT_EQ(written(base(), "large", kBinary, large), kSuccess);
  const Answer answer = query(base(), "large", 1 << 20);
  EXPECT_EQ(answer.result, kSuccess);
  EXPECT_EQ(answer.buffer.substr(0, answer.size), large);
}

TEST_P(RegistryContract, EachPredefinedKeyIsThere) {
  for (const RegistryKey root : {kClassesRoot, kCurrentUser, kLocalMachine, kUsers, kCurrentConfig}) {
    EXPECT_EQ(opened(root, ""), kSuccess) << root;
    std::uint32_t count = 0;
    EXPECT_EQ(counted(root, count), kSuccess) << root;
  }
}

TEST_P(RegistryContract, UsersShowsTheCurrentUser) {
  const Names users = namesIn(kUsers);
  const auto isUser = [](const std::string& name) {
    return name.starts_with("S-1-") && !name.ends_with("_Classes");
  };
  ASSERT_EQ(std::count_if(users.begin(), users.end(), isUser), 1);
  const std::string user = *std::find_if(users.begin(), users.end(), isUser);
  ASSERT_EQ(made(base(), "seen"), kSuccess);
  EXPECT_EQ(opened(kUsers, (user + "\\" + path() + "\\seen").c_str()), kSuccess);
  EXPECT_EQ(opened(kUsers, "nobody"), kNotFound);
}

}  // namespace
}  // namespace tessaly::tests
