// The folder of the language files comes from the machine's settings, and the language from the user's.

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>
#include <new>

#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/fake/Registry.h"
#include "tests/support/CResourcesPeer.h"
#include "tests/support/ForwardingRegistry.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Platform.h"
#include "tests/support/Print.h"
#include "tests/support/SettingsWorld.h"

namespace tessaly {
namespace {

using namespace std::string_literals;
using namespace platform::registry_result;
using platform::kBinary;
using platform::kCurrentUser;
using platform::kLocalMachine;
using platform::kNumber;
using platform::kText;
using tests::Body;
using tests::document;
using tests::general;
using tests::shown;
using tests::StoredValue;
using tests::text;
using Calls = std::vector<std::string>;

constexpr std::u16string_view kPath = u"SOFTWARE\\Maker\\Tool";
constexpr Long kMachine = 0;
constexpr Long kUser = 2;

/// A user of French, a French and a German file, and an object that knows neither folder nor language.
class RegistrySettingsTest : public testing::Test {
 protected:
  RegistrySettingsTest() {
    folder_.put(u"a.xml", document(general("French", 1036) + text(1, "Annuler")));
    folder_.put(u"b.xml", document(general("German", 1031) + text(1, "Abbrechen")));
    resources_.applicationGUID(u"G");
  }

  static void put(platform::RegistryKey root, const char* name, const StoredValue& value) {
    ASSERT_TRUE(tests::putValue(root, kPath, name, value));
  }
  static void putFolder(const std::string& folder) { put(kLocalMachine, "Resources", {kText, folder}); }
  static void putLang(const std::string& bytes) { put(kCurrentUser, "Lang", {kNumber, bytes}); }

  std::string chosen() const {
    return std::to_string(resources_.lang()) + " " + shown(resources_.langName()) + " " +
           shown(resources_.res(0));
  }

  std::string readString() {
    return shown(CResourcesPeer::readString(resources_, kMachine, kPath, u"Resources", u"default"));
  }
  Long readLong() { return CResourcesPeer::readLong(resources_, kUser, kPath, u"Lang", -7); }

