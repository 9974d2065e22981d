#include <gtest/gtest.h>

#include "tessaly/platform/keys/HiveFile.h"
#include "tests/tools/tessaly-reg/Tool.h"

namespace tessaly::tests {
namespace {

using namespace std::string_literals;
using platform::KeyStore;
using platform::KeyValue;

KeyStore::Id made(KeyStore& store, const std::vector<std::u16string_view>& path) {
  KeyStore::Id key = 0;
  EXPECT_EQ(store.create(KeyStore::kRoot, path, key), 0);
  return key;
}

void set(KeyStore& store, KeyStore::Id key, const String& name, platform::RegistryType type,
         const String& text) {
  EXPECT_EQ(store.setValue(key, name, {type, text, {}}), 0);
}

void setBytes(KeyStore& store, KeyStore::Id key, const String& name, platform::RegistryType type,
              const std::string& bytes) {
  EXPECT_EQ(store.setValue(key, name, {type, {}, bytes}), 0);
}

/// Keys and values of every kind.
void fill(KeyStore& store) {
  const KeyStore::Id key = made(store, {u"Software", u"a]b; \"c\" =", u"\xD83D\xDE00 \x416"});
  set(store, key, u"", platform::kText, u"unnamed\0"s);
  set(store, key, u"quote \" backslash \\ equals = ; ]", platform::kText, u"\"c:\\dir\\\" ;\0"s);
  set(store, key, u"empty", platform::kText, u"\0"s);
  set(store, key, u"non-BMP \xD83D\xDE00", platform::kText, u"\xD83D\xDE00\0"s);
  set(store, key, u"lines", platform::kText, u"one\r\ntwo\nthree\rfour\ttab\0"s);
  set(store, key, u"NUL inside", platform::kText, u"a\0b\0\0"s);
  set(store, key, u"half a pair", platform::kText, u"\xD800\0"s);
  set(store, key, u"name with\na line break", platform::kText, u"x\0"s);
  set(store, key, u"expandable", platform::kExpandableText, u"%HOME%\0"s);
  set(store, key, u"expandable without NUL", platform::kExpandableText, u"%HOME%");
  set(store, key, u"texts", platform::kTexts, u"a\0\0b\0\0"s);
  set(store, key, u"no texts", platform::kTexts, u"");
  setBytes(store, key, u"none", platform::kNoType, "");
  setBytes(store, key, u"binary", platform::kBinary, std::string(1000, '\xA5') + '\0');
  setBytes(store, key, u"no binary", platform::kBinary, "");
  setBytes(store, key, u"number", platform::kNumber, "\x01\x02\x03\x84");
  setBytes(store, key, u"short number", platform::kNumber, "\x01");
  setBytes(store, key, u"big-endian number", 5, "\x01\x02\x03\x84");
  setBytes(store, key, u"long number", 11, "\x01\x02\x03\x04\x05\x06\x07\x88");
  setBytes(store, key, u"unknown", 0x4D, "\xFF");
  setBytes(store, key, u"largest type", 0xFFFFFFFF, "\xFF");
  made(store, {u"Software", u"empty key", u"-", u"[x]"});
}

void expectEqual(KeyStore& left, KeyStore::Id leftKey, KeyStore& right, KeyStore::Id rightKey) {
  std::vector<platform::NamedValue> leftValues;
  std::vector<platform::NamedValue> rightValues;
  EXPECT_EQ(left.values(leftKey, leftValues), 0);
  EXPECT_EQ(right.values(rightKey, rightValues), 0);
  ASSERT_EQ(leftValues.size(), rightValues.size());
  for (std::size_t i = 0; i < leftValues.size(); ++i) {
    EXPECT_TRUE(leftValues[i].name == rightValues[i].name);
    EXPECT_TRUE(leftValues[i].value == rightValues[i].value) << i;
  }
  std::vector<String> leftNames;
  std::vector<String> rightNames;
  left.subkeys(leftKey, leftNames);
  right.subkeys(rightKey, rightNames);
  ASSERT_TRUE(leftNames == rightNames);
  for (const std::u16string_view name : leftNames) {
    KeyStore::Id leftSubkey = 0;
    KeyStore::Id rightSubkey = 0;
    left.find(leftKey, {&name, 1}, leftSubkey);
    right.find(rightKey, {&name, 1}, rightSubkey);
    expectEqual(left, leftSubkey, right, rightSubkey);
  }
}

TEST(RegRoundTrip, GivesTheSameTree) {
  Tool tool;
  fill(*tool.user);
  const std::string file = (tool.folder.path() / "x.reg").string();
  EXPECT_EQ(tool.run({"export", "HKCU", file}), 0) << tool.errors;
  Tool other;
  EXPECT_EQ(other.run({"import", file}), 0) << other.errors;
  expectEqual(*tool.user, KeyStore::kRoot, *other.user, KeyStore::kRoot);
}

TEST(RegRoundTrip, GivesTheSameTreeInAHive) {
  Tool tool;
  fill(*tool.user);
  const std::string file = (tool.folder.path() / "x.reg").string();
  EXPECT_EQ(tool.run({"export", "HKCU", file}), 0) << tool.errors;
  Tool other;
  other.userInForce = platform::hiveAt(other.folder.path() / "x.hive", platform::HiveReaders::Owner);
  EXPECT_EQ(other.run({"import", file}), 0) << other.errors;
  expectEqual(*tool.user, KeyStore::kRoot, *other.userInForce, KeyStore::kRoot);
  const std::string again = (tool.folder.path() / "again.reg").string();
  EXPECT_EQ(other.run({"export", "HKCU", again}), 0) << other.errors;
  Tool last;
  EXPECT_EQ(last.run({"import", again}), 0) << last.errors;
  expectEqual(*tool.user, KeyStore::kRoot, *last.user, KeyStore::kRoot);
}

TEST(RegRoundTrip, GivesTheSameTreeInUtf8) {
  Tool tool;
  fill(*tool.user);
  tool.import(
      regFile("[HKCU\\Software\\a]b; \"c\" =\\\xF0\x9F\x98\x80 \xD0\x96]\n\"name with\na line break\"=-\n"));
  const std::string text = tool.exported("HKCU");
  EXPECT_EQ(tool.errors, "");
  Tool other;
  EXPECT_EQ(other.import(text), 0) << other.errors;
  expectEqual(*tool.user, KeyStore::kRoot, *other.user, KeyStore::kRoot);
}

TEST(RegRoundTrip, GivesATextWithoutItsNulThatNul) {
  Tool tool;
  const KeyStore::Id key = made(*tool.user, {u"A"});
  set(*tool.user, key, u"x", platform::kText, u"abc");
  tool.import(tool.exported("HKCU"));
  KeyValue value;
  ASSERT_EQ(tool.user->value(key, u"x", value), 0);
  EXPECT_TRUE(value.text == u"abc\0"s);
}

}  // namespace
}  // namespace tessaly::tests
