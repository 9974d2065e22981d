#include <gtest/gtest.h>

#include "tessaly/base/Text.h"
#include "tests/tools/tessaly-reg/Tool.h"

namespace tessaly::tests {
namespace {

class RegQueryTest : public testing::Test {
 protected:
  RegQueryTest() {
    tool.import(
        regFile("[HKEY_CURRENT_USER\\Software\\Tool]\n"
                "@=\"unnamed\"\n\"Colour\"=\"red\"\n\"Count\"=dword:0000002a\n"
                "[HKEY_CURRENT_USER\\Software\\Tool\\Colours]\n"
                "[HKEY_CURRENT_USER\\Software\\Tool\\Window]\n\"Width\"=dword:00000280\n"
                "[HKEY_LOCAL_MACHINE\\Software\\Classes\\.tool]\n@=\"Tool.File\"\n"));
  }

  Tool tool;
};

TEST_F(RegQueryTest, ShowsAKeysValuesAndTheNamesOfItsSubkeysAsWindowsDoes) {
  EXPECT_EQ(tool.run({"query", "HKCU\\Software\\Tool"}), 0);
  EXPECT_EQ(tool.out,
            "\nHKEY_CURRENT_USER\\Software\\Tool\n"
            "    (Default)    REG_SZ    unnamed\n"
            "    Colour    REG_SZ    red\n"
            "    Count    REG_DWORD    0x2a\n"
            "\n"
            "HKEY_CURRENT_USER\\Software\\Tool\\Colours\n"
            "HKEY_CURRENT_USER\\Software\\Tool\\Window\n"
            "\n");
  EXPECT_EQ(tool.errors, "");
}

TEST_F(RegQueryTest, TakesNamesInAnyCaseAndShowsThemAsTheyAreStored) {
  EXPECT_EQ(tool.run({"QUERY", "hkey_current_user\\SOFTWARE\\tool\\window\\", "/V", "WIDTH"}), 0);
  EXPECT_EQ(tool.out, "\nHKEY_CURRENT_USER\\Software\\Tool\\Window\n    Width    REG_DWORD    0x280\n\n");
}

TEST_F(RegQueryTest, ShowsTheUnnamedValue) {
  EXPECT_EQ(tool.run({"query", "HKCU\\Software\\Tool", "/ve"}), 0);
  EXPECT_EQ(tool.out, "\nHKEY_CURRENT_USER\\Software\\Tool\n    (Default)    REG_SZ    unnamed\n\n");
}

TEST_F(RegQueryTest, ShowsAllKeysBelow) {
  EXPECT_EQ(tool.run({"query", "HKCU\\Software", "/s"}), 0);
  EXPECT_EQ(tool.out,
            "\nHKEY_CURRENT_USER\\Software\n"
            "\nHKEY_CURRENT_USER\\Software\\Tool\n"
            "    (Default)    REG_SZ    unnamed\n"
            "    Colour    REG_SZ    red\n"
            "    Count    REG_DWORD    0x2a\n"
            "\nHKEY_CURRENT_USER\\Software\\Tool\\Colours\n"
            "\nHKEY_CURRENT_USER\\Software\\Tool\\Window\n"
            "    Width    REG_DWORD    0x280\n"
            "\n");
}

TEST_F(RegQueryTest, LooksForATextInNamesAndData) {
  EXPECT_EQ(tool.run({"query", "HKCU", "/s", "/f", "cOLOUR"}), 0);
  EXPECT_EQ(tool.out,
            "\nHKEY_CURRENT_USER\\Software\\Tool\n    Colour    REG_SZ    red\n"
            "\nHKEY_CURRENT_USER\\Software\\Tool\\Colours\n"
            "\nEnd of search: 2 matches found.\n");
  EXPECT_EQ(tool.run({"query", "HKCU", "/s", "/f", "u?n*d"}), 0);
  EXPECT_EQ(tool.out,
            "\nHKEY_CURRENT_USER\\Software\\Tool\n    (Default)    REG_SZ    unnamed\n"
            "\nEnd of search: 1 match found.\n");
}

TEST_F(RegQueryTest, LooksInOneKeyAndTheNamesOfItsSubkeysWithoutS) {
  EXPECT_EQ(tool.run({"query", "HKCU\\Software\\Tool", "/f", "w"}), 0);
  EXPECT_EQ(tool.out, "\nHKEY_CURRENT_USER\\Software\\Tool\\Window\n\nEnd of search: 1 match found.\n");
}

TEST_F(RegQueryTest, LooksForValuesOfATypeOrAName) {
  EXPECT_EQ(tool.run({"query", "HKCU", "/s", "/t", "reg_dword"}), 0);
  EXPECT_EQ(tool.out,
            "\nHKEY_CURRENT_USER\\Software\\Tool\n    Count    REG_DWORD    0x2a\n"
            "\nHKEY_CURRENT_USER\\Software\\Tool\\Window\n    Width    REG_DWORD    0x280\n"
            "\nEnd of search: 2 matches found.\n");
  EXPECT_EQ(tool.run({"query", "HKCU", "/s", "/v", "width"}), 0);
  EXPECT_EQ(tool.out,
            "\nHKEY_CURRENT_USER\\Software\\Tool\\Window\n    Width    REG_DWORD    0x280\n"
            "\nEnd of search: 1 match found.\n");
  EXPECT_EQ(tool.run({"query", "HKCU", "/s", "/v", "Count", "/f", "3"}), 1);
  EXPECT_EQ(tool.out, "\nEnd of search: 0 matches found.\n");
}

TEST_F(RegQueryTest, SaysWhatIsNotThere) {
  EXPECT_EQ(tool.run({"query", "HKLM\\Software\\None"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't read HKEY_LOCAL_MACHINE\\Software\\None: there is no such key\n");
  EXPECT_EQ(tool.run({"query", "HKCU\\software\\tool", "/v", "none"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't read the value none of HKEY_CURRENT_USER\\Software\\Tool: there is no such "
            "value\n");
  EXPECT_EQ(tool.run({"query", "HKCU\\software\\tool\\window", "/ve"}), 1);
  EXPECT_EQ(tool.out, "");
}

TEST_F(RegQueryTest, ShowsPartsOfTheStoresUnderThePredefinedKeys) {
  EXPECT_EQ(tool.run({"query", "HKCR\\.TOOL"}), 0);
  EXPECT_EQ(tool.out, "\nHKEY_CLASSES_ROOT\\.tool\n    (Default)    REG_SZ    Tool.File\n\n");
  EXPECT_EQ(tool.run({"query", "HKU"}), 0);
  EXPECT_EQ(tool.out, "\nHKEY_USERS\n\nHKEY_USERS\\S-1-22-1-1000\n\n");
  EXPECT_EQ(tool.run({"query", "HKU\\s-1-22-1-1000\\software\\tool\\window"}), 0);
  EXPECT_EQ(tool.out,
            "\nHKEY_USERS\\S-1-22-1-1000\\Software\\Tool\\Window\n    Width    REG_DWORD    0x280\n\n");
  EXPECT_EQ(tool.run({"query", "HKCC"}), 0);
  EXPECT_EQ(tool.out, "\nHKEY_CURRENT_CONFIG\n\n");
  EXPECT_EQ(tool.run({"query", "HKU\\.DEFAULT"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't read HKEY_USERS\\.DEFAULT: there is no such key\n"
            "HKEY_USERS shows the keys of the user who asks and no others, under S-1-22-1-1000.\n");
}

TEST_F(RegQueryTest, ShowsTheUsersKeysOnceUnderAllUsers) {
  EXPECT_EQ(tool.run({"query", "HKU", "/s", "/v", "width"}), 0);
  EXPECT_EQ(tool.out,
            "\nHKEY_USERS\\S-1-22-1-1000\\Software\\Tool\\Window\n    Width    REG_DWORD    0x280\n"
            "\nEnd of search: 1 match found.\n");
}

TEST_F(RegQueryTest, SendsNoOrderToTheTerminal) {
  tool.run({"add", "HKCU\\Evil\x1b]0;x\x07", "/v", "n\x1b[2J", "/d", toUtf8(u"a\r\x1b[31mb\x9B\x202E")});
  EXPECT_EQ(tool.run({"query", "HKCU\\evil\x1b]0;X\x07"}), 0);
  EXPECT_EQ(tool.out,
            "\nHKEY_CURRENT_USER\\Evil\\u001B]0;x\\u0007\n"
            "    n\\u001B[2J    REG_SZ    a\\u000D\\u001B[31mb\\u009B\\u202E\n\n");
  tool.run({"query", "HKCU\\no\x1b[2J"});
  EXPECT_EQ(tool.errors, "tessaly-reg: can't read HKEY_CURRENT_USER\\no\\u001B[2J: there is no such key\n");
}

}  // namespace
}  // namespace tessaly::tests