  tests::LanguageFolder folder_{1036};
  platform::fake::Registry registry_;
  platform::Override registryInForce_{registry_};
  CResources resources_;
};

const std::string kFrenchLanguage = "1036 French Annuler";
const std::string kGermanLanguage = "1031 German Abbrechen";
const std::string kBuiltInLanguage = "2057 English &Cancel";

TEST_F(RegistrySettingsTest, TakesTheFolderFromTheMachinesSettings) {
  putFolder("/texts\0"s);
  put(kCurrentUser, "Resources", {kText, "/elsewhere"});
  resources_.SetResourcesPathFromRegistry(kPath, u"Resources");
  resources_.SetDefaultLang();
  EXPECT_EQ(chosen(), kFrenchLanguage);
}

TEST_F(RegistrySettingsTest, TakesTheRootForAFolderThatIsNotStored) {
  folder_.files.put(u"/c.xml", document(general("Root", 7) + text(1, "root")));
  for (const bool keyExists : {false, true}) {
    if (keyExists) put(kLocalMachine, "other", {kText, "/texts"});
    CResources resources;
    resources.applicationGUID(u"G");
    resources.resourcesPath(u"/texts");
    resources.SetResourcesPathFromRegistry(kPath, u"Resources");
    EXPECT_EQ(resources.numberOfLangs(), 1);
    EXPECT_EQ(resources.resLangID(1), 7);
  }
}

TEST_F(RegistrySettingsTest, TakesTheLanguageFromTheUsersSettings) {
  putLang("\x07\x04\0\0"s);
  put(kLocalMachine, "Lang", {kNumber, "\x0C\x04\0\0"s});
  resources_.resourcesPath(u"/texts");
  resources_.SetLangFromRegistries(kPath, u"Lang");
  EXPECT_EQ(chosen(), kGermanLanguage);
}

TEST_F(RegistrySettingsTest, TakesTheUsersLocaleForALanguageThatIsNotStored) {
  resources_.resourcesPath(u"/texts");
  resources_.SetLangFromRegistries(kPath, u"Lang");
  EXPECT_EQ(chosen(), kFrenchLanguage);
  putLang("\x07\x04\0\0"s);
  resources_.SetLangFromRegistries(kPath, u"Lang");
  EXPECT_EQ(chosen(), kGermanLanguage);
  resources_.SetLangFromRegistries(kPath, u"Other");
  EXPECT_EQ(chosen(), kFrenchLanguage);
  putLang("12345");
  resources_.SetLangFromRegistries(kPath, u"Lang");
  EXPECT_EQ(chosen(), kFrenchLanguage);
}

TEST_F(RegistrySettingsTest, TakesAStoredLanguageByItsExactNumberAsLangDoes) {
  resources_.resourcesPath(u"/texts");
  putLang("\x0C\x0C\0\0"s);
  resources_.SetLangFromRegistries(kPath, u"Lang");
  EXPECT_EQ(chosen(), kBuiltInLanguage);
}

TEST_F(RegistrySettingsTest, StoresTheNumberThatItIsGivenForTheUser) {
  resources_.SetLangToRegistries(kPath, u"Lang", 1031);
  EXPECT_EQ(tests::valueAt(kCurrentUser, kPath, "Lang"), (StoredValue{kNumber, "\x07\x04\0\0"s}));
  EXPECT_FALSE(tests::hasKey(kLocalMachine, kPath));
  resources_.SetLangToRegistries(kPath, u"Lang", std::numeric_limits<Long>::min());
  EXPECT_EQ(tests::valueAt(kCurrentUser, kPath, "Lang"), (StoredValue{kNumber, "\0\0\0\x80"s}));
}

TEST_F(RegistrySettingsTest, LeavesTheLanguageInForceWhenItStoresOne) {
  resources_.resourcesPath(u"/texts");
  resources_.lang(1036);
  resources_.SetLangToRegistries(kPath, u"Lang", 1031);
  EXPECT_EQ(chosen(), kFrenchLanguage);
  resources_.SetLangFromRegistries(kPath, u"Lang");
  EXPECT_EQ(chosen(), kGermanLanguage);
}

TEST_F(RegistrySettingsTest, LooksForNoFilesWhenItReadsTheFolderOrStoresALanguage) {
  putFolder("/texts");
  resources_.SetResourcesPathFromRegistry(kPath, u"Resources");
  resources_.SetLangToRegistries(kPath, u"Lang", 1031);
  EXPECT_TRUE(folder_.xml.calls().empty());
}

TEST_F(RegistrySettingsTest, TakesAStarForTheUnnamedValue) {
  resources_.SetLangToRegistries(kPath, u"*", 1031);
  EXPECT_EQ(tests::valueAt(kCurrentUser, kPath, nullptr), (StoredValue{kNumber, "\x07\x04\0\0"s}));
  put(kLocalMachine, nullptr, {kText, "/texts"});
  resources_.SetResourcesPathFromRegistry(kPath, u"*");
  resources_.SetLangFromRegistries(kPath, u"*");
  EXPECT_EQ(chosen(), kGermanLanguage);
}

TEST_F(RegistrySettingsTest, OpensUsesAndClosesAKeyForEach) {
  const auto expect = [&](const Calls& calls) {
    EXPECT_EQ(registry_.calls(), calls);
    EXPECT_EQ(registry_.openKeys(), 0);
  };
  Calls calls = {"RegCreateKeyExA", "RegSetValueExA", "RegCloseKey"};
  resources_.SetLangToRegistries(kPath, u"Lang", 1031);
  expect(calls);
  calls.insert(calls.end(), {"RegOpenKeyExA", "RegQueryValueExA", "RegCloseKey"});
  resources_.SetLangFromRegistries(kPath, u"Lang");
  expect(calls);
  calls.insert(calls.end(), {"RegOpenKeyExA"});
  resources_.SetResourcesPathFromRegistry(kPath, u"Resources");
  expect(calls);
}

TEST_F(RegistrySettingsTest, GivesDefaultsWhereTheRegistryFails) {
  resources_.resourcesPath(u"/texts");
  for (const char* call : {"RegOpenKeyExA", "RegQueryValueExA"}) {
    putFolder("/texts");
    putLang("\x07\x04\0\0"s);
    registry_.fail(call, kAccessDenied);
    EXPECT_EQ(readString(), "default");
    EXPECT_EQ(readLong(), -7);
    resources_.SetLangFromRegistries(kPath, u"Lang");
    EXPECT_EQ(chosen(), kFrenchLanguage);
    EXPECT_EQ(registry_.openKeys(), 0);
    registry_.fail(call, kSuccess);
    resources_.SetLangFromRegistries(kPath, u"Lang");
    EXPECT_EQ(chosen(), kGermanLanguage);
  }
}

TEST_F(RegistrySettingsTest, DropsALanguageThatCannotBeStored) {
  resources_.SetLangToRegistries(kPath, u"Lang", 1031);
  for (const char* call : {"RegCreateKeyExA", "RegSetValueExA"}) {
    registry_.fail(call, kAccessDenied);
    resources_.SetLangToRegistries(kPath, u"Lang", 1036);
    EXPECT_EQ(readLong(), 1031);
    EXPECT_EQ(registry_.openKeys(), 0);
    registry_.fail(call, kSuccess);
  }
}

TEST_F(RegistrySettingsTest, ReadsATextUpToAThousandBytes) {
  putFolder(std::string(1000, 'x'));
  EXPECT_EQ(readString(), std::string(1000, 'x'));
  putFolder(std::string(1001, 'x'));
  EXPECT_EQ(readString(), "default");
  putFolder(std::string(999, 'x') + '\0');
  EXPECT_EQ(readString(), std::string(999, 'x'));
}

TEST_F(RegistrySettingsTest, CutsATextBeforeItsFirstControlCharacterAndKeepsItsSpaces) {
  const std::pair<std::string, const char*> rows[] = {
      {"", ""},      {"\0"s, ""},    {"a b  ", "a b  "},    {"a  \0"s, "a  "},      {"a\0b"s, "a"},
      {"a\tb", "a"}, {"a\x1F", "a"}, {"caf\xE9 ", "café "}, {"caf\xE9\0x"s, "café"}};
  for (const auto& [bytes, expected] : rows) {
    putFolder(bytes);
    EXPECT_EQ(readString(), expected) << testing::PrintToString(bytes);
  }
}

TEST_F(RegistrySettingsTest, CutsATextBeforeItsFirstCharacterOfTwoBytes) {
  platform::fake::Locale japanese(1041, u".", 932);
  const platform::Override override(japanese);
  putFolder("/a\x93\xFA/b");
  EXPECT_EQ(readString(), "/a");
  putFolder("/\xB1\xB2");
  EXPECT_EQ(readString(), "/ｱｲ");
}

TEST_F(RegistrySettingsTest, GivesAsManyCharactersAsThereAreBytesWhereNoneCuts) {
  const struct {
    Long page;
    const char* bytes;
    const char* text;
  } rows[] = {{936, "ab\x81\xFF\x81\xFF", "ab??  "},
              {949, "ab\x81\xFF\x81\xFF", "ab??  "},
              {950, "ab\x81\xFF\x81\xFF", "ab??  "},
              {932, "ab\x81\xFF\x81\xFF", "ab"},
              {936, "ab\x81", "ab?"},
              {936, "ab\x81 ", "ab? "},
              {1252, "ab\xE9 ", "abé "}};
  for (const auto& row : rows) {
    platform::fake::Locale locale(1033, u".", row.page);
    const platform::Override override(locale);
    put(kLocalMachine, "Resources", {kBinary, row.bytes});
    EXPECT_EQ(readString(), row.text) << row.page << ' ' << testing::PrintToString(row.bytes);
  }
}

TEST_F(RegistrySettingsTest, LooksAtNoType) {
  put(kLocalMachine, "Resources", {kNumber, "/abc"});
  EXPECT_EQ(readString(), "/abc");
  put(kCurrentUser, "Lang", {kText, "12"});
  EXPECT_EQ(readLong(), 0x3231);
  const std::pair<std::string, Long> rows[] = {
      {"", 0}, {"\x05", 5}, {"\xFF\xFF", 65535}, {"\xFF\xFF\xFF\xFF", -1}, {"12345", -7}};
  for (const auto& [bytes, number] : rows) {
    put(kCurrentUser, "Lang", {kBinary, bytes});
    EXPECT_EQ(readLong(), number) << bytes.size();
  }
}

TEST_F(RegistrySettingsTest, SelectsARootByASmallNumberAndKeepsItAtAnyOther) {
  CResourcesPeer::writeLong(resources_, kUser, kPath, u"v", 1);
  CResourcesPeer::writeLong(resources_, kMachine, kPath, u"v", 2);
  CResourcesPeer::writeLong(resources_, 4, kPath, u"v", 3);
  EXPECT_EQ(CResourcesPeer::readLong(resources_, kUser, kPath, u"v", 0), 1);
  for (const Long other : {5, -1, 100, std::numeric_limits<Long>::min()}) {
    EXPECT_EQ(CResourcesPeer::readLong(resources_, other, kPath, u"v", 0), 1) << other;
  }
  EXPECT_EQ(CResourcesPeer::readLong(resources_, kMachine, kPath, u"v", 0), 2);
  EXPECT_EQ(CResourcesPeer::readLong(resources_, 4, kPath, u"v", 0), 3);
  EXPECT_EQ(tests::valueAt(platform::kClassesRoot, kPath, "v")->bytes[0], 3);
}

TEST_F(RegistrySettingsTest, TellsWhetherAFileExists) {
  EXPECT_EQ(CResourcesPeer::fileExists(resources_, u"/texts/a.xml"), True);
  EXPECT_EQ(CResourcesPeer::fileExists(resources_, u"/texts/missing.xml"), False);
  EXPECT_EQ(CResourcesPeer::fileExists(resources_, u"/texts"), False);
  EXPECT_EQ(CResourcesPeer::fileExists(resources_, u""), False);
  folder_.files.failRead(u"/texts/a.xml");
  EXPECT_EQ(CResourcesPeer::fileExists(resources_, u"/texts/a.xml"), False);
}

TEST_F(RegistrySettingsTest, LeavesNoKeyOpenForWantOfMemory) {
  putFolder("/texts");
  tests::RegistryWithoutMemory poor(registry_);
  const platform::Override override(poor);
  EXPECT_THROW(resources_.SetResourcesPathFromRegistry(kPath, u"Resources"), std::bad_alloc);
  EXPECT_THROW(resources_.SetLangToRegistries(kPath, u"Lang", 1), std::bad_alloc);
  EXPECT_THROW(resources_.SetLangFromRegistries(kPath, u"Lang"), std::bad_alloc);
  EXPECT_EQ(registry_.openKeys(), 0);
}

/// From an empty object to a translated text with no path in the host's hand.
class WholeRoadTest : public testing::TestWithParam<Body> {
 protected:
  /// Elsewhere than on Windows, and under Wine, the machine's settings are the tests' own. On Windows they
  /// are an administrator's.
  static bool mayLackTheRight() {
    return GetParam() == Body::Own && std::filesystem::path::preferred_separator == u'\\' &&
           !tests::underWine();
  }

