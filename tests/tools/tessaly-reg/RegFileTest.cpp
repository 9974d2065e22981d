#include "tools/tessaly-reg/RegFile.h"

#include <gtest/gtest.h>

#include "tests/support/Print.h"
#include "tests/tools/tessaly-reg/Tool.h"
#include "tools/support/Visible.h"
#include "tools/tessaly-reg/ValueText.h"

namespace tessaly::reg {
namespace {

using namespace std::string_literals;
using tests::regFile;

/// What a file asks for, a line each: its line, the change, and what it is done to.
std::string listed(std::string_view bytes) {
  const RegFile file = parseRegFile(bytes);
  std::string result;
  for (const LineError& error : file.errors)
    result += std::to_string(error.line) + ": " + error.message + '\n';
  for (const RegChange& change : file.changes) {
    const KeyName& key = file.keys[change.key];
    const std::string name = tools::visible(String(longName(key.root)) + u'\\' + key.path);
    const bool isOfKey = change.kind == RegChange::Kind::MakeKey || change.kind == RegChange::Kind::DeleteKey;
    const bool isDeletion =
        change.kind == RegChange::Kind::DeleteKey || change.kind == RegChange::Kind::DeleteValue;
    result += std::to_string(change.line) + (isDeletion ? " -" : " +") +
              (isOfKey ? name : tools::visible(change.name));
    if (change.kind == RegChange::Kind::SetValue) {
      const platform::KeyValue& value = change.value;
      result += '=' + tools::visible(typeName(value.type)) + ':' +
                (value.isText() ? tools::visible(value.text) : tools::visible(shownData(value)));
    }
    result += '\n';
  }
  return result;
}

struct ListedRow {
  std::string_view content;
  std::string_view listed;
};

void expectListed(const ListedRow& row) {
  const std::string key = "[HKEY_CURRENT_USER\\A]\n";
  EXPECT_EQ(listed(regFile(key + std::string(row.content))),
            "3 +HKEY_CURRENT_USER\\A\n" + std::string(row.listed));
}

TEST(RegFile, MakesAndDeletesKeys) {
  EXPECT_EQ(listed(regFile("[HKEY_LOCAL_MACHINE\\Software\\A]\n[-HKEY_CURRENT_USER\\B]\n[hkcr\\c]\n[HKU]\n"
                           "  [HKEY_CURRENT_CONFIG\\] ; a comment\n[HKCU\\a]b]\n[HKCU\\-c ; d]\n")),
            "3 +HKEY_LOCAL_MACHINE\\Software\\A\n4 -HKEY_CURRENT_USER\\B\n5 +HKEY_CLASSES_ROOT\\c\n6 "
            "+HKEY_USERS\\\n"
            "7 +HKEY_CURRENT_CONFIG\\\n8 +HKEY_CURRENT_USER\\a]b\n9 +HKEY_CURRENT_USER\\-c ; d\n");
}

TEST(RegFile, SetsTexts) {
  const ListedRow rows[] = {
      {"\"a\"=\"b\"\n", "4 +a=REG_SZ:b\\u0000\n"},
      {"@=\"b\"\n", "4 +=REG_SZ:b\\u0000\n"},
      {"\"\"=\"b\"\n", "4 +=REG_SZ:b\\u0000\n"},
      {"\"a\"=\"\"\n", "4 +a=REG_SZ:\\u0000\n"},
      {" \t\"a\" \t= \t\"b\" \t; comment \"\n", "4 +a=REG_SZ:b\\u0000\n"},
      {"\"a=\\\"\\\\;]\"=\"[x]=\\\"y\\\";\\\\\"", "4 +a=\"\\;]=REG_SZ:[x]=\"y\";\\\\u0000\n"},
      {"\"a\"=\"tab\there\"\n", "4 +a=REG_SZ:tab\\u0009here\\u0000\n"},
      {"\"a\"=\"one\r\ntwo\nthree\"\n\"b\"=\"c\"\n",
       "4 +a=REG_SZ:one\\u000D\\u000Atwo\\u000Athree\\u0000\n7 +b=REG_SZ:c\\u0000\n"},
      {"\"a\nb\"=\"c\"\n", "4 +a\\u000Ab=REG_SZ:c\\u0000\n"},
      {"\"\xC3\xA9\"=\"\xF0\x9F\x98\x80\"\n", "4 +\xC3\xA9=REG_SZ:\xF0\x9F\x98\x80\\u0000\n"},
  };
  for (const ListedRow& row : rows) expectListed(row);
}

TEST(RegFile, SetsNumbersAndBytes) {
  const ListedRow rows[] = {
      {"\"a\"=dword:0000002A\n", "4 +a=REG_DWORD:0x2a\n"},
      {"\"a\"=DWORD: f \n", "4 +a=REG_DWORD:0xf\n"},
      {"\"a\"=hex:\n", "4 +a=REG_BINARY:\n"},
      {"\"a\"=hex:00,ff,7,Ab\n", "4 +a=REG_BINARY:00FF07AB\n"},
      {"\"a\"=Hex: 00 , ff ; comment\n", "4 +a=REG_BINARY:00FF\n"},
      {"\"a\"=hex:00,\\\n  01,\\ \t\r\n\t02\n\"b\"=dword:1\n",
       "4 +a=REG_BINARY:000102\n7 +b=REG_DWORD:0x1\n"},
      {"\"a\"=hex:\\\n  00\\\n,01\n", "4 +a=REG_BINARY:0001\n"},
      {"\"a\"=hex:00,\\ ; comment\n  01\n", "4 +a=REG_BINARY:0001\n"},
      {"\"a\"=hex(0):01\n", "4 +a=REG_NONE:01\n"},
      {"\"a\"=hex(b):01,00,00,00,00,00,00,80\n", "4 +a=REG_QWORD:0x8000000000000001\n"},
      {"\"a\"=hex(4):01\n", "4 +a=REG_DWORD:01\n"},
      {"\"a\"=hex(5):00,00,01,02\n", "4 +a=REG_DWORD_BIG_ENDIAN:0x102\n"},
      {"\"a\"=hex(4D):01,02\n", "4 +a=0x4d:0102\n"},
      {"\"a\"=hex(FFFFFFFF):\n", "4 +a=0xffffffff:\n"},
  };
  for (const ListedRow& row : rows) expectListed(row);
}

TEST(RegFile, TakesTextAsUtf16Bytes) {
  const ListedRow rows[] = {
      {"\"a\"=hex(1):61,00\n", "4 +a=REG_SZ:a\n"},
      {"\"a\"=hex(2):25,00,61,00,25,00,00,00\n", "4 +a=REG_EXPAND_SZ:%a%\\u0000\n"},
      {"\"a\"=hex(7):61,00,00,00,3d,d8,00,de,00,00,00,00\n",
       "4 +a=REG_MULTI_SZ:a\\u0000\xF0\x9F\x98\x80\\u0000\\u0000\n"},
      {"\"a\"=hex(7):\n", "4 +a=REG_MULTI_SZ:\n"},
      {"\"a\"=hex(1):00,d8\n", "4 +a=REG_SZ:\\uD800\n"},
  };
  for (const ListedRow& row : rows) expectListed(row);
}

TEST(RegFile, DeletesValues) { expectListed({"\"a\"=-\n@=-  ; comment\n", "4 -a\n5 -\n"}); }

TEST(RegFile, PassesOverCommentsAndBlankLines) {
  expectListed({"; \"a\"=\"b\"\n\n \t \n ;[HKCU\\B]\n\"c\"=dword:1", "8 +c=REG_DWORD:0x1\n"});
}

void expectLinesToEndWith(const std::string& end) {
  const std::string bytes = "Windows Registry Editor Version 5.00  " + end + end + "[HKCU\\A]" + end +
                            "\"a\"=dword:1" + end + end + "\"b\"=dword:2";
  EXPECT_EQ(listed(bytes), "3 +HKEY_CURRENT_USER\\A\n4 +a=REG_DWORD:0x1\n6 +b=REG_DWORD:0x2\n");
}

TEST(RegFile, EndsLinesWithCrLfOrBoth) {
  expectLinesToEndWith("\n");
  expectLinesToEndWith("\r\n");
  expectLinesToEndWith("\r");
}

TEST(RegFile, OfTheHeaderAloneAsksForNothing) {
  EXPECT_EQ(listed("Windows Registry Editor Version 5.00"), "");
  EXPECT_EQ(listed("REGEDIT4\r\n"), "");
}

}  // namespace
}  // namespace tessaly::reg
