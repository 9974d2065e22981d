// Names and texts of CRegistry pass through the system's code page.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/Registry.h"
#include "tessaly/settings/CRegistry.h"
#include "tests/support/ForwardingRegistry.h"
#include "tests/support/Print.h"
#include "tests/support/SettingsWorld.h"

namespace tessaly {
namespace {

using platform::kBinary;
using platform::kCurrentUser;
using tests::shown;

/// Keeps what is written as it comes, and the byte that follows it.
class Writing final : public tests::ForwardingRegistry {
 public:
  using ForwardingRegistry::ForwardingRegistry;

  Long RegSetValueExA(platform::RegistryKey key, const char* name, platform::RegistryType type,
                      const void* data, std::uint32_t size) override {
    const auto* const bytes = static_cast<const char*>(data);
    written.assign(bytes, size);
    // Only a text is followed by a byte that is its writer's.
    if (type == platform::kText) byteBehind = bytes[size];
    return ForwardingRegistry::RegSetValueExA(key, name, type, data, size);
  }

  std::string written;
  char byteBehind = '\0';
};

class CodePagesTest : public testing::TestWithParam<Long> {
 protected:
  explicit CodePagesTest(Long codePage) : locale_(1033, u".", codePage) {
    settings_.root(2);
    settings_.rootPath(u"Tool");
  }
  CodePagesTest() : CodePagesTest(GetParam()) {}

  void putBytes(const std::string& bytes) {
    ASSERT_TRUE(tests::putValue(kCurrentUser, u"Tool", "v", {kBinary, bytes}));
  }

  /// What a text is read as after it was written.
  std::string there(std::u16string_view text) {
    settings_.SetString(u"v", text);
    return shown(settings_.GetString(u"v", u"default"));
  }

  platform::fake::Registry registry_;
  platform::fake::Locale locale_;
  Writing writing_{registry_};
  platform::Override registryInForce_{writing_};
  platform::Override localeInForce_{locale_};
  CRegistry settings_;
};

INSTANTIATE_TEST_SUITE_P(Page, CodePagesTest,
                         testing::Values(874, 932, 936, 949, 950, 1250, 1251, 1252, 1255, 1258, 65001),
                         testing::PrintToStringParamName());

/// The reading as it is documented, word for word: a buffer of 30000 spaces, turned into wide text as a
/// whole.
String readAsDocumented(const std::string& stored) {
  platform::Locale& locale = *platform::core().locale;
  std::string buffer(30000, ' ');
  std::copy(stored.begin(), stored.end(), buffer.begin());
  String text = locale.MultiByteToWideChar(locale.GetACP(), buffer);
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string bytes = locale.WideCharToMultiByte(locale.GetACP(), text.substr(i, 1));
    int code = static_cast<unsigned char>(bytes[0]);
    if (bytes.size() > 1) code = static_cast<std::int16_t>(code * 256 + static_cast<unsigned char>(bytes[1]));
    if (code < 32) return text.substr(0, i);
    if (text.find_first_not_of(u' ', i) == String::npos) break;
  }
  text.erase(text.find_last_not_of(u' ') + 1);
  return text;
}

std::string randomBytes(std::mt19937& random) {
  constexpr std::string_view kLikely("ab  \0\t\x81\x93\xFE\xE9\xB1\x40\x7F", 13);
  std::string bytes(random() % 12, '\0');
  for (char& byte : bytes) {
    byte = random() % 2 == 0 ? kLikely[random() % kLikely.size()] : static_cast<char>(random() % 256);
  }
  return bytes;
}

TEST_P(CodePagesTest, AnyBytesAreReadAsFromABufferOfSpaces) {
  std::mt19937 random(7);
  for (int i = 0; i < 200; ++i) {
    const std::string bytes = randomBytes(random);
    putBytes(bytes);
    EXPECT_EQ(shown(settings_.GetString(u"v", u"default")), shown(readAsDocumented(bytes)))
        << testing::PrintToString(bytes);
  }
}

TEST_P(CodePagesTest, EachByteAtAValuesEndIsReadAsFromABufferOfSpaces) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string bytes = std::string("x") + static_cast<char>(byte);
    putBytes(bytes);
    EXPECT_EQ(shown(settings_.GetString(u"v", u"default")), shown(readAsDocumented(bytes))) << byte;
  }
}

TEST_P(CodePagesTest, AFullBufferHasNoSpaceForALeadByteToTake) {
  const std::string bytes = std::string(29999, 'x') + '\x81';
  putBytes(bytes);
  EXPECT_EQ(shown(settings_.GetString(u"v", u"default")), shown(readAsDocumented(bytes)));
}

/// Counts how often a text's bytes are asked for.
class CountingLocale final : public platform::Locale {
 public:
  explicit CountingLocale(platform::Locale& real) : real_(&real) {}

  Long GetUserDefaultLCID() override { return real_->GetUserDefaultLCID(); }
  String decimalSeparator() override { return real_->decimalSeparator(); }
  Long GetACP() override { return real_->GetACP(); }
  std::string WideCharToMultiByte(Long codePage, std::u16string_view text) override {
    ++count;
    return real_->WideCharToMultiByte(codePage, text);
  }
  String MultiByteToWideChar(Long codePage, std::string_view text) override {
    return real_->MultiByteToWideChar(codePage, text);
  }
  String CharUpperW(std::u16string_view text) override { return real_->CharUpperW(text); }

