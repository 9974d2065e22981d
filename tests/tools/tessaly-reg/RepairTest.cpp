#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

#include "tessaly/platform/keys/HiveFile.h"
#include "tests/tools/tessaly-reg/Tool.h"

namespace tessaly::tests {
namespace {

namespace files = std::filesystem;

class RegRepairTest : public testing::Test {
 protected:
  RegRepairTest() {
    tool.userInForce = platform::hiveAt(hive, platform::HiveReaders::Owner);
    std::string many;
    for (int i = 0; i < 200; ++i)
      many += "\"value " + std::to_string(i) + "\"=\"" + std::string(50, 'x') + "\"\n";
    EXPECT_EQ(tool.import(regFile("[HKCU\\A]\n" + many)), 0) << tool.errors;
    tool.userInForce = tool.user;
  }

  void damage() const {
    std::fstream file(hive, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(files::file_size(hive) / 2));
    file << std::string(2000, '!');
  }

  int repair(const std::vector<std::string>& more = {}) {
    std::vector<std::string> words = {"repair", hive.string()};
    words.insert(words.end(), more.begin(), more.end());
    return tool.run(words);
  }

  std::string bytes() const {
    std::ifstream file(hive, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  Tool tool;
  const files::path hive = tool.folder.path() / "x.hive";
};

TEST_F(RegRepairTest, LeavesASoundFileAlone) {
  const std::string before = bytes();
  EXPECT_EQ(repair(), 0);
  EXPECT_EQ(tool.out, hive.string() + ": nothing is wrong\n");
  EXPECT_EQ(repair({"/n"}), 0);
  EXPECT_EQ(bytes(), before);
}

TEST_F(RegRepairTest, OnlySaysWhatIsWrongInAPreview) {
  damage();
  const std::string before = bytes();
  EXPECT_EQ(repair({"/n"}), 1);
  EXPECT_TRUE(tool.out.starts_with(hive.string() + ": ")) << tool.out;
  EXPECT_EQ(tool.out.find("Repaired"), std::string::npos);
  EXPECT_EQ(bytes(), before);
  EXPECT_FALSE(files::exists(hive.string() + ".damaged"));
}

TEST_F(RegRepairTest, SavesWhatCanBeReadAndKeepsTheDamagedFile) {
  damage();
  const std::string before = bytes();
  EXPECT_EQ(repair(), 0) << tool.errors;
  EXPECT_NE(tool.out.find("were saved. The damaged file is kept as " + hive.string() + ".damaged.\n"),
            std::string::npos)
      << tool.out;
  EXPECT_EQ(files::file_size(hive.string() + ".damaged"), before.size());
  EXPECT_EQ(repair(), 0);
  EXPECT_EQ(tool.out, hive.string() + ": nothing is wrong\n");
  tool.userInForce = platform::hiveAt(hive, platform::HiveReaders::Owner);
  EXPECT_EQ(tool.run({"query", "HKCU", "/s", "/f", "value"}), 0);
}

TEST_F(RegRepairTest, RefusesWhatIsNoFileOfSettings) {
  std::ofstream(hive, std::ios::trunc) << "some text";
  EXPECT_EQ(repair(), 1);
  EXPECT_EQ(tool.errors, "tessaly-reg: can't repair " + hive.string() +
                             ": the file is not one that holds settings, or of a later version\n");
  EXPECT_EQ(bytes(), "some text");
  EXPECT_EQ(tool.run({"repair", "/nowhere/x.hive"}), 1);
  EXPECT_EQ(tool.errors, "tessaly-reg: can't repair /nowhere/x.hive: there is no such file\n");
}

TEST_F(RegRepairTest, LooksAtTheMachinesAndTheUsersFileWhereNoneIsNamed) {
  tool.machineFile = tool.folder.path() / "none" / "machine.hive";
  tool.userFile = tool.folder.path() / "user.hive";
  EXPECT_EQ(tool.run({"repair"}), 0);
  EXPECT_EQ(tool.out, tool.machineFile.string() + ": nothing is kept there yet\n" + tool.userFile.string() +
                          ": nothing is kept there yet\n");
}

TEST_F(RegRepairTest, GivesTheGreaterExitCodeOfTwoFiles) {
  damage();
  tool.machineFile = hive;
  tool.userFile = tool.folder.path() / "user.hive";
  EXPECT_EQ(tool.run({"repair", "/n"}), 1);
  std::swap(tool.machineFile, tool.userFile);
  EXPECT_EQ(tool.run({"repair", "/n"}), 1);
  EXPECT_EQ(tool.run({"repair"}), 0);
}

// What could not be looked at was told as a file that is not there, and the exit code was 0.
TEST_F(RegRepairTest, FailsWhereItCantLook) {
  const files::path ring = tool.folder.path() / "ring.hive";
  files::create_symlink("ring.hive", ring);
  const std::string why = std::make_error_code(std::errc::too_many_symbolic_link_levels).message();
  const std::string expected = "tessaly-reg: can't repair " + ring.string() + ": " + why + "\n";
  EXPECT_EQ(tool.run({"repair", ring.string()}), 1);
  EXPECT_EQ(tool.errors, expected);
  tool.machineFile = ring;
  tool.userFile = hive;
  EXPECT_EQ(tool.run({"repair"}), 1);
  EXPECT_EQ(tool.errors, expected);
  EXPECT_EQ(tool.out, hive.string() + ": nothing is wrong\n");
}

TEST_F(RegRepairTest, IsNotAllowedToLookIntoAClosedFolder) {
  if (geteuid() == 0) GTEST_SKIP() << "nothing is forbidden to root";
  files::permissions(tool.folder.path(), files::perms::none);
  EXPECT_EQ(repair(), 1);
  EXPECT_EQ(tool.errors, "tessaly-reg: can't repair " + hive.string() + ": Permission denied\n");
  files::permissions(tool.folder.path(), files::perms::owner_all);
}

TEST_F(RegRepairTest, MendsTheFileThatALinkLeadsTo) {
  damage();
  const files::path link = tool.folder.path() / "link.hive";
  files::create_symlink(hive.filename(), link);
  EXPECT_EQ(tool.run({"repair", link.string()}), 0) << tool.errors;
  EXPECT_TRUE(tool.out.starts_with(hive.string() + ": ")) << tool.out;
  EXPECT_TRUE(files::is_symlink(link));
  EXPECT_TRUE(files::exists(hive.string() + ".damaged"));
}

}  // namespace
}  // namespace tessaly::tests
