// Which key an object of CRegistry works on.

#include <gtest/gtest.h>

#include <limits>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Registry.h"
#include "tessaly/settings/CRegistry.h"
#include "tests/support/ForwardingRegistry.h"
#include "tests/support/Print.h"
#include "tests/support/SettingsWorld.h"

namespace tessaly {
namespace {

using tests::Body;

/// Whether a value that is written by an object comes to stand below a predefined key.
class KeyPathsTest : public testing::TestWithParam<Body> {
 protected:
  bool wroteTo(platform::RegistryKey root, std::u16string_view path) {
    return tests::valueAt(root, path, "v").has_value();
  }

  std::unique_ptr<tests::SettingsWorld> world_ = tests::SettingsWorld::make(GetParam());
  CRegistry settings_;
};

INSTANTIATE_TEST_SUITE_P(Body, KeyPathsTest, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(KeyPathsTest, ANewObjectHasNoRootThoughItsSelectorIsZero) {
  EXPECT_EQ(settings_.root(), 0);
  EXPECT_EQ(settings_.rootPath(), u"");
  settings_.rootPath(world_->path());
  settings_.SetLong(u"v", 5);
  EXPECT_FALSE(tests::hasKey(platform::kLocalMachine, world_->path()));
  EXPECT_EQ(settings_.GetLong(u"v", 1), 1);
  EXPECT_EQ(settings_.GetString(u"v", u"default"), u"default");
  EXPECT_EQ(settings_.LongKeyExists(u"v"), False);
}

TEST_P(KeyPathsTest, ARootThatIsAssignedWorks) {
  settings_.rootPath(world_->path());
  settings_.root(0);
  settings_.SetLong(u"v", 5);
  EXPECT_TRUE(wroteTo(platform::kLocalMachine, world_->path()));
  settings_.root(2);
  settings_.SetLong(u"v", 6);
  EXPECT_TRUE(wroteTo(platform::kCurrentUser, world_->path()));
  EXPECT_EQ(settings_.GetLong(u"v", 0), 6);
  settings_.root(0);
  EXPECT_EQ(settings_.GetLong(u"v", 0), 5);
}

TEST_P(KeyPathsTest, ANumberThatIsNoSelectorIsKeptAndGivesNoRoot) {
  settings_.rootPath(world_->path());
  for (const Long selector :
       {5, -1, 100, std::numeric_limits<Long>::min(), std::numeric_limits<Long>::max()}) {
    settings_.root(2);
    settings_.root(selector);
    EXPECT_EQ(settings_.root(), selector);
    settings_.SetLong(u"v", 5);
    EXPECT_EQ(settings_.GetLong(u"v", 1), 1) << selector;
  }
  EXPECT_FALSE(tests::hasKey(platform::kCurrentUser, world_->path()));
}

TEST_P(KeyPathsTest, ASubPathStandsBehindTheRootPath) {
  settings_.root(2);
  settings_.rootPath(world_->path());
  settings_.subPath(u"inner\\most");
  settings_.SetLong(u"v", 5);
  EXPECT_TRUE(wroteTo(platform::kCurrentUser, world_->path() + u"\\inner\\most"));
  EXPECT_EQ(settings_.rootPath(), world_->path());
  settings_.subPath(u"");
  EXPECT_EQ(settings_.GetLong(u"v", 0), 0);
}

TEST_P(KeyPathsTest, ReadingTheSubPathMovesTheRootPath) {
  settings_.root(2);
  settings_.rootPath(u"elsewhere");
  settings_.subPath(world_->path());
  EXPECT_EQ(settings_.subPath(), u"");
  EXPECT_EQ(settings_.rootPath(), world_->path());
  settings_.subPath(u"");
  EXPECT_EQ(settings_.subPath(), u"");
  EXPECT_EQ(settings_.rootPath(), u"");
}

TEST_P(KeyPathsTest, TheSubPathStaysWhenItIsRead) {
  settings_.root(2);
  settings_.subPath(world_->path());
  settings_.subPath();
  settings_.SetLong(u"v", 1);
  EXPECT_TRUE(wroteTo(platform::kCurrentUser, world_->path() + u"\\" + world_->path()));
}

TEST_P(KeyPathsTest, ABackslashAtTheRootPathsEndIsHarmless) {
  settings_.root(2);
  settings_.rootPath(world_->path() + u"\\");
  settings_.subPath(u"inner");
  settings_.SetLong(u"v", 5);
  EXPECT_EQ(settings_.GetLong(u"v", 0), 5);
  EXPECT_TRUE(wroteTo(platform::kCurrentUser, world_->path() + u"\\inner"));
}

TEST_P(KeyPathsTest, APathThatBeginsWithABackslashIsNone) {
  settings_.root(2);
  settings_.subPath(world_->path());
  settings_.SetLong(u"v", 5);
  EXPECT_EQ(settings_.GetLong(u"v", 1), 1);
  EXPECT_FALSE(tests::hasKey(platform::kCurrentUser, world_->path()));
}

TEST_P(KeyPathsTest, ACopyGoesItsOwnWay) {
  settings_.root(2);
  settings_.rootPath(world_->path());
  settings_.subPath(u"inner");
  CRegistry copy = settings_;
  EXPECT_EQ(copy.root(), 2);
  EXPECT_EQ(copy.rootPath(), world_->path());
  copy.SetLong(u"v", 4);
  EXPECT_EQ(settings_.GetLong(u"v", 0), 4);
  copy.root(7);
  copy.rootPath(u"other");
  EXPECT_EQ(settings_.GetLong(u"v", 0), 4);
}

/// Keeps the path of each call as it comes.
class SeeingPaths final : public tests::ForwardingRegistry {
 public:
  using ForwardingRegistry::ForwardingRegistry;

  Long RegOpenKeyExA(platform::RegistryKey key, const char* path, platform::RegistryAccess access,
                     platform::RegistryKey& result) override {
    opened = path;
    return ForwardingRegistry::RegOpenKeyExA(key, path, access, result);
  }
  Long RegCreateKeyExA(platform::RegistryKey key, const char* path, platform::RegistryAccess access,
                       platform::RegistryKey& result) override {
    created = path;
    return ForwardingRegistry::RegCreateKeyExA(key, path, access, result);
  }

  std::string opened;
  std::string created;
};

TEST(KeyPathsOfCalls, AreNeitherTrimmedNorTested) {
  platform::fake::Registry registry;
  SeeingPaths seeing(registry);
  const platform::Override override(seeing);
  const struct {
    std::u16string_view rootPath;
    std::u16string_view subPath;
    const char* path;
  } rows[] = {{u"Tool\\", u"inner", "Tool\\\\inner"},
              {u"", u"sub", "\\sub"},
              {u"", u"", ""},
              {u" Tool ", u" sub ", " Tool \\ sub "},
              {u" Tool\t", u"", " Tool\t"},
              {u"\\Tool\\\\", u"\\sub\\", "\\Tool\\\\\\\\sub\\"}};
  for (const auto& row : rows) {
    CRegistry settings;
    settings.root(2);
    settings.rootPath(row.rootPath);
    settings.subPath(row.subPath);
    settings.GetLong(u"v", 0);
    EXPECT_EQ(seeing.opened, row.path);
    settings.SetLong(u"v", 0);
    EXPECT_EQ(seeing.created, row.path);
  }
}

}  // namespace
}  // namespace tessaly
