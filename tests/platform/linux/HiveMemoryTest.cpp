// Want of memory at any moment leaves a hive as it was, and whoever comes next is served.

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "tests/platform/linux/HiveSupport.h"
#include "tests/support/TemporaryFolder.h"

namespace {

/// How many more objects there is memory for; no bound where negative.
int objectsLeft = -1;

}  // namespace

[[gnu::noinline]] void* operator new(std::size_t size) {
  if (objectsLeft == 0) throw std::bad_alloc();
  if (objectsLeft > 0) --objectsLeft;
  if (void* memory = std::malloc(size != 0 ? size : 1)) return memory;
  throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace tessaly::tests {
namespace {

using namespace platform;
using namespace registry_result;

/// Does something with memory for one object more each time, until it has enough.
template <class Work>
int runShortOfMemory(Work work) {
  for (int objects = 0;; ++objects) {
    bool hadEnough = false;
    try {
      objectsLeft = objects;
      work();
      hadEnough = true;
    } catch (const std::bad_alloc&) {
      hadEnough = false;
    }
    objectsLeft = -1;
    if (hadEnough) return objects;
  }
}

class HiveMemoryTest : public testing::Test {
 protected:
  std::filesystem::path file() const { return temporary_.path() / "tessaly" / "user.hive"; }

  TemporaryFolder temporary_;
  std::unique_ptr<KeyStore> hive_ = hiveAt(file(), HiveReaders::Owner);
};

const String kLong(100, u'x');

TEST_F(HiveMemoryTest, AReadThatRunsShortHoldsNobody) {
  ASSERT_EQ(put(*hive_, {u"a key with a long name"}, u"a value with a long name", kLong), kSuccess);
  const auto other = hiveAt(file(), HiveReaders::Owner);
  const Keys keys = {u"a key with a long name"};
  const int objects = runShortOfMemory([&] { get(*hive_, keys, u"a value with a long name"); });
  EXPECT_GT(objects, 3);
  EXPECT_EQ(get(*hive_, keys, u"a value with a long name"), kLong);
  EXPECT_EQ(put(*other, keys, u"v", u"text"), kSuccess);
}

TEST_F(HiveMemoryTest, AWriteThatRunsShortIsTakenBack) {
  const Keys keys = {u"a key with a long name"};
  ASSERT_EQ(put(*hive_, keys, u"v", u"before"), kSuccess);
  const int objects = runShortOfMemory([&] { put(*hive_, keys, u"v", kLong); });
  EXPECT_GT(objects, 3);
  EXPECT_EQ(get(*hive_, keys, u"v"), kLong);
  EXPECT_EQ(put(*hiveAt(file(), HiveReaders::Owner), keys, u"v", u"after"), kSuccess);
  EXPECT_EQ(get(*hive_, keys, u"v"), u"after");
  EXPECT_TRUE(hiveFaults(file()).empty());
}

}  // namespace
}  // namespace tessaly::tests
