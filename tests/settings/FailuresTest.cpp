// What CRegistry does where the registry fails: it gives defaults, drops what is written, and leaves no key
// open.

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <new>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/Registry.h"
#include "tessaly/settings/CRegistry.h"
#include "tests/support/Errors.h"
#include "tests/support/ForwardingRegistry.h"
#include "tests/support/Print.h"
#include "tests/support/SettingsWorld.h"

namespace tessaly {
namespace {

using namespace platform::registry_result;
using platform::kCurrentUser;
using tests::errorOf;
using Calls = std::vector<std::string>;

constexpr Long kUser = 2;
constexpr std::u16string_view kPath = u"Software\\Tool";

class FailuresTest : public testing::Test {
 protected:
  FailuresTest() {
    settings_.root(kUser);
    settings_.rootPath(kPath);
    settings_.SetLong(u"number", 5);
    settings_.SetString(u"text", u"stored");
    tests::putKey(kCurrentUser, String(kPath) + u"\\inner");
  }

  /// The calls that an operation makes.
  Calls callsOf(const std::function<void()>& operation) {
    const auto before = static_cast<std::ptrdiff_t>(registry_.calls().size());
    operation();
    return {registry_.calls().begin() + before, registry_.calls().end()};
  }

  void expectDefaults() {
    EXPECT_EQ(settings_.GetLong(u"number", -1), -1);
    EXPECT_EQ(settings_.GetColor(u"number", -1), -1);
    EXPECT_EQ(settings_.GetBool(u"number", False), False);
    EXPECT_EQ(settings_.GetString(u"text", u"default"), u"default");
    EXPECT_EQ(settings_.GetDate(u"text", u"2.5"), 2.5);
    EXPECT_EQ(settings_.LongKeyExists(u"number"), False);
    EXPECT_EQ(settings_.StringKeyExists(u"text"), False);
    EXPECT_EQ(registry_.openKeys(), 0);
  }

  void expectStored() {
    EXPECT_EQ(settings_.GetLong(u"number", -1), 5);
    EXPECT_EQ(settings_.GetString(u"text", u"default"), u"stored");
    EXPECT_EQ(registry_.openKeys(), 0);
  }

  void writeAll() {
    settings_.SetLong(u"number", 6);
    settings_.SetColor(u"number", 7);
    settings_.SetBool(u"number", True);
    settings_.SetString(u"text", u"lost");
    settings_.SetDate(u"text", 3);
  }

