// What tests rely on when they start a program.

#include "tests/support/Process.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tessaly::tests {
namespace {

using Words = std::vector<std::string>;

Words restOf(Process& process) {
  Words lines;
  while (const auto line = process.readLine()) lines.push_back(*line);
  return lines;
}

TEST(ProcessTest, ArgumentsAndVariablesArriveAsGiven) {
  const Words words = {"a b", "", "\"", "c\\\"d", "e\\", "f g\\\\", "'$x %PATH% *", "\\\\\"\""};
  Words arguments = {"echo"};
  arguments.insert(arguments.end(), words.begin(), words.end());
  Process process("tests-peer", arguments, {{{"TESSALY_TESTS_VARIABLE", "so = \"so\""}}, false});
  for (const std::string& word : words) EXPECT_EQ(process.readLine(), word);
  EXPECT_EQ(process.readLine(), "so = \"so\"");
}

TEST(ProcessTest, ItsOutputIsReadByLinesToItsEnd) {
  Process process("tests-peer", {"echo"});
  EXPECT_EQ(process.readLine(), "no variable");
  EXPECT_TRUE(process.write("one\n\ntwo\n"));
  EXPECT_EQ(process.readLine(), "one");
  EXPECT_EQ(process.readLine(), "");
  EXPECT_EQ(process.readLine(), "two");
  process.closeInput();
  EXPECT_EQ(process.readLine(), "an end without a line's");
  EXPECT_EQ(process.readLine(), std::nullopt);
  EXPECT_EQ(process.wait(), 7);
  EXPECT_EQ(process.wait(), 7);
}

TEST(ProcessTest, ItsErrorsCanJoinItsOutput) {
  Process process("tests-peer", {"echo"}, {{}, true});
  process.closeInput();
  EXPECT_EQ(restOf(process), (Words{"a fault", "no variable", "an end without a line's"}));
}

TEST(ProcessTest, AProgramThatIsKilledEndsAtOnce) {
  Process process("tests-peer", {"echo"});
  EXPECT_TRUE(process.readLine());
  process.kill();
  EXPECT_EQ(process.readLine(), std::nullopt);
  EXPECT_EQ(process.wait(), Process::kKilled);
  EXPECT_FALSE(process.write("one\n"));
}

TEST(ProcessTest, AProgramCanBeAskedToEnd) {
  Process process("tests-peer");
  EXPECT_TRUE(process.readLine());
  ASSERT_TRUE(process.terminate());
  EXPECT_EQ(process.readLine(), std::nullopt);
  EXPECT_NE(process.wait(), Process::kKilled);
}

TEST(ProcessTest, AProgramThatIsHeldGoesOnWhenItIsResumed) {
  Process process("tests-peer", {"echo"});
  EXPECT_TRUE(process.readLine());
  process.suspend();
  EXPECT_TRUE(process.write("one\n"));
  process.resume();
  EXPECT_EQ(process.readLine(), "one");
}

TEST(ProcessTest, AProgramThatIsHeldCanBeKilled) {
  Process process("tests-peer", {"echo"});
  process.suspend();
  process.kill();
  EXPECT_EQ(process.wait(), Process::kKilled);
}

TEST(ProcessTest, ItsInputEndsThoughOtherProgramsHaveBegunSince) {
  Process process("tests-peer", {"echo"});
  const Process other("tests-peer", {"echo"});
  EXPECT_TRUE(process.readLine());
  process.closeInput();
  EXPECT_EQ(process.wait(), 7) << "its input was still open elsewhere";
}

TEST(ProcessTest, WhatCantBeStartedIsAnError) {
  EXPECT_THROW(Process("tests-no-such-program"), std::runtime_error);
}

}  // namespace
}  // namespace tessaly::tests
