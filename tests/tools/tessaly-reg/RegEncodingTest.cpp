#include "tools/tessaly-reg/RegEncoding.h"

#include <gtest/gtest.h>

#include "tessaly/base/Text.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tests/support/Print.h"
#include "tools/tessaly-reg/RegFile.h"

namespace tessaly::reg {
namespace {

using namespace std::string_literals;
using tests::shown;

String highFirst(std::u16string_view text) {
  String result;
  for (const char16_t unit : text) result += static_cast<char16_t>((unit << 8) | (unit >> 8));
  return result;
}

/// The text of the first value of a file, or its first error.
std::string firstText(std::string_view bytes) {
  const RegFile file = parseRegFile(bytes);
  if (!file.errors.empty()) return std::to_string(file.errors[0].line) + ": " + file.errors[0].message;
  return shown(file.changes.at(1).value.text.substr(0, file.changes.at(1).value.text.size() - 1));
}

const std::string kNew = "Windows Registry Editor Version 5.00\r\n[HKCU\\A]\r\n\"a\"=\"";
const std::string kNewText = kNew + "\xC3\xA9\xE3\x81\x82\xF0\x9F\x98\x80\"";
const std::string kText = "\xC3\xA9\xE3\x81\x82\xF0\x9F\x98\x80";

TEST(RegEncoding, IsUtf16OrUtf8) {
  const String wide = fromUtf8(kNewText);
  EXPECT_EQ(firstText("\xFF\xFE" + bytesOf(wide)), kText);
  EXPECT_EQ(firstText("\xFE\xFF" + bytesOf(highFirst(wide))), kText);
  EXPECT_EQ(firstText("\xEF\xBB\xBF" + kNewText), kText);
  EXPECT_EQ(firstText(kNewText), kText);
}

TEST(RegEncoding, KeepsHalfSurrogatePairsOfUtf16) {
  const String text = fromUtf8(kNew) + u'\xD800' + u'"';
  const RegFile file = parseRegFile(encodeRegFile(text));
  EXPECT_EQ(file.changes.at(1).value.text, String(u"\xD800\0", 2));
}

TEST(RegEncoding, OfTheOldFormIsTheCodePage) {
  const std::string old = "REGEDIT4\r\n[HKCU\\A]\r\n\"a\"=\"";
  platform::fake::Locale western(1036, u",", 1252);
  {
    const platform::Override inForce(western);
    EXPECT_EQ(firstText(old + "\xE9\x80\""), "\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(firstText(old + "\xC3\xA9\""), "\xC3\x83\xC2\xA9")
        << "UTF-8 without a mark is not taken for it";
    EXPECT_EQ(firstText("\xEF\xBB\xBF" + old + "\xC3\xA9\""), "\xC3\xA9");
    EXPECT_EQ(firstText("\xEF\xBB\xBF" + old + "\xE9\""), "\xC3\xA9") << "the mark lies";
    EXPECT_EQ(firstText("\xFF\xFE" + bytesOf(fromUtf8(old + "\xC3\xA9\""))), "\xC3\xA9");
  }
  platform::fake::Locale japanese(1041, u".", 932);
  const platform::Override inForce(japanese);
  // The second byte of the character is that of a backslash.
  EXPECT_EQ(firstText(old + "\x95\x5C\""), "\xE8\xA1\xA8");
}

TEST(RegEncoding, OfBytesOfTheOldFormsTextsIsTheCodePage) {
  platform::fake::Locale japanese(1041, u".", 932);
  const platform::Override inForce(japanese);
  EXPECT_EQ(firstText("REGEDIT4\n[HKCU\\A]\n\"a\"=hex(2):25,95,5c,00\n"), "%\xE8\xA1\xA8");
  EXPECT_EQ(firstText("REGEDIT4\n[HKCU\\A]\n\"a\"=hex(7):61,00,95,5c,00,00\n"), "a\0\xE8\xA1\xA8\0"s);
  EXPECT_EQ(firstText("REGEDIT4\n[HKCU\\A]\n\"a\"=hex(1):95,5c,00\n"), "\xE8\xA1\xA8");
}

TEST(RegEncoding, ThatIsWrongIsToldByLine) {
  const std::string notUtf8 =
      "these bytes are no UTF-8; save the file as UTF-8, or as UTF-16 with a byte-order mark";
  EXPECT_EQ(firstText(kNew + "\xE9\""), "3: " + notUtf8);
  EXPECT_EQ(firstText("\xEF\xBB\xBF" + kNew + "\n\n\xC3\""), "5: " + notUtf8);
  const std::string nul =
      "a NUL character; a file in UTF-16 begins with a byte-order mark, other text has none";
  EXPECT_EQ(firstText(kNew + "\0\""s), "3: " + nul);
  EXPECT_EQ(firstText("REGEDIT4\n\n\n\0"s), "4: " + nul);
  EXPECT_EQ(firstText(bytesOf(fromUtf8(kNewText))), "1: " + nul) << "UTF-16 without a mark";
  EXPECT_EQ(firstText("\xFF\xFE\0\0"s + bytesOf(fromUtf8(kNewText))), "1: " + nul) << "UTF-32";
  EXPECT_EQ(firstText(encodeRegFile(fromUtf8(kNewText)) + "\n"),
            "3: the file ends within a character of UTF-16; it seems to be cut");
}

}  // namespace
}  // namespace tessaly::reg
