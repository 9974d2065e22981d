// The showcase's language files, as a translator must leave them.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/Core.h"
#include "tests/support/Print.h"

namespace tessaly {
namespace {

using platform::core;
using platform::XmlNode;
using tests::shown;

constexpr std::u16string_view kFolder = u"examples/showcase/languages";
constexpr std::u16string_view kGuid = u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3";

struct Language {
  const char* file;
  Long id;
  const char* name;
  const char* encoding;
};

void PrintTo(const Language& language, std::ostream* out) { *out << language.file; }

const Language kLanguages[] = {
    {"arabic", 1025, "العربية", "UTF-8"},         {"chinese", 2052, "简体中文", "GBK"},
    {"french", 1036, "Français", "windows-1252"}, {"german", 1031, "Deutsch", "UTF-8"},
    {"greek", 1032, "Ελληνικά", "UTF-8"},         {"japanese", 1041, "日本語", "UTF-16"},
    {"polish", 1045, "Polski", "windows-1250"},   {"russian", 1049, "Русский", "windows-1251"},
    {"spanish", 3082, "Español", "ISO-8859-1"}};

std::size_t countOf(std::u16string_view text, std::u16string_view word) {
  std::size_t count = 0;
  for (auto place = text.find(word); place != std::u16string_view::npos;
       place = text.find(word, place + word.size()))
    ++count;
  return count;
}

class ShowcaseLanguagesTest : public testing::TestWithParam<Language> {
 protected:
  static String path() {
    return String(kFolder) + core().files->separator() + fromUtf8(GetParam().file) + u".xml";
  }

  /// The file's own numbers and texts, each time that they stand there.
  static std::multimap<int, String> entries() {
    std::multimap<int, String> result;
    const auto document = core().xml->createDocument();
    document->async(false);
    EXPECT_TRUE(document->load(path()));
    for (XmlNode& section : document->documentElement()->childNodes()) {
      for (XmlNode& entry : section.childNodes()) {
        if (entry.baseName() == u"STRING") result.insert(entryOf(entry));
      }
    }
    return result;
  }

 private:
  static std::pair<int, String> entryOf(XmlNode& node) {
    std::pair<int, String> entry;
    for (XmlNode& field : node.childNodes()) {
      String text;
      field.nodeTypedValue(text);
      if (field.baseName() == u"ID") entry.first = std::stoi(toUtf8(text));
      if (field.baseName() == u"VALUE") entry.second = text;
    }
    return entry;
  }
};

INSTANTIATE_TEST_SUITE_P(Language, ShowcaseLanguagesTest, testing::ValuesIn(kLanguages),
                         testing::PrintToStringParamName());

TEST_P(ShowcaseLanguagesTest, HasEachNumberOnce) {
  const auto found = entries();
  for (int number = 1; number <= kStringCount; ++number) EXPECT_EQ(found.count(number), 1U) << number;
  EXPECT_EQ(found.size(), 175U);
}

TEST_P(ShowcaseLanguagesTest, HasThePlaceholdersAndTheAcceleratorOfTheEnglishText) {
  for (const auto& [number, text] : entries()) {
    const std::u16string_view english = showcaseStrings.at(static_cast<std::size_t>(number - 1));
    for (const std::u16string_view word : {u"%a1", u"%a2", u"&"}) {
      EXPECT_EQ(countOf(text, word), countOf(english, word)) << number << " " << shown(text);
    }
    EXPECT_LE(countOf(text, u"&"), 1U) << number;
    EXPECT_FALSE(text.ends_with(u'&')) << number;
  }
}

TEST_P(ShowcaseLanguagesTest, HasTextsOfSoundLength) {
  for (const auto& [number, text] : entries()) {
    EXPECT_FALSE(text.empty()) << number;
    EXPECT_LE(text.size(), 256U) << number;
  }
}

TEST_P(ShowcaseLanguagesTest, IsDeclaredInItsEncoding) {
  std::string head = core().files->read(path()).value().substr(0, 120);
  head.erase(std::remove(head.begin(), head.end(), '\0'), head.end());
  EXPECT_NE(head.find(std::string("encoding=\"") + GetParam().encoding + "\""), std::string::npos);
}

TEST_P(ShowcaseLanguagesTest, IsChosenByItsNumberAndNamesItsFonts) {
  CResources resources;
  resources.applicationGUID(kGuid);
  resources.resourcesPath(kFolder);
  resources.lang(GetParam().id);
  EXPECT_EQ(resources.lang(), GetParam().id);
  EXPECT_EQ(shown(resources.langName()), GetParam().name);
  EXPECT_NE(resources.reportFontName(), u"");
  EXPECT_NE(resources.gridFontName(), u"");
  EXPECT_NE(resources.mailFontName(), u"");
  EXPECT_GT(resources.gridFontSize(), 0);
  for (const auto& [number, text] : entries()) EXPECT_EQ(shown(resources.res(number - 1)), shown(text));
}

TEST(ShowcaseFolder, HasTheNineTranslationsAndNothingElse) {
  CResources resources;
  resources.applicationGUID(kGuid);
  resources.resourcesPath(kFolder);
  std::set<Long> ids;
  for (Long i = 1; i <= resources.numberOfLangs(); ++i) ids.insert(resources.resLangID(i));
  EXPECT_EQ(ids, (std::set<Long>{1025, 1031, 1032, 1036, 1041, 1045, 1049, 2052, 3082}));
  EXPECT_EQ(resources.numberOfLangs(), 9);
}

}  // namespace
}  // namespace tessaly