  int count = 0;

 private:
  platform::Locale* real_;
};

TEST_P(CodePagesTest, OnlyAPageThatMayCutIsAskedForACharactersBytes) {
  putBytes("\xB1\xB2\xB3");
  CountingLocale counting(locale_);
  const platform::Override override(counting);
  settings_.GetString(u"v", u"default");
  const bool mayCut = GetParam() > 1258 || (GetParam() >= 932 && GetParam() <= 950);
  EXPECT_EQ(counting.count > 0, mayCut);
}

TEST_P(CodePagesTest, TheSizeIsTheNumberOfCharacters) {
  for (const std::u16string_view text :
       {u"", u"plain", u"\u00E9\u00E8", u"日本語", u"a日", u"\U0001F600!", u"\u0439", u"가나다"}) {
    settings_.SetString(u"v", text);
    EXPECT_EQ(writing_.written.size(), text.size()) << shown(text);
    EXPECT_NE(writing_.byteBehind, '\0');
  }
}

TEST_P(CodePagesTest, ATextThatIsAllAsciiIsTheSameInEveryPage) {
  String text;
  for (char16_t c = u' '; c < 0x7F; ++c) text += c;
  EXPECT_EQ(there(text), shown(text));
}

class WesternTest : public CodePagesTest {
 protected:
  WesternTest() : CodePagesTest(1252) {}
};
INSTANTIATE_TEST_SUITE_P(Page, WesternTest, testing::Values(1252));

TEST_P(WesternTest, CharactersOfOneByteCutNothing) {
  EXPECT_EQ(there(u"Préférences d’été \u0081\u00FF€ "), shown(u"Préférences d’été \u0081\u00FF€"));
  EXPECT_EQ(writing_.written.substr(0, 3), "Pr\xE9");
}

TEST_P(WesternTest, WhatThePageLacksBecomesAQuestionMark) { EXPECT_EQ(there(u"a日b"), "a?b"); }

TEST_P(WesternTest, NamesAndPathsMayHaveAccents) {
  settings_.rootPath(u"Società\\Été");
  settings_.SetLong(u"Größe", 5);
  EXPECT_EQ(settings_.GetLong(u"GRÖSSE", 0), 0);
  EXPECT_EQ(settings_.GetLong(u"größe", 0), 5);
  EXPECT_EQ(shown(settings_.GetSubKeyName(2, u"SOCIETÀ", 1)), "Été");
  EXPECT_EQ(settings_.DeletePath(2, u"Società").toLong(), 0);
}

class JapaneseTest : public CodePagesTest {
 protected:
  JapaneseTest() : CodePagesTest(932) {}
};
INSTANTIATE_TEST_SUITE_P(Page, JapaneseTest, testing::Values(932));

TEST_P(JapaneseTest, ATextOfTwoByteCharactersIsCutToItsNumberOfCharacters) {
  EXPECT_EQ(there(u"日本"), "");
  EXPECT_EQ(writing_.written, "\x93\xFA");
  settings_.SetString(u"v", u"a日本語");
  EXPECT_EQ(writing_.written, "a\x93\xFA\x96");
}

TEST_P(JapaneseTest, ATextEndsBeforeItsFirstTwoByteCharacter) {
  EXPECT_EQ(there(u"C:\\Tools\\日本"), "C:\\Tools\\");
  EXPECT_EQ(there(u"spaces  日本"), "spaces  ");
}

TEST_P(JapaneseTest, WhatThePageLacksBecomesAQuestionMark) { EXPECT_EQ(there(u"a\u0905b"), "a?b"); }

TEST_P(JapaneseTest, CharactersOfOneByteCutNothing) {
  EXPECT_EQ(there(u"ｱｲｳ"), "ｱｲｳ");
  EXPECT_EQ(writing_.written, "\xB1\xB2\xB3");
}

TEST_P(JapaneseTest, ATwoByteSpaceIsNoSpaceAtTheEnd) { EXPECT_EQ(there(u"a \u3000\u3000"), "a "); }

TEST_P(JapaneseTest, ADefaultIsNotCut) { EXPECT_EQ(settings_.GetString(u"missing", u"日本"), u"日本"); }

TEST_P(JapaneseTest, TheNameOfAKeyStaysWhole) {
  ASSERT_TRUE(tests::putKey(kCurrentUser, u"Tool\\設定 日本"));
  EXPECT_EQ(shown(settings_.GetSubKeyName(2, u"Tool", 1)), "設定 日本");
  EXPECT_EQ(settings_.DeletePath(2, u"Tool").toLong(), 0);
}

/// The second byte of this character is the one of a backslash.
TEST_P(JapaneseTest, ATrailByteIsNoBackslash) {
  settings_.rootPath(u"Tool\\表");
  settings_.SetLong(u"ソ", 5);
  EXPECT_EQ(settings_.GetLong(u"ソ", 0), 5);
  EXPECT_EQ(shown(settings_.GetSubKeyName(2, u"Tool", 1)), "表");
}

}  // namespace
}  // namespace tessaly