  bool putFolder() {
    files_->put(u"french.xml", document(general("French", 1036) + text(1, "Annuler")));
    files_->put(u"german.xml", document(general("German", 1031) + text(1, "Abbrechen")));
    const std::string folder = toUtf8(files_->folder());
    return tests::putValue(kLocalMachine, settings_->path(), "Resources", {kText, folder + '\0'});
  }

  /// What a host does when it starts, and the text on its button.
  std::string start() {
    CResources resources;
    resources.applicationGUID(u"G");
    resources.SetResourcesPathFromRegistry(settings_->path(), u"Resources");
    resources.SetLangFromRegistries(settings_->path(), u"Lang");
    return std::to_string(resources.lang()) + " " + shown(resources.res(0));
  }

  platform::fake::Locale french_{1036, u","};
  platform::Override localeInForce_{french_};
  std::unique_ptr<tests::World> files_ = tests::World::make(GetParam());
  std::unique_ptr<tests::SettingsWorld> settings_ = tests::SettingsWorld::make(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Body, WholeRoadTest, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(WholeRoadTest, LeadsFromAnEmptyObjectToATranslatedText) {
  if (!putFolder()) {
    ASSERT_TRUE(mayLackTheRight());
    GTEST_SKIP() << "the machine's settings can't be written here";
  }
  EXPECT_EQ(start(), "1036 Annuler");
  CResources().SetLangToRegistries(settings_->path(), u"Lang", 1031);
  EXPECT_EQ(start(), "1031 Abbrechen");
  CResources().SetLangToRegistries(settings_->path(), u"Lang", 0);
  EXPECT_EQ(start(), "1036 Annuler");
}

}  // namespace
}  // namespace tessaly
