#include "tools/tessaly-reg/RegText.h"

#include <gtest/gtest.h>

#include "tests/support/Print.h"
#include "tools/tessaly-reg/RegEncoding.h"

namespace tessaly::reg {
namespace {

using namespace std::string_literals;
using platform::KeyValue;
using tests::shown;

KeyValue text(String content, platform::RegistryType type = platform::kText) {
  return {type, std::move(content), {}};
}
KeyValue bytes(platform::RegistryType type, std::string content) { return {type, {}, std::move(content)}; }

/// The line of a value.
std::string lineOf(const String& name, const KeyValue& value) {
  RegText writer(u"\n");
  EXPECT_TRUE(writer.value({name, value}));
  const std::string all = shown(writer.finish());
  return all.substr(all.find('\n') + 1);
}

TEST(RegText, HasTheFormThatWindowsWrites) {
  RegText writer(u"\r\n");
  writer.key(u"HKEY_CURRENT_USER\\A");
  writer.value({u"", text(u"x\0"s)});
  writer.value({u"n", bytes(platform::kNumber, "\x2A\0\0\xFF"s)});
  writer.key(u"HKEY_CURRENT_USER\\A\\B]");
  EXPECT_EQ(encodeRegFile(writer.finish()),
            "\xFF\xFE" +
                bytesOf(u"Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\A]\r\n@=\"x\"\r\n"
                        u"\"n\"=dword:ff00002a\r\n\r\n[HKEY_CURRENT_USER\\A\\B]]\r\n\r\n"));
}

TEST(RegText, WritesEachType) {
  const std::pair<KeyValue, std::string> rows[] = {
      {text(u"a\0"s), "\"a\""},
      {text(u"a"), "\"a\""},
      {text(u""), "\"\""},
      {text(u"\0"s), "\"\""},
      {text(u"\"c:\\d\"\0"s), "\"\\\"c:\\\\d\\\"\""},
      {text(u"tab\tend\0"s), "\"tab\tend\""},
      {text(u"\xD83D\xDE00\0"s), "\"\xF0\x9F\x98\x80\""},
      {text(u"a\0b\0"s), "hex(1):61,00,00,00,62,00,00,00"},
      {text(u"a\0\0"s), "hex(1):61,00,00,00,00,00"},
      {text(u"a\nb\0"s), "hex(1):61,00,0a,00,62,00,00,00"},
      {text(u"\x1B\0"s), "hex(1):1b,00,00,00"},
      {text(u"\xD800\0"s), "hex(1):00,d8,00,00"},
      {text(u"%a%\0"s, platform::kExpandableText), "hex(2):25,00,61,00,25,00,00,00"},
      {text(u"a\0\0"s, platform::kTexts), "hex(7):61,00,00,00,00,00"},
      {text(u"", platform::kTexts), "hex(7):"},
      {bytes(platform::kBinary, ""), "hex:"},
      {bytes(platform::kBinary, "\x00\xFF"s), "hex:00,ff"},
      {bytes(platform::kNoType, "\x01"), "hex(0):01"},
      {bytes(platform::kNumber, "\x01\x00\x00\x80"s), "dword:80000001"},
      {bytes(platform::kNumber, "\x01"), "hex(4):01"},
      {bytes(11, "\x01\0\0\0\0\0\0\0"s), "hex(b):01,00,00,00,00,00,00,00"},
      {bytes(0x4D, ""), "hex(4d):"},
      {bytes(0xFFFFFFFF, ""), "hex(ffffffff):"}};
  for (const auto& [value, line] : rows) EXPECT_EQ(lineOf(u"n", value), "\"n\"=" + line + "\n\n");
}

TEST(RegText, WritesNames) {
  EXPECT_EQ(lineOf(u"", text(u"x")), "@=\"x\"\n\n");
  EXPECT_EQ(lineOf(u"a\\b\"=", text(u"x")), "\"a\\\\b\\\"=\"=\"x\"\n\n");
}

TEST(RegText, WrapsLongBytesAsWindowsDoes) {
  EXPECT_EQ(lineOf(u"name", bytes(platform::kBinary, std::string(60, 'A'))),
            "\"name\"=hex:41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,\\\n"
            "  41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,41,\\\n"
            "  41,41,41,41,41,41,41,41,41,41,41,41,41\n\n");
}

TEST(RegText, RefusesNamesThatNoRegFileCanHold) {
  RegText writer(u"\n");
  EXPECT_FALSE(writer.key(u"HKEY_CURRENT_USER\\a\nb"));
  EXPECT_FALSE(writer.key(u"HKEY_CURRENT_USER\\a\rb"));
  EXPECT_FALSE(writer.key(u"HKEY_CURRENT_USER\\a\0b"s));
  EXPECT_FALSE(writer.value({u"a\0b"s, text(u"x")}));
}

}  // namespace
}  // namespace tessaly::reg
