#include <gtest/gtest.h>

#include "tests/tools/tessaly-reg/Tool.h"

namespace tessaly::tests {
namespace {

class RegDeleteTest : public testing::Test {
 protected:
  RegDeleteTest() {
    tool.import(
        regFile("[HKEY_CURRENT_USER\\A]\n@=\"u\"\n\"x\"=\"1\"\n\"y\"=\"2\"\n"
                "[HKEY_CURRENT_USER\\A\\B\\C]\n\"z\"=\"3\"\n[HKEY_CURRENT_USER\\D]\n"));
  }

  Tool tool;
};

TEST_F(RegDeleteTest, DeletesAKeyWithAllBelow) {
  EXPECT_EQ(tool.run({"delete", "hkcu\\a", "/f"}), 0);
  EXPECT_EQ(tool.out, "The operation completed successfully.\n");
  EXPECT_EQ(tool.question, "");
  tool.run({"query", "HKCU", "/s"});
  EXPECT_EQ(tool.out, "\nHKEY_CURRENT_USER\n\nHKEY_CURRENT_USER\\D\n\n");
}

TEST_F(RegDeleteTest, DeletesAValue) {
  EXPECT_EQ(tool.run({"delete", "HKCU\\A", "/v", "X", "/f"}), 0);
  EXPECT_EQ(tool.run({"delete", "HKCU\\A", "/ve", "/f"}), 0);
  tool.run({"query", "HKCU\\A"});
  EXPECT_EQ(tool.out, "\nHKEY_CURRENT_USER\\A\n    y    REG_SZ    2\n\nHKEY_CURRENT_USER\\A\\B\n\n");
}

TEST_F(RegDeleteTest, DeletesAllValuesAndLeavesTheKey) {
  EXPECT_EQ(tool.run({"delete", "HKCU\\A", "/va", "/f"}), 0);
  tool.run({"query", "HKCU\\A"});
  EXPECT_EQ(tool.out, "\nHKEY_CURRENT_USER\\A\n\nHKEY_CURRENT_USER\\A\\B\n\n");
}

TEST_F(RegDeleteTest, AsksFirst) {
  const std::string before = tool.exported("HKCU");
  tool.answer = false;
  EXPECT_EQ(tool.run({"delete", "HKCU\\a"}), 1);
  EXPECT_EQ(tool.question, "Permanently delete the registry key HKEY_CURRENT_USER\\A (Yes/No)? ");
  EXPECT_EQ(tool.errors, "Nothing was changed.\n");
  EXPECT_EQ(tool.run({"delete", "HKCU\\a", "/v", "x"}), 1);
  EXPECT_EQ(tool.question, "Delete the registry value x (Yes/No)? ");
  EXPECT_EQ(tool.run({"delete", "HKCU\\a", "/va"}), 1);
  EXPECT_EQ(tool.question, "Delete all values under the registry key HKEY_CURRENT_USER\\A (Yes/No)? ");
  tool.answer.reset();
  EXPECT_EQ(tool.run({"delete", "HKCU\\a"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't delete the key HKEY_CURRENT_USER\\A: there is no terminal to ask on; "
            "with /f it is done without asking\n");
  EXPECT_EQ(tool.exported("HKCU"), before);
  tool.answer = true;
  EXPECT_EQ(tool.run({"delete", "HKCU\\a"}), 0);
  EXPECT_EQ(tool.run({"query", "HKCU\\a"}), 1);
}

TEST_F(RegDeleteTest, SaysWhatIsNotThere) {
  tool.answer = true;
  EXPECT_EQ(tool.run({"delete", "HKCU\\None"}), 1);
  EXPECT_EQ(tool.errors, "tessaly-reg: can't delete HKEY_CURRENT_USER\\None: there is no such key\n");
  EXPECT_EQ(tool.run({"delete", "HKCU\\A", "/v", "none"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't delete the value none of HKEY_CURRENT_USER\\A: there is no such value\n");
  EXPECT_EQ(tool.question, "");
}

TEST_F(RegDeleteTest, KeepsWhatIsAlwaysThere) {
  for (const char* key : {"HKCU", "HKLM\\", "HKCR", "HKCC", "HKU", "HKU\\S-1-22-1-1000"}) {
    EXPECT_EQ(tool.run({"delete", key, "/f"}), 1) << key;
    EXPECT_NE(tool.errors.find("it is always there; /va deletes its values"), std::string::npos)
        << tool.errors;
  }
  EXPECT_EQ(tool.run({"query", "HKCU\\A\\B\\C"}), 0);
  EXPECT_EQ(tool.run({"delete", "HKCU", "/va", "/f"}), 0);
}

TEST_F(RegDeleteTest, ChangesNothingWithoutPermission) {
  tool.user->setWritable(false);
  EXPECT_EQ(tool.run({"delete", "HKCU\\A", "/f"}), 1);
  EXPECT_EQ(tool.run({"delete", "HKCU\\A", "/v", "x", "/f"}), 1);
  EXPECT_NE(tool.errors.find("permission denied"), std::string::npos);
  EXPECT_EQ(tool.run({"query", "HKCU\\A", "/v", "x"}), 0);
}

}  // namespace
}  // namespace tessaly::tests
