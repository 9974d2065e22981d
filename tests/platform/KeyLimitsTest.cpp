#include "tessaly/platform/keys/KeyLimits.h"

#include <gtest/gtest.h>

#include "tessaly/platform/keys/MemoryKeys.h"

namespace tessaly::platform {
namespace {

using namespace registry_result;

Long checkKeyName(std::u16string_view name) {
  const std::u16string_view path[] = {name};
  return checkPath(path);
}

TEST(KeyLimits, BoundNamesAndValues) {
  EXPECT_EQ(checkKeyName(String(255, u'n')), kSuccess);
  EXPECT_EQ(checkKeyName(String(256, u'n')), kInvalidParameter);
  EXPECT_EQ(checkValueName(String(16383, u'n')), kSuccess);
  EXPECT_EQ(checkValueName(String(16384, u'n')), kInvalidParameter);
  EXPECT_EQ(checkValue({kBinary, {}, std::string(1 << 20, 'x')}), kSuccess);
  EXPECT_EQ(checkValue({kBinary, {}, std::string((1 << 20) + 1, 'x')}), kNoResources);
  EXPECT_EQ(checkValue({kText, String(1 << 19, u'x'), {}}), kSuccess);
  EXPECT_EQ(checkValue({kText, String((1 << 19) + 1, u'x'), {}}), kNoResources);
}

TEST(KeyLimits, TakeWholeSurrogatePairsOnly) {
  EXPECT_EQ(checkKeyName(u"\U0001F600"), kSuccess);
  EXPECT_EQ(checkValueName(u"\U0001F600"), kSuccess);
  for (const String& half : {String(1, char16_t{0xD800}), String(1, char16_t{0xDC00}) + u"x"}) {
    EXPECT_EQ(checkKeyName(half), kInvalidParameter);
    EXPECT_EQ(checkValueName(half), kInvalidParameter);
  }
}

TEST(KeyLimits, BoundHowDeepKeysGoHoweverTheyAreMade) {
  MemoryKeys keys;
  KeyStore::Id key = KeyStore::kRoot;
  const std::u16string_view path[] = {u"d"};
  for (std::size_t depth = 0; depth < kDeepestPath; ++depth) ASSERT_EQ(keys.create(key, path, key), kSuccess);
  EXPECT_EQ(keys.create(key, path, key), kInvalidParameter);
}

}  // namespace
}  // namespace tessaly::platform
