#include <gtest/gtest.h>

#include "tests/tools/tessaly-reg/Tool.h"

namespace tessaly::tests {
namespace {

std::string shown(Tool& tool, const std::string& name) {
  EXPECT_EQ(tool.run({"query", "HKCU\\A", "/v", name}), 0);
  const std::size_t begin = tool.out.find("    ");
  return tool.out.substr(begin, tool.out.find('\n', begin) - begin);
}

TEST(RegAdd, MakesAKeyWithItsParents) {
  Tool tool;
  EXPECT_EQ(tool.run({"add", "HKLM\\Software\\New"}), 0);
  EXPECT_EQ(tool.out, "The operation completed successfully.\n");
  EXPECT_EQ(tool.run({"query", "HKLM\\Software\\New", "/s"}), 0);
  EXPECT_EQ(tool.out, "\nHKEY_LOCAL_MACHINE\\Software\\New\n\n");
}

struct DataRow {
  std::vector<std::string> words;
  std::string shown;
};

TEST(RegAdd, TakesDataOfEachType) {
  const DataRow rows[] = {
      {{"/d", "text"}, "    x    REG_SZ    text"},
      {{}, "    x    REG_SZ    "},
      {{"/t", "reg_sz", "/d", ""}, "    x    REG_SZ    "},
      {{"/t", "REG_EXPAND_SZ", "/d", "%HOME%"}, "    x    REG_EXPAND_SZ    %HOME%"},
      {{"/t", "REG_DWORD", "/d", "4294967295"}, "    x    REG_DWORD    0xffffffff"},
      {{"/t", "REG_DWORD", "/d", "0xAbC"}, "    x    REG_DWORD    0xabc"},
      {{"/t", "REG_DWORD"}, "    x    REG_DWORD    0x0"},
      {{"/t", "REG_DWORD_LITTLE_ENDIAN", "/d", "1"}, "    x    REG_DWORD    0x1"},
      {{"/t", "REG_DWORD_BIG_ENDIAN", "/d", "258"}, "    x    REG_DWORD_BIG_ENDIAN    0x102"},
      {{"/t", "REG_QWORD", "/d", "0x123456789abcdef0"}, "    x    REG_QWORD    0x123456789abcdef0"},
      {{"/t", "REG_BINARY", "/d", "00fF41"}, "    x    REG_BINARY    00FF41"},
      {{"/t", "REG_BINARY"}, "    x    REG_BINARY    "},
      {{"/t", "REG_NONE", "/d", "01"}, "    x    REG_NONE    01"},
      {{"/t", "77", "/d", "0102"}, "    x    0x4d    0102"},
      {{"/t", "REG_MULTI_SZ", "/d", "one\\0two"}, "    x    REG_MULTI_SZ    one\\0two"},
      {{"/t", "REG_MULTI_SZ", "/d", "one\\0two\\0"}, "    x    REG_MULTI_SZ    one\\0two"},
      {{"/t", "REG_MULTI_SZ", "/s", ";", "/d", "a;b\\0;c"}, "    x    REG_MULTI_SZ    a\\0b\\0\\0c"},
      {{"/t", "REG_MULTI_SZ"}, "    x    REG_MULTI_SZ    "},
  };
  for (const DataRow& row : rows) {
    Tool tool;
    std::vector<std::string> words = {"add", "HKCU\\A", "/v", "x"};
    words.insert(words.end(), row.words.begin(), row.words.end());
    EXPECT_EQ(tool.run(words), 0) << tool.errors;
    EXPECT_EQ(shown(tool, "x"), row.shown);
  }
}

TEST(RegAdd, StoresTextsWithTheirNuls) {
  Tool tool;
  tool.run({"add", "HKCU\\A", "/v", "x", "/d", "ab"});
  tool.run({"add", "HKCU\\A", "/v", "y", "/t", "REG_MULTI_SZ", "/d", "a\\0b"});
  platform::KeyValue value;
  platform::KeyStore::Id key = 0;
  const std::u16string_view name = u"A";
  ASSERT_EQ(tool.user->find(platform::KeyStore::kRoot, {&name, 1}, key), 0);
  ASSERT_EQ(tool.user->value(key, u"x", value), 0);
  EXPECT_EQ(value.text, std::u16string(u"ab\0", 3));
  ASSERT_EQ(tool.user->value(key, u"y", value), 0);
  EXPECT_EQ(value.text, std::u16string(u"a\0b\0\0", 5));
}

TEST(RegAdd, RefusesDataThatDoesNotSuitItsType) {
  const std::pair<std::vector<std::string>, std::string> rows[] = {
      {{"/t", "REG_DWORD", "/d", "4294967296"}, "it is no number of 32 bits, in decimal or 0x form"},
      {{"/t", "REG_DWORD", "/d", "-1"}, "it is no number of 32 bits, in decimal or 0x form"},
      {{"/t", "REG_DWORD", "/d", "12x"}, "it is no number of 32 bits, in decimal or 0x form"},
      {{"/t", "REG_DWORD", "/d", "0x"}, "it is no number of 32 bits, in decimal or 0x form"},
      {{"/t", "REG_QWORD", "/d", "18446744073709551616"},
       "it is no number of 64 bits, in decimal or 0x form"},
      {{"/t", "REG_BINARY", "/d", "123"},
       "it is no row of bytes of two hexadecimal digits each, such as 00ff41"},
      {{"/t", "REG_BINARY", "/d", "0g"},
       "it is no row of bytes of two hexadecimal digits each, such as 00ff41"},
      {{"/t", "REG_MULTI_SZ", "/d", "a\\0\\0b"}, "there is an empty text in it, which would end the list"}};
  for (const auto& [more, why] : rows) {
    Tool tool;
    std::vector<std::string> words = {"add", "HKCU\\A", "/v", "x"};
    words.insert(words.end(), more.begin(), more.end());
    EXPECT_EQ(tool.run(words), 2);
    EXPECT_EQ(tool.errors, "tessaly-reg: can't take the data \"" + more.back() + "\": " + why + "\n");
    EXPECT_EQ(tool.run({"query", "HKCU\\A"}), 1) << "nothing is made";
  }
}

TEST(RegAdd, SetsTheUnnamedValueWhereDataComesWithoutAName) {
  Tool tool;
  EXPECT_EQ(tool.run({"add", "HKCU\\A", "/d", "one"}), 0);
  EXPECT_EQ(shown(tool, ""), "    (Default)    REG_SZ    one");
  EXPECT_EQ(tool.run({"add", "HKCU\\A", "/ve", "/d", "two", "/f"}), 0);
  EXPECT_EQ(shown(tool, ""), "    (Default)    REG_SZ    two");
}

TEST(RegAdd, AsksBeforeItOverwrites) {
  Tool tool;
  tool.run({"add", "HKCU\\A", "/v", "Name", "/d", "old"});
  tool.answer = false;
  EXPECT_EQ(tool.run({"add", "HKCU\\A", "/v", "name", "/d", "new"}), 1);
  EXPECT_EQ(tool.question, "Value name exists, overwrite(Yes/No)? ");
  EXPECT_EQ(tool.errors, "Nothing was changed.\n");
  EXPECT_EQ(shown(tool, "name"), "    Name    REG_SZ    old");
  tool.answer = true;
  EXPECT_EQ(tool.run({"add", "HKCU\\A", "/v", "name", "/d", "new"}), 0);
  EXPECT_EQ(shown(tool, "name"), "    Name    REG_SZ    new");
}

TEST(RegAdd, RefusesToOverwriteWhereNobodyCanBeAsked) {
  Tool tool;
  tool.run({"add", "HKCU\\A", "/v", "x", "/d", "old"});
  EXPECT_EQ(tool.run({"add", "HKCU\\A", "/v", "x", "/d", "new"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: the value x exists already: there is no terminal to ask on; "
            "with /f it is done without asking\n");
  EXPECT_EQ(shown(tool, "x"), "    x    REG_SZ    old");
  EXPECT_EQ(tool.run({"add", "HKCU\\A", "/v", "x", "/d", "new", "/f"}), 0);
  EXPECT_EQ(shown(tool, "x"), "    x    REG_SZ    new");
}

TEST(RegAdd, SaysWhoMayWrite) {
  Tool tool;
  tool.machine->setWritable(false);
  EXPECT_EQ(tool.run({"add", "HKLM\\A"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't change HKEY_LOCAL_MACHINE\\A: permission denied\n"
            "The machine's settings, /machine.hive, are an administrator's to change: try sudo.\n");
  tool.user->setWritable(false);
  EXPECT_EQ(tool.run({"add", "HKCU\\A"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't change HKEY_CURRENT_USER\\A: permission denied\n"
            "The file is /user.hive; it or its folder is not yours to use.\n");
}

TEST(RegAdd, RefusesWhatIsTooLarge) {
  Tool tool;
  EXPECT_EQ(tool.run({"add", "HKCU\\" + std::string(256, 'x')}), 1);
  EXPECT_EQ(tool.run({"add", "HKCU\\A", "/v", std::string(16384, 'x')}), 1);
  EXPECT_EQ(tool.run({"add", "HKCU\\A", "/v", "x", "/d", std::string(600'000, 'x')}), 1);
  EXPECT_EQ(tool.errors, "tessaly-reg: can't change HKEY_CURRENT_USER\\A: the data is larger than 1 MiB\n");
  EXPECT_EQ(tool.run({"query", "HKCU\\A"}), 1);
}

TEST(RegAdd, RefusesKeysOfOtherUsers) {
  Tool tool;
  EXPECT_EQ(tool.run({"add", "HKU\\S-1-5-18\\A"}), 1);
  EXPECT_EQ(tool.run({"add", "HKU", "/d", "x"}), 1);
  EXPECT_EQ(tool.run({"add", "HKU\\S-1-22-1-1000\\A"}), 0);
  EXPECT_EQ(tool.run({"query", "HKCU\\A"}), 0);
}

}  // namespace
}  // namespace tessaly::tests
