#include "tools/zplogger/Arguments.h"

#include <gtest/gtest.h>

#include <sstream>

#include "tools/zplogger/Run.h"

namespace tessaly::zplogger {
namespace {

struct Outcome {
  int code = 0;
  std::string out;
  std::string errors;
  std::vector<Arguments> served;
};

Outcome runWith(const std::vector<std::string>& words) {
  Outcome outcome;
  std::ostringstream out;
  std::ostringstream errors;
  const auto serve = [&](const Arguments& arguments) {
    outcome.served.push_back(arguments);
    return 7;
  };
  outcome.code = run(words, {out, errors, serve});
  outcome.out = out.str();
  outcome.errors = errors.str();
  return outcome;
}

TEST(ZpArguments, AreRefusedWithTheReason) {
  const std::pair<std::vector<std::string>, std::string> rows[] = {
      {{"--level"}, "a word is missing behind --level"},
      {{"--level", "256"}, "\"256\" is no level; levels are 0 to 255"},
      {{"--level", "-1"}, "\"-1\" is no level; levels are 0 to 255"},
      {{"--level="}, "\"\" is no level; levels are 0 to 255"},
      {{"--level", "2x"}, "\"2x\" is no level; levels are 0 to 255"},
      {{"--level", "99999999999999999999"}, "\"99999999999999999999\" is no level; levels are 0 to 255"},
      {{"--text", "\xFF"}, "the word behind --text is no UTF-8"},
      {{"--max-size", "0"}, "\"0\" is no size; sizes are such as 500K, 1M or 2G"},
      {{"--max-size", "K"}, "\"K\" is no size; sizes are such as 500K, 1M or 2G"},
      {{"--max-size", "1T"}, "\"1T\" is no size; sizes are such as 500K, 1M or 2G"},
      {{"--max-size", "9999999999999G"}, "\"9999999999999G\" is no size; sizes are such as 500K, 1M or 2G"},
      {{"--color", "blue"}, "--color is auto, always or never, not \"blue\""},
      {{"--frob"}, "there is no option \"--frob\""},
      {{"file"}, "there is a word too many, \"file\""},
      {{"--version", "--no-log"}, "--version stands alone"},
      {{"\x1b[2J"}, "there is a word too many, \"\\u001B[2J\""},
  };
  for (const auto& [words, message] : rows) {
    const Outcome outcome = runWith(words);
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.errors, "zplogger: " + message + "\n\"zplogger --help\" tells more.\n");
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(outcome.served.empty());
  }
}

TEST(ZpArguments, HaveDefaults) {
  const Outcome outcome = runWith({});
  EXPECT_EQ(outcome.code, 7);
  ASSERT_EQ(outcome.served.size(), 1U);
  const Arguments& arguments = outcome.served[0];
  EXPECT_EQ(arguments.level, 0);
  EXPECT_EQ(arguments.text, u"");
  EXPECT_EQ(arguments.maxSize, 1048576U);
  EXPECT_TRUE(arguments.writesLogs);
  EXPECT_EQ(arguments.colour, ColourChoice::Automatic);
}

TEST(ZpArguments, AreTakenWithABlankOrAnEqualsSign) {
  const Outcome outcome = runWith(
      {"--level", "255", "--text=ä b", "--max-size", "3k", "--no-log", "--color=never", "--color", "always"});
  ASSERT_EQ(outcome.served.size(), 1U);
  const Arguments& arguments = outcome.served[0];
  EXPECT_EQ(arguments.level, 255);
  EXPECT_EQ(arguments.text, u"ä b");
  EXPECT_EQ(arguments.maxSize, 3072U);
  EXPECT_FALSE(arguments.writesLogs);
  EXPECT_EQ(arguments.colour, ColourChoice::Always);
}

TEST(ZpArguments, HaveSizesInBytesAndMore) {
  const std::pair<std::string, std::uint64_t> rows[] = {
      {"1", 1}, {"500K", 512000}, {"2M", 2097152}, {"1G", 1073741824}, {"4611686018427387904", 1ULL << 62}};
  for (const auto& [word, size] : rows) {
    Arguments arguments;
    EXPECT_EQ(parseArguments({"--max-size", word}, arguments), "");
    EXPECT_EQ(arguments.maxSize, size) << word;
  }
}

TEST(ZpHelp, TellsOfOptionsKeysAndExitCodesAndFitsATerminal) {
  for (const char* word : {"--help", "-h", "/?", "-?"}) {
    const Outcome outcome = runWith({word});
    EXPECT_EQ(outcome.code, 0);
    for (const char* part : {"--level N", "--text TEXT", "--max-size SIZE", "--no-log", "--color WHEN",
                             "space ", "0 ended as asked, 1 failed, 2 the command line is wrong"})
      EXPECT_NE(outcome.out.find(part), std::string::npos) << part;
    std::istringstream lines(outcome.out);
    for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 80U) << line;
    EXPECT_TRUE(outcome.served.empty());
  }
}

TEST(ZpHelp, TellsTheVersion) {
  const Outcome outcome = runWith({"--version"});
  EXPECT_EQ(outcome.code, 0);
  EXPECT_TRUE(outcome.out.starts_with("zplogger 0.")) << outcome.out;
}

}  // namespace
}  // namespace tessaly::zplogger