  platform::fake::Registry registry_;
  platform::fake::Locale locale_{1033, u"."};
  platform::Override registryInForce_{registry_};
  platform::Override localeInForce_{locale_};
  CRegistry settings_;
};

TEST_F(FailuresTest, EachValueOperationOpensUsesAndClosesItsKey) {
  const Calls reading = {"RegOpenKeyExA", "RegQueryValueExA", "RegCloseKey"};
  const Calls writing = {"RegCreateKeyExA", "RegSetValueExA", "RegCloseKey"};
  EXPECT_EQ(callsOf([&] { settings_.LongKeyExists(u"v"); }), reading);
  EXPECT_EQ(callsOf([&] { settings_.StringKeyExists(u"v"); }), reading);
  EXPECT_EQ(callsOf([&] { settings_.GetString(u"v", u""); }), reading);
  EXPECT_EQ(callsOf([&] { settings_.GetDate(u"v", u""); }), reading);
  EXPECT_EQ(callsOf([&] { settings_.GetLong(u"v", 0); }), reading);
  EXPECT_EQ(callsOf([&] { settings_.GetBool(u"v", False); }), reading);
  EXPECT_EQ(callsOf([&] { settings_.GetColor(u"v", 0); }), reading);
  EXPECT_EQ(callsOf([&] { settings_.SetString(u"v", u""); }), writing);
  EXPECT_EQ(callsOf([&] { settings_.SetDate(u"v", 0); }), writing);
  EXPECT_EQ(callsOf([&] { settings_.SetLong(u"v", 0); }), writing);
  EXPECT_EQ(callsOf([&] { settings_.SetBool(u"v", False); }), writing);
  EXPECT_EQ(callsOf([&] { settings_.SetColor(u"v", 0); }), writing);
  EXPECT_EQ(registry_.openKeys(), 0);
}

TEST_F(FailuresTest, EachKeyOperationOpensUsesAndClosesItsKey) {
  EXPECT_EQ(callsOf([&] { settings_.GetSubkeysNumber(kUser, kPath); }),
            (Calls{"RegOpenKeyExA", "RegQueryInfoKeyA", "RegCloseKey"}));
  EXPECT_EQ(callsOf([&] { settings_.GetSubKeyName(kUser, kPath, 1); }),
            (Calls{"RegOpenKeyExA", "RegEnumKeyA", "RegCloseKey"}));
  EXPECT_EQ(callsOf([&] { settings_.DeletePath(kUser, String(kPath) + u"\\inner"); }),
            (Calls{"RegOpenKeyExA", "RegQueryInfoKeyA", "RegCloseKey", "RegDeleteKeyA"}));
}

TEST_F(FailuresTest, PropertiesCallNothing) {
  EXPECT_EQ(callsOf([&] {
              settings_.root(0);
              settings_.rootPath(u"a");
              settings_.subPath(u"b");
              settings_.subPath();
            }),
            Calls{});
}

TEST_F(FailuresTest, AKeyThatCannotBeOpenedGivesDefaultsAndIsNotUsedFurther) {
  registry_.fail("RegOpenKeyExA", kAccessDenied);
  EXPECT_EQ(callsOf([&] { settings_.GetLong(u"number", 0); }), Calls{"RegOpenKeyExA"});
  expectDefaults();
}

TEST_F(FailuresTest, AQueryThatFailsGivesDefaults) {
  for (const Long failure : {kNotFound, kMoreData, kAccessDenied, kKeyDeleted, kCorrupt}) {
    registry_.fail("RegQueryValueExA", failure);
    expectDefaults();
  }
}

TEST_F(FailuresTest, AKeyThatCannotBeMadeDropsWhatIsWritten) {
  registry_.fail("RegCreateKeyExA", kAccessDenied);
  EXPECT_EQ(callsOf([&] { settings_.SetLong(u"number", 6); }), Calls{"RegCreateKeyExA"});
  EXPECT_EQ(callsOf([&] { settings_.SetString(u"text", u"lost"); }), Calls{"RegCreateKeyExA"});
  writeAll();
  expectStored();
}

TEST_F(FailuresTest, AWriteThatFailsIsDropped) {
  for (const Long failure : {kAccessDenied, kDiskFull, kBusy, kIoFailed}) {
    registry_.fail("RegSetValueExA", failure);
    writeAll();
    expectStored();
  }
}

TEST_F(FailuresTest, WithoutARootAllCallsFail) {
  CRegistry settings;
  settings.rootPath(kPath);
  settings.SetLong(u"number", 6);
  EXPECT_EQ(settings.GetLong(u"number", -1), -1);
  EXPECT_EQ(settings.StringKeyExists(u"text"), False);
  expectStored();
}

TEST_F(FailuresTest, ARegistryForReadingOnlyDropsWhatIsWritten) {
  settings_.root(0);
  settings_.SetLong(u"number", 8);
  registry_.protectMachine();
  settings_.SetLong(u"number", 9);
  settings_.SetString(u"new", u"x");
  EXPECT_EQ(settings_.GetLong(u"number", -1), 8);
  EXPECT_EQ(settings_.StringKeyExists(u"new"), False);
  EXPECT_NE(settings_.DeletePath(0, kPath).toLong(), 0);
  EXPECT_EQ(settings_.GetLong(u"number", -1), 8);
  EXPECT_EQ(registry_.openKeys(), 0);
}

TEST_F(FailuresTest, KeysThatCannotBeCountedAreNone) {
  for (const char* call : {"RegQueryInfoKeyA", "RegOpenKeyExA"}) {
    registry_.fail(call, kAccessDenied);
    EXPECT_EQ(std::get<std::int16_t>(settings_.GetSubkeysNumber(kUser, kPath).value()), 0);
    EXPECT_EQ(registry_.openKeys(), 0);
    registry_.fail(call, kSuccess);
  }
}

TEST_F(FailuresTest, AKeyThatCannotBeNamedHasAnEmptyName) {
  for (const char* call : {"RegEnumKeyA", "RegOpenKeyExA"}) {
    registry_.fail(call, kMoreData);
    EXPECT_EQ(settings_.GetSubKeyName(kUser, kPath, 1), u"");
    EXPECT_EQ(registry_.openKeys(), 0);
    registry_.fail(call, kSuccess);
  }
}

TEST_F(FailuresTest, AKeyThatCannotBeDeletedIsTold) {
  registry_.fail("RegDeleteKeyA", kAccessDenied);
  EXPECT_EQ(std::get<Boolean>(settings_.DeletePath(kUser, kPath).value()), True);
  EXPECT_EQ(registry_.openKeys(), 0);
  EXPECT_TRUE(tests::hasKey(kCurrentUser, String(kPath) + u"\\inner"));
}

/// Names that can't be told once led from a key to itself until the stack was full.
TEST_F(FailuresTest, DeletingEndsWhereKeysAreCountedButNotNamed) {
  registry_.fail("RegEnumKeyA", kAccessDenied);
  EXPECT_EQ(std::get<Boolean>(settings_.DeletePath(kUser, kPath).value()), True);
  EXPECT_LT(callsOf([&] { settings_.DeletePath(kUser, kPath); }).size(), 20U);
  expectStored();
}

TEST_F(FailuresTest, DeletingGoesByTheOneCallThatDeletesWhereNothingCanBeCounted) {
  registry_.fail("RegQueryInfoKeyA", kAccessDenied);
  EXPECT_EQ(std::get<Boolean>(settings_.DeletePath(kUser, kPath).value()), True);
  EXPECT_EQ(std::get<Boolean>(settings_.DeletePath(kUser, String(kPath) + u"\\inner").value()), False);
}

TEST_F(FailuresTest, AnErrorLeavesNoKeyOpen) {
  EXPECT_EQ(errorOf([&] { settings_.GetSubKeyName(kUser, kPath, std::numeric_limits<Long>::min()); }),
            RuntimeError::Overflow);
  settings_.SetString(u"text", u"1e300");
  EXPECT_EQ(errorOf([&] { settings_.GetDate(u"text", u""); }), RuntimeError::Overflow);
  EXPECT_EQ(registry_.openKeys(), 0);
}

TEST_F(FailuresTest, WantOfMemoryLeavesNoKeyOpen) {
  tests::RegistryWithoutMemory poor(registry_);
  const platform::Override override(poor);
  EXPECT_THROW(settings_.GetLong(u"number", 0), std::bad_alloc);
  EXPECT_THROW(settings_.GetString(u"text", u""), std::bad_alloc);
  EXPECT_THROW(settings_.LongKeyExists(u"number"), std::bad_alloc);
  EXPECT_THROW(settings_.StringKeyExists(u"text"), std::bad_alloc);
  EXPECT_THROW(settings_.SetLong(u"number", 0), std::bad_alloc);
  EXPECT_THROW(settings_.SetString(u"text", u"x"), std::bad_alloc);
  EXPECT_THROW(settings_.GetSubkeysNumber(kUser, kPath), std::bad_alloc);
  EXPECT_THROW(settings_.GetSubKeyName(kUser, kPath, 1), std::bad_alloc);
  EXPECT_THROW(settings_.DeletePath(kUser, kPath), std::bad_alloc);
  EXPECT_EQ(registry_.openKeys(), 0);
}

/// Sees how a call was made.
class Watching final : public tests::ForwardingRegistry {
 public:
  using ForwardingRegistry::ForwardingRegistry;

