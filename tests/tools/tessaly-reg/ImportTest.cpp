#include <gtest/gtest.h>

#include "tessaly/base/Text.h"
#include "tessaly/platform/keys/HiveFile.h"
#include "tests/tools/tessaly-reg/Tool.h"
#include "tools/tessaly-reg/RegEncoding.h"

namespace tessaly::tests {
namespace {

const std::string kSettings = regFile(
    "[HKEY_LOCAL_MACHINE\\Software\\A]\n\"m\"=dword:1\n"
    "[HKEY_CURRENT_USER\\Software\\A]\n@=\"u\"\n\"gone\"=-\n"
    "[-HKEY_CURRENT_USER\\Software\\Old]\n");

std::string fileOf(const Tool& tool) { return (tool.folder.path() / "file.reg").string(); }

TEST(RegImport, BringsAFileIntoBothStores) {
  Tool tool;
  EXPECT_EQ(tool.import(kSettings), 0);
  EXPECT_EQ(tool.out,
            "Imported " + fileOf(tool) + ": 2 values set in 2 keys, 1 value deleted, 1 key deleted.\n");
  EXPECT_EQ(
      tool.exported("HKLM\\Software"),
      regFile(
          "[HKEY_LOCAL_MACHINE\\Software]\n\n[HKEY_LOCAL_MACHINE\\Software\\A]\n\"m\"=dword:00000001\n\n"));
  EXPECT_EQ(tool.exported("HKCU"), regFile("[HKEY_CURRENT_USER]\n\n[HKEY_CURRENT_USER\\Software]\n\n"
                                           "[HKEY_CURRENT_USER\\Software\\A]\n@=\"u\"\n\n"));
}

TEST(RegImport, GoesByTheFilesOrder) {
  Tool tool;
  tool.import(regFile("[HKCU\\A\\B]\n\"x\"=\"1\"\n[HKCU\\A]\n\"y\"=\"1\"\n"));
  EXPECT_EQ(
      tool.import(regFile("[HKCU\\A]\n\"y\"=\"2\"\n\"Y\"=-\n[-HKCU\\a\\B]\n[HKCU\\A\\B]\n\"z\"=\"3\"\n")), 0);
  EXPECT_EQ(tool.exported("HKCU\\A"),
            regFile("[HKEY_CURRENT_USER\\A]\n\n[HKEY_CURRENT_USER\\A\\B]\n\"z\"=\"3\"\n\n"));
}

TEST(RegImport, TakesWhatIsToBeDeletedAndIsNotThere) {
  Tool tool;
  EXPECT_EQ(tool.import(regFile("[-HKCU\\None\\Deep]\n[HKCU\\A]\n\"none\"=-\n")), 0);
  EXPECT_EQ(tool.exported("HKCU"), regFile("[HKEY_CURRENT_USER]\n\n[HKEY_CURRENT_USER\\A]\n\n"));
}

TEST(RegImport, ReachesTheStoresByAllPredefinedKeys) {
  Tool tool;
  EXPECT_EQ(tool.import(regFile("[HKEY_CLASSES_ROOT\\.x]\n@=\"x\"\n[HKEY_CURRENT_CONFIG\\C]\n[HKEY_USERS]\n"
                                "[HKEY_USERS\\S-1-22-1-1000\\U]\n")),
            0);
  EXPECT_EQ(tool.run({"query", "HKLM\\Software\\Classes\\.x", "/ve"}), 0);
  EXPECT_EQ(tool.run({"query", "HKLM\\System\\CurrentControlSet\\Hardware Profiles\\Current\\C"}), 0);
  EXPECT_EQ(tool.run({"query", "HKCU\\U"}), 0);
}

TEST(RegImport, OnlySaysWhatItWouldDoInAPreview) {
  Tool tool;
  EXPECT_EQ(tool.import(kSettings, {"/n"}), 0);
  EXPECT_EQ(
      tool.out,
      "line 3: in HKEY_LOCAL_MACHINE\\Software\\A\n"
      "line 4:     set m    REG_DWORD    0x1\n"
      "line 5: in HKEY_CURRENT_USER\\Software\\A\n"
      "line 6:     set (Default)    REG_SZ    u\n"
      "line 7:     delete gone\n"
      "line 8: delete HKEY_CURRENT_USER\\Software\\Old with all below it\n"
      "Nothing was changed. An import would give: 2 values set in 2 keys, 1 value deleted, 1 key deleted.\n");
  EXPECT_EQ(tool.machine->revision(), Tool().machine->revision());
  EXPECT_EQ(tool.user->revision(), Tool().user->revision());
}

void expectRefusal(Tool& tool, const std::vector<std::string>& more) {
  EXPECT_EQ(tool.import(kSettings + "x\n[HKCU\\" + std::string(256, 'k') + "]\ny\n", more), 1);
  EXPECT_EQ(tool.out, "");
  const std::string file = fileOf(tool);
  const std::string why = R"(expected a key in brackets, a value ("name"=… or @=…) or a comment behind ;)";
  EXPECT_EQ(tool.errors, file + ":9: " + why + "\n" + file +
                             ":10: a name of the key is over 255 characters long\n" + file + ":11: " + why +
                             "\ntessaly-reg: can't import " + file + ": 3 errors; nothing was changed\n");
  EXPECT_EQ(tool.machine->revision(), Tool().machine->revision());
  EXPECT_EQ(tool.user->revision(), Tool().user->revision());
}

TEST(RegImport, ChangesNothingWhereTheFileHasAnError) {
  Tool tool;
  expectRefusal(tool, {});
  expectRefusal(tool, {"/n"});
}

TEST(RegImport, RefusesWhatNoStoreTakes) {
  std::string deep;
  for (int i = 0; i < 513; ++i) deep += "\\k";
  std::string large = "\"x\"=hex:00";
  for (int i = 0; i < (1 << 20); ++i) large += ",00";
  const std::pair<std::string, std::string> rows[] = {
      {"[HKCU" + deep + "]\n", "3: the key lies below more than 512 others"},
      {"[HKCR" + deep.substr(0, 1022) + "]\n", "3: the key lies below more than 512 others"},
      {"[HKCU\\A]\n\"" + std::string(16384, 'n') + "\"=\"\"\n",
       "4: the name of the value is over 16383 characters long"},
      {"[HKCU\\A]\n" + large + "\n", "4: the data is larger than 1 MiB"},
      {"[HKCU\\A]\n\"x\"=\"" + std::string(1 << 19, 'x') + "\"\n", "4: the data is larger than 1 MiB"},
      {"[HKU]\n\"x\"=\"\"\n", "4: HKEY_USERS itself holds no values"},
      {"[-HKU\\S-1-22-1-1000]\n", "3: this key itself can't be deleted"},
      {"[HKU\\.DEFAULT\\A]\n\"x\"=\"\"\n",
       "3: HKEY_USERS shows the keys of the user who imports and no others, under \"S-1-22-1-1000\""}};
  for (const auto& [content, error] : rows) {
    Tool tool;
    EXPECT_EQ(tool.import(regFile(content)), 1);
    EXPECT_EQ(tool.errors, fileOf(tool) + ':' + error + "\ntessaly-reg: can't import " + fileOf(tool) +
                               ": 1 error; nothing was changed\n");
  }
}

TEST(RegImport, TellsNoMoreThanTwentyErrors) {
  Tool tool;
  std::string many;
  for (int i = 0; i < 30; ++i) many += "x\n";
  EXPECT_EQ(tool.import(regFile(many)), 1);
  EXPECT_NE(tool.errors.find(":22: "), std::string::npos);
  EXPECT_EQ(tool.errors.find(":23: "), std::string::npos);
  EXPECT_NE(tool.errors.find(": the first 20 errors stand above; nothing was changed\n"), std::string::npos);
}

TEST(RegImport, ChangesNeitherStoreWhereOneMayNotBeWritten) {
  Tool tool;
  tool.user->setWritable(false);
  EXPECT_EQ(tool.import(kSettings), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't import " + fileOf(tool) +
                ": permission denied\nThe file is /user.hive; it or its folder is not yours to use.\n");
  EXPECT_EQ(tool.machine->revision(), Tool().machine->revision());
  EXPECT_EQ(tool.import(regFile("[HKLM\\A]\n")), 0)
      << "the other store does not matter where it is not meant";
}

TEST(RegImport, SaysWhyAFileCantBeRead) {
  Tool tool;
  EXPECT_EQ(tool.run({"import", "/nowhere/x.reg"}), 1);
  EXPECT_EQ(tool.errors, "tessaly-reg: can't read /nowhere/x.reg: No such file or directory\n");
  EXPECT_EQ(tool.run({"import", "/"}), 1);
  EXPECT_EQ(tool.errors, "tessaly-reg: can't read /: Is a directory\n");
  EXPECT_EQ(tool.run({"import", "/dev/zero"}), 1);
  EXPECT_EQ(tool.errors, "tessaly-reg: can't read /dev/zero: it is larger than 16 MiB\n");
}

/// A file in UTF-16.
std::string inUtf16(std::u16string_view content) {
  return reg::encodeRegFile(u"Windows Registry Editor Version 5.00\n\n" + String(content));
}

// Such names were taken, and no store has them as they are.
TEST(RegImport, RefusesHalfCharactersInNames) {
  const std::pair<String, std::string> rows[] = {
      {u"[HKCU\\A]\n[HKCU\\A\\\xD800]\n", "4: a name of the key holds half a character"},
      {u"[HKCU\\\xDE00\xD83D\\A]\n", "3: a name of the key holds half a character"},
      {u"[HKCU\\A]\n\"x\"=\"\"\n\"\xDFFF\"=\"\"\n", "5: the name of the value holds half a character"},
      {u"[HKCU\\A]\n\"a\xD800\"=-\n", "4: the name of the value holds half a character"}};
  for (const auto& [content, error] : rows) {
    Tool tool;
    EXPECT_EQ(tool.import(inUtf16(content)), 1);
    EXPECT_EQ(tool.errors, fileOf(tool) + ':' + error + "\ntessaly-reg: can't import " + fileOf(tool) +
                               ": 1 error; nothing was changed\n");
    EXPECT_EQ(tool.user->revision(), Tool().user->revision());
  }
  Tool tool;
  EXPECT_EQ(tool.import(inUtf16(u"[HKCU\\\xD83D\xDE00]\n\"\xD83D\xDE00\"=\"\xD800\"\n")), 0) << tool.errors;
}

// A preview promised what the import then refused.
TEST(RegImport, TellsInAPreviewThatAStoreCantBeRead) {
  Tool tool;
  tool.userFile = toUtf8(tool.folder.write(u"user.hive", std::string(5000, '!')));
  tool.userInForce = platform::hiveAt(tool.userFile, platform::HiveReaders::Owner);
  for (const std::vector<std::string>& more : {std::vector<std::string>{"/n"}, {}}) {
    EXPECT_EQ(tool.import(kSettings, more), 1);
    EXPECT_TRUE(tool.errors.starts_with("tessaly-reg: can't import " + fileOf(tool) +
                                        ": the file is not one that holds settings, or of a later version\n"
                                        "The file is " +
                                        tool.userFile.string() + ". "))
        << tool.errors;
  }
  EXPECT_EQ(tool.import(regFile("[HKLM\\A]\n"), {"/n"}), 0)
      << "the other store does not matter where it is not meant";
}

/// A store whose changes fail at the end.
class FailingKeys final : public platform::KeyStore {
 public:
  explicit FailingKeys(Long result) : result_(result) {}

