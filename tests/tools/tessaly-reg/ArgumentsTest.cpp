#include "tools/tessaly-reg/Arguments.h"

#include <gtest/gtest.h>

#include "tests/tools/tessaly-reg/Tool.h"

namespace tessaly::reg {
namespace {

using tests::Tool;

struct RefusalRow {
  std::vector<std::string> words;
  std::string message;
};

TEST(RegArguments, AreRefusedWithTheReason) {
  const RefusalRow rows[] = {
      {{}, "a command is missing: query, add, delete, export, import or repair"},
      {{"frob"}, "there is no command \"frob\""},
      {{"query"}, "query needs a key, such as 'HKCU\\Software'"},
      {{"query", "Software"}, "\"Software\" is no key; keys begin with HKLM, HKCU, HKCR, HKU or HKCC"},
      {{"query", "HKCUSoftware"},
       "\"HKCUSoftware\" is no key. Put the key in quotes, or the shell takes the backslashes: "
       "'HKCU\\Software'"},
      {{"query", "HKXX\\Software"},
       "\"HKXX\\Software\" is no key; keys begin with HKLM, HKCU, HKCR, HKU or HKCC"},
      {{"query", "HKCU\\\xFF"}, "the name of the key is no UTF-8"},
      {{"query", "HKCU", "HKLM"}, "there is a word too many, \"HKLM\""},
      {{"query", "HKCU", "/v"}, "a word is missing behind /v"},
      {{"query", "HKCU", "/v", "a", "/V", "b"}, "/v is given twice"},
      {{"query", "HKCU", "/v", "a", "/ve"}, "only one of /v, /ve and /va can be given"},
      {{"query", "HKCU", "/v", "\xFF"}, "the word behind /v is no UTF-8"},
      {{"query", "HKCU", "/t", "REG_TEXT"},
       "there is no type \"REG_TEXT\"; types are REG_SZ, REG_DWORD and so on"},
      {{"query", "HKCU", "/t", "4294967296"},
       "there is no type \"4294967296\"; types are REG_SZ, REG_DWORD and so on"},
      {{"query", "HKCU", "/y"}, "query has no option \"/y\""},
      {{"query", "HKCU", "--frob"}, "query has no option \"--frob\""},
      {{"query", "HKCU", "/frob"}, "query has no option \"/frob\""},
      {{"delete", "HKCU\\A", "/va", "/ve"}, "only one of /v, /ve and /va can be given"},
      {{"add", "HKCU\\A", "/s", ";"}, "/s is for the texts of REG_MULTI_SZ: give /t REG_MULTI_SZ too"},
      {{"add", "HKCU\\A", "/t", "REG_MULTI_SZ", "/s", ""}, "the separator behind /s is empty"},
      {{"export", "HKCU"}, "export needs the name of a file"},
      {{"export", "HKCU", ""}, "the name of the file is empty"},
      {{"export", "HKCU", "a.reg", "b.reg"}, "there is a word too many, \"b.reg\""},
      {{"import"}, "import needs the name of a file"},
      {{"import", "a.reg", "/y"}, "import has no option \"/y\""},
      {{"--user"}, "a word is missing behind --user"},
      {{"--user", "a", "--user=b", "query", "HKCU"}, "--user is given twice"},
      {{"--machine=", "query", "HKCU"}, "the name of the file behind --machine is empty"},
      {{"--version", "query"}, "--version stands alone"},
      {{"--version", "foo"}, "there is no command \"foo\""},
      {{"query", "HKCU", "/f", std::string(1001, 'x')}, "the pattern behind /f is over 1000 characters long"},
      {{"\x1b[2J"}, "there is no command \"\\u001B[2J\""},
  };
  for (const RefusalRow& row : rows) {
    Tool tool;
    EXPECT_EQ(tool.run(row.words), 2);
    EXPECT_EQ(tool.errors.substr(0, tool.errors.find('\n')), "tessaly-reg: " + row.message);
    EXPECT_EQ(tool.out, "");
    EXPECT_EQ(tool.openings, 0);
  }
}

TEST(RegArguments, ShowHowACommandIsUsedWhereItIsWrong) {
  Tool tool;
  tool.run({"import"});
  EXPECT_EQ(tool.errors,
            "tessaly-reg: import needs the name of a file\n"
            "Usage: tessaly-reg import FILE [/n]\n"
            "\"tessaly-reg --help\" tells more.\n");
}

TEST(RegArguments, TakeOptionsInAnyCaseAndWithEitherSign) {
  Arguments arguments;
  EXPECT_EQ(parseArguments(
                {"--user", "u.hive", "Query", "-S", "HKlm\\X", "--machine=m.hive", "/F", "-f", "-t", "4"},
                arguments),
            "");
  EXPECT_EQ(arguments.command, Command::Query);
  EXPECT_EQ(arguments.userFile, "u.hive");
  EXPECT_EQ(arguments.machineFile, "m.hive");
  EXPECT_EQ(arguments.key.root, platform::kLocalMachine);
  EXPECT_EQ(arguments.key.path, u"X");
  EXPECT_TRUE(arguments.subkeysToo);
  EXPECT_EQ(arguments.pattern, u"-f");
  EXPECT_EQ(arguments.type, platform::kNumber);
}

TEST(RegArguments, TakeFilesWhosePathsBeginWithASlashOrAreNoUtf8) {
  Arguments arguments;
  EXPECT_EQ(parseArguments({"export", "HKCU", "/tmp/x.reg", "/y"}, arguments), "");
  EXPECT_EQ(arguments.file, "/tmp/x.reg");
  EXPECT_TRUE(arguments.isForced);
  Arguments bytes;
  EXPECT_EQ(parseArguments({"import", "/n", "\xFF.reg"}, bytes), "");
  EXPECT_EQ(bytes.file, "\xFF.reg");
  EXPECT_TRUE(bytes.isPreview);
}

TEST(RegArguments, CountDoubledBackslashesAsOne) {
  Arguments arguments;
  EXPECT_EQ(parseArguments({"query", "HKCU\\\\Software"}, arguments), "");
  EXPECT_EQ(arguments.key.path, u"Software");
}

TEST(RegHelp, TellsOfEachCommandAndOfTheExitCodes) {
  for (const char* word : {"--help", "-h", "/?", "-?"}) {
    Tool tool;
    EXPECT_EQ(tool.run({word}), 0);
    for (const char* part :
         {"query  KEY", "add    KEY", "delete KEY", "export KEY", "import FILE", "repair [FILE]",
          "--user FILE", "--machine FILE", "0 done, 1 failed or nothing found, 2 the command line is wrong"})
      EXPECT_NE(tool.out.find(part), std::string::npos) << part;
    EXPECT_EQ(tool.errors, "");
    EXPECT_EQ(tool.openings, 0);
  }
  for (const char* command : {"query", "add", "delete", "export", "import", "repair"}) {
    Tool tool;
    EXPECT_EQ(tool.run({command, "/?"}), 0);
    EXPECT_TRUE(tool.out.starts_with(std::string("tessaly-reg ") + command + ' ')) << tool.out;
  }
}

TEST(RegHelp, FitsATerminal) {
  for (const std::vector<std::string>& words : std::vector<std::vector<std::string>>{{"--help"},
                                                                                     {"query", "/?"},
                                                                                     {"add", "/?"},
                                                                                     {"delete", "/?"},
                                                                                     {"export", "/?"},
                                                                                     {"import", "/?"},
                                                                                     {"repair", "/?"}}) {
    Tool tool;
    tool.run(words);
    for (std::size_t begin = 0; begin < tool.out.size();) {
      const std::size_t end = tool.out.find('\n', begin);
      EXPECT_LE(end - begin, 80U) << tool.out.substr(begin, end - begin);
      begin = end + 1;
    }
  }
}

TEST(RegArguments, MeanTwoFiles) {
  Tool tool;
  const std::string file = (tool.folder.path() / "x.hive").string();
  for (const std::string& other : {file, (tool.folder.path() / "." / "x.hive").string()}) {
    tool.machineFile = file;
    tool.userFile = other;
    EXPECT_EQ(tool.run({"query", "HKCU"}), 2) << other;
    EXPECT_TRUE(tool.errors.starts_with("tessaly-reg: the user's file and the machine's are one\n"));
  }
  tool.folder.write(u"x.hive", "");
  tool.userFile = tool.folder.path() / "link.hive";
  std::filesystem::create_hard_link(file, tool.userFile);
  EXPECT_EQ(tool.run({"query", "HKCU"}), 2);
  std::filesystem::remove(tool.userFile);
  EXPECT_EQ(tool.run({"query", "HKCU"}), 0);
}

TEST(RegHelp, TellsTheVersion) {
  Tool tool;
  EXPECT_EQ(tool.run({"--version"}), 0);
  EXPECT_TRUE(tool.out.starts_with("tessaly-reg 0.")) << tool.out;
}

}  // namespace
}  // namespace tessaly::reg
