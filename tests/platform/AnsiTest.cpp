#include "tessaly/platform/Ansi.h"

#include <gtest/gtest.h>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tests/support/Print.h"

namespace tessaly::platform {
namespace {

using namespace std::string_literals;

/// A locale that nobody may ask.
struct Unasked final : Locale {
  Long GetUserDefaultLCID() override { return fail<Long>(); }
  String decimalSeparator() override { return fail<String>(); }
  Long GetACP() override { return fail<Long>(); }
  std::string WideCharToMultiByte(Long, std::u16string_view) override { return fail<std::string>(); }
  String MultiByteToWideChar(Long, std::string_view) override { return fail<String>(); }
  String CharUpperW(std::u16string_view) override { return fail<String>(); }

  template <class Result>
  static Result fail() {
    ADD_FAILURE() << "asked";
    return {};
  }
};

/// The system's code page, by the test's choice.
struct Page {
  explicit Page(Long number) : locale(1033, u".", number) {}
  fake::Locale locale;
  Override inForce{locale};
};

TEST(Ansi, IsInTheCodePageOfTheLocaleInForce) {
  {
    const Page russian(1251);
    EXPECT_EQ(toAnsi(u"Привет"), "\xCF\xF0\xE8\xE2\xE5\xF2");
    EXPECT_EQ(tests::shown(fromAnsi("\xCF\xF0\xE8\xE2\xE5\xF2")), "Привет");
    EXPECT_EQ(toAnsi(u"あ"), "?");
  }
  const Page japanese(932);
  EXPECT_EQ(toAnsi(u"あ"), "\x82\xA0");
  EXPECT_EQ(tests::shown(fromAnsi("\x82\xA0")), "あ");
}

TEST(Ansi, AsksNoLocaleForAscii) {
  Unasked locale;
  const Override override(locale);
  std::string bytes;
  String text;
  for (int length = 0; length < 300; ++length) {
    EXPECT_EQ(toAnsi(text), bytes);
    EXPECT_EQ(fromAnsi(bytes), text);
    bytes += static_cast<char>(length & 0x7F);
    text += static_cast<char16_t>(length & 0x7F);
  }
  for (char16_t unit = 0; unit < 0x80; ++unit) EXPECT_FALSE(isNegativeAnsi(unit));
}

TEST(Ansi, FindsTheOneCharacterThatIsNotAsciiWhereverItStands) {
  const Page western(1252);
  for (std::size_t length = 1; length < 70; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      std::string bytes(length, 'x');
      String text(length, u'x');
      bytes[place] = '\x80';
      text[place] = u'\x20AC';
      ASSERT_EQ(toAnsi(text), bytes);
      ASSERT_EQ(fromAnsi(bytes), text);
    }
  }
}

TEST(Ansi, KeepsANul) {
  const Page western(1252);
  EXPECT_EQ(toAnsi(u"a\0\xE9\0"s), "a\0\xE9\0"s);
  EXPECT_EQ(fromAnsi("a\0\xE9\0"s), u"a\0\xE9\0"s);
}

TEST(Ansi, IsNegativeForTwoBytesAlone) {
  {
    const Page japanese(932);
    for (const char16_t unit : u"あ日ソ表　"s) EXPECT_TRUE(isNegativeAnsi(unit)) << tests::shown({&unit, 1});
    for (const char16_t unit : u"ｱﾟ한\x80\xD83D"s)
      EXPECT_FALSE(isNegativeAnsi(unit)) << tests::shown({&unit, 1});
  }
  const Page western(1252);
  for (const char16_t unit : u"é€ÿ\x81あ日"s) EXPECT_FALSE(isNegativeAnsi(unit)) << tests::shown({&unit, 1});
}

TEST(Ansi, IsNegativeForAllOfUtf8BeyondAscii) {
  const Page utf8(65001);
  for (const char16_t unit : u"éあ\xD83D"s) EXPECT_TRUE(isNegativeAnsi(unit));
  EXPECT_FALSE(isNegativeAnsi(u'a'));
}

}  // namespace
}  // namespace tessaly::platform
