#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tessaly/base/Text.h"
#include "tests/tools/tessaly-reg/Tool.h"
#include "tools/tessaly-reg/RegEncoding.h"

namespace tessaly::tests {
namespace {

namespace files = std::filesystem;

std::string bytesOf(const files::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class RegExportTest : public testing::Test {
 protected:
  RegExportTest() { tool.import(regFile("[HKCU\\A]\n\"x\"=\"\xC3\xA9\"\n[HKCU\\A\\B]\n")); }

  int exportTo(const std::string& file, const std::vector<std::string>& more = {}) {
    std::vector<std::string> words = {"export", "hkcu\\a", file};
    words.insert(words.end(), more.begin(), more.end());
    return tool.run(words);
  }

  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(
        std::distance(files::directory_iterator(target.parent_path()), files::directory_iterator()));
  }

  Tool tool;
  const files::path target = tool.folder.path() / "out.reg";
  const std::string content =
      "Windows Registry Editor Version "
      "5.00\n\n[HKEY_CURRENT_USER\\A]\n\"x\"=\"\xC3\xA9\"\n\n[HKEY_CURRENT_USER\\A\\B]\n\n";
};

TEST_F(RegExportTest, WritesTheFileThatWindowsTakes) {
  EXPECT_EQ(exportTo(target), 0);
  EXPECT_EQ(tool.out, "Exported 2 keys and 1 value to " + target.string() + ".\n");
  std::string withCr;
  for (const char c : content) withCr += c == '\n' ? std::string("\r\n") : std::string(1, c);
  EXPECT_EQ(bytesOf(target), reg::encodeRegFile(fromUtf8(withCr)));
}

TEST_F(RegExportTest, WritesUtf8ToTheStandardOutput) {
  EXPECT_EQ(exportTo("-"), 0);
  EXPECT_EQ(tool.out, content);
  EXPECT_EQ(tool.errors, "");
}

TEST_F(RegExportTest, ReplacesAFileOnlyWhereItIsTold) {
  std::ofstream(target) << "precious";
  EXPECT_EQ(exportTo(target), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't write " + target.string() + ": the file exists; /y replaces it\n");
  EXPECT_EQ(bytesOf(target), "precious");
  EXPECT_EQ(exportTo(target, {"/y"}), 0);
  EXPECT_TRUE(bytesOf(target).starts_with("\xFF\xFE"));
}

TEST_F(RegExportTest, KeepsTheModeAndTheLinkOfWhatItReplaces) {
  std::ofstream(target) << "old";
  files::permissions(target, files::perms::owner_read | files::perms::owner_write);
  const files::path link = tool.folder.path() / "link.reg";
  files::create_symlink("out.reg", link);
  EXPECT_EQ(exportTo(link, {"/y"}), 0);
  EXPECT_TRUE(files::is_symlink(link));
  EXPECT_TRUE(bytesOf(target).starts_with("\xFF\xFE"));
  EXPECT_EQ(files::status(target).permissions(), files::perms::owner_read | files::perms::owner_write);
}

TEST_F(RegExportTest, LeavesALinkToNothingAlone) {
  const files::path link = tool.folder.path() / "link.reg";
  files::create_symlink("none.reg", link);
  EXPECT_EQ(exportTo(link, {"/y"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't write " + link.string() + ": it is a link to a file that is not there\n");
  EXPECT_TRUE(files::is_symlink(link));
}

TEST_F(RegExportTest, ReplacesNoDeviceAndNoFolder) {
  EXPECT_EQ(exportTo("/dev/null", {"/y"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't write /dev/null: it is no normal file; - writes to the standard output\n");
  EXPECT_EQ(exportTo(tool.folder.path(), {"/y"}), 1);
}

TEST_F(RegExportTest, LeavesNothingBehindWhereItFails) {
  const std::size_t before = filesInFolder();
  EXPECT_EQ(exportTo(tool.folder.path() / "none" / "out.reg"), 1);
  EXPECT_EQ(exportTo(tool.folder.path() / std::string(300, 'x')), 1);
  EXPECT_EQ(tool.run({"export", "HKCU\\None", target}), 1);
  EXPECT_EQ(filesInFolder(), before);
}

TEST_F(RegExportTest, WritesTheUserAsTheOnlyOneOfAllUsers) {
  EXPECT_EQ(tool.exported("HKU"), regFile("[HKEY_USERS]\n\n[HKEY_USERS\\S-1-22-1-1000]\n\n[HKEY_USERS\\S-1-"
                                          "22-1-1000\\A]\n\"x\"=\"\xC3\xA9\"\n\n"
                                          "[HKEY_USERS\\S-1-22-1-1000\\A\\B]\n\n"));
}

TEST_F(RegExportTest, SendsNoOrderToTheTerminal) {
  tool.run({"add", "HKCU\\A", "/v", "t", "/d", "\x1b[2J"});
  EXPECT_EQ(exportTo("-"), 0);
  EXPECT_NE(tool.out.find("\"t\"=hex(1):1b,00,5b,00,32,00,4a,00,00,00\n"), std::string::npos);
  tool.run({"add", "HKCU\\A", "/v", "n\x1b", "/d", ""});
  EXPECT_EQ(exportTo("-"), 1);
  EXPECT_EQ(tool.out, "");
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't export HKEY_CURRENT_USER\\A: the name \"n\\u001B\" can't be shown as text; "
            "export to a file\n");
  EXPECT_EQ(exportTo(target), 0);
}

// Direction marks and the like went to the terminal as they are.
TEST_F(RegExportTest, SendsNothingHiddenToTheTerminal) {
  tool.run({"add", "HKCU\\A", "/v", "t", "/d", toUtf8(u"\x202E")});
  EXPECT_EQ(exportTo("-"), 0);
  EXPECT_NE(tool.out.find("\"t\"=hex(1):2e,20,00,00\n"), std::string::npos) << tool.out;
  tool.run({"add", "HKCU\\A\\k\xE2\x80\x8B"});
  EXPECT_EQ(exportTo("-"), 1);
  EXPECT_EQ(tool.out, "");
  EXPECT_NE(tool.errors.find("k\\u200B"), std::string::npos) << tool.errors;
  EXPECT_EQ(exportTo(target), 0);
}

TEST_F(RegExportTest, TellsOfAFileThatImportWouldRefuse) {
  const platform::KeyValue large = {platform::kBinary, {}, std::string(1 << 20, 'x')};
  for (const char16_t name : std::u16string_view(u"abc"))
    ASSERT_EQ(tool.user->setValue(platform::KeyStore::kRoot, {&name, 1}, large), 0);
  EXPECT_EQ(tool.run({"export", "HKCU", target.string()}), 0);
  EXPECT_EQ(tool.errors,
            "It is larger than 16 MiB, which import refuses; export the keys in it one by one.\n");
}

TEST_F(RegExportTest, SaysWhichNameNoRegFileCanHold) {
  tool.run({"add", "HKCU\\A\\b\nc"});
  EXPECT_EQ(exportTo(target), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't export HKEY_CURRENT_USER\\A\\b\\u000Ac: the name "
            "\"HKEY_CURRENT_USER\\A\\b\\u000Ac\" "
            "holds what a .reg file can't, a NUL or a line break\n");
  EXPECT_FALSE(files::exists(target));
}

}  // namespace
}  // namespace tessaly::tests