  std::uint64_t revision() override { return 1; }
  bool isWritable() override { return true; }
  Long find(Id from, platform::KeyPath path, Id& key) override { return keys.find(from, path, key); }
  Long create(Id from, platform::KeyPath path, Id& key) override { return keys.create(from, path, key); }
  Long remove(Id from, platform::KeyPath path) override { return keys.remove(from, path); }
  Long subkeys(Id key, std::vector<String>& names) override { return keys.subkeys(key, names); }
  Long value(Id key, std::u16string_view name, platform::KeyValue& value) override {
    return keys.value(key, name, value);
  }
  Long setValue(Id key, std::u16string_view name, const platform::KeyValue& value) override {
    return keys.setValue(key, name, value);
  }
  Long removeValue(Id key, std::u16string_view name) override { return keys.removeValue(key, name); }
  Long values(Id key, std::vector<platform::NamedValue>& values) override { return keys.values(key, values); }

  Long transact(const std::function<Long()>& changes) override {
    return keys.transact([&] {
      const Long result = changes();
      return result != 0 ? result : result_;
    });
  }

  platform::MemoryKeys keys;

 private:
  Long result_;
};

TEST(RegImport, TakesBackTheMachinesPartWhereTheUsersFails) {
  Tool tool;
  tool.userInForce = std::make_shared<FailingKeys>(platform::registry_result::kDiskFull);
  EXPECT_EQ(tool.import(kSettings), 1);
  EXPECT_EQ(tool.errors, "tessaly-reg: can't import " + fileOf(tool) +
                             ": the disk is full\nThe file is /user.hive.\nNothing was changed.\n");
  EXPECT_EQ(tool.exported("HKLM"), regFile("[HKEY_LOCAL_MACHINE]\n\n"));
  EXPECT_EQ(tool.exported("HKCU"), regFile("[HKEY_CURRENT_USER]\n\n"));
}

TEST(RegImport, SaysWhatStaysWhereTheMachinesPartFailsAtTheVeryEnd) {
  Tool tool;
  tool.machineInForce = std::make_shared<FailingKeys>(platform::registry_result::kIoFailed);
  EXPECT_EQ(tool.import(kSettings), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't import " + fileOf(tool) +
                ": the file that holds the settings can't be read or written\n"
                "The file is /machine.hive.\nThe user's keys are imported, the machine's are as before.\n");
  EXPECT_EQ(tool.exported("HKLM"), regFile("[HKEY_LOCAL_MACHINE]\n\n"));
}

TEST(RegMessages, NameTheFileThatOthersAreWriting) {
  Tool tool;
  tool.userInForce = std::make_shared<FailingKeys>(platform::registry_result::kBusy);
  EXPECT_EQ(tool.run({"add", "HKCU\\A"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't change HKEY_CURRENT_USER\\A: other programs are writing and gave no turn\n"
            "The file is /user.hive; try again when they have written.\n");
}

// A file that can't be made was told as a key that is not there.
TEST(RegMessages, NameTheFileThatCantBeMade) {
  Tool tool;
  tool.userInForce = std::make_shared<FailingKeys>(platform::registry_result::kNotFound);
  const std::string why =
      ": the file that holds the settings can't be read or written\nThe file is /user.hive.\n";
  EXPECT_EQ(tool.run({"add", "HKCU\\A"}), 1);
  EXPECT_EQ(tool.errors, "tessaly-reg: can't change HKEY_CURRENT_USER\\A" + why);
  EXPECT_EQ(tool.import(regFile("[HKCU\\A]\n")), 1);
  EXPECT_EQ(tool.errors, "tessaly-reg: can't import " + fileOf(tool) + why + "Nothing was changed.\n");
}

TEST(RegMessages, TellWhatHelpsWithADamagedFile) {
  Tool tool;
  tool.userInForce = std::make_shared<FailingKeys>(platform::registry_result::kCorrupt);
  EXPECT_EQ(tool.run({"add", "HKCU\\A"}), 1);
  EXPECT_EQ(tool.errors,
            "tessaly-reg: can't change HKEY_CURRENT_USER\\A: the file that holds the settings is damaged\n"
            "The file is /user.hive. \"tessaly-reg repair\" saves what can be read of it, with /n it only "
            "looks.\n");
}

}  // namespace
}  // namespace tessaly::tests