  Long RegOpenKeyExA(platform::RegistryKey key, const char* path, platform::RegistryAccess access,
                     platform::RegistryKey& result) override {
    root = key;
    accessAsked = access;
    return ForwardingRegistry::RegOpenKeyExA(key, path, access, result);
  }
  Long RegCreateKeyExA(platform::RegistryKey key, const char* path, platform::RegistryAccess access,
                       platform::RegistryKey& result) override {
    root = key;
    accessAsked = access;
    return ForwardingRegistry::RegCreateKeyExA(key, path, access, result);
  }
  Long RegQueryValueExA(platform::RegistryKey key, const char* name, platform::RegistryType& type,
                        void* buffer, std::uint32_t& size) override {
    room = size;
    return ForwardingRegistry::RegQueryValueExA(key, name, type, buffer, size);
  }
  Long RegEnumKeyA(platform::RegistryKey key, std::uint32_t index, char* buffer,
                   std::uint32_t size) override {
    room = size;
    return ForwardingRegistry::RegEnumKeyA(key, index, buffer, size);
  }

  platform::RegistryKey root = 0;
  platform::RegistryAccess accessAsked = 0;
  std::uint32_t room = 0;
};

TEST_F(FailuresTest, TheCallsAreMadeAsTheyAreDocumented) {
  Watching watching(registry_);
  const platform::Override override(watching);
  settings_.GetString(u"text", u"");
  EXPECT_EQ(watching.accessAsked, 0x20019U);
  EXPECT_EQ(watching.room, 30000U);
  settings_.StringKeyExists(u"text");
  EXPECT_EQ(watching.room, 1000U);
  settings_.LongKeyExists(u"text");
  EXPECT_EQ(watching.room, 4U);
  settings_.GetLong(u"number", 0);
  EXPECT_EQ(watching.room, 4U);
  settings_.GetSubKeyName(kUser, kPath, 1);
  EXPECT_EQ(watching.room, 1000U);
  settings_.SetLong(u"number", 0);
  EXPECT_EQ(watching.accessAsked, 0xF003FU);
}

TEST_F(FailuresTest, EachSelectorStandsForItsPredefinedKey) {
  Watching watching(registry_);
  const platform::Override override(watching);
  const std::pair<Long, std::uint32_t> rows[] = {
      {0, 0x80000002}, {1, 0x80000003}, {2, 0x80000001}, {3, 0x80000005},
      {4, 0x80000000}, {5, 0},          {-1, 0},         {std::numeric_limits<Long>::min(), 0}};
  for (const auto& row : rows) {
    const Long selector = row.first;
    settings_.root(selector);
    EXPECT_EQ(settings_.root(), selector);
    for (const auto& operation : std::initializer_list<std::function<void()>>{
             [&] { settings_.GetLong(u"v", 0); }, [&] { settings_.SetLong(u"v", 0); },
             [&] { settings_.GetSubkeysNumber(selector, kPath); },
             [&] { settings_.GetSubKeyName(selector, kPath, 1); }}) {
      watching.root = 1;
      operation();
      EXPECT_EQ(watching.root, static_cast<Long>(row.second)) << selector;
    }
  }
}

}  // namespace
}  // namespace tessaly
