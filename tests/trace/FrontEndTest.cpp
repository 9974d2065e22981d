// The switch in the settings, and the one call for a line.

#include <gtest/gtest.h>

#include <utility>

#include "tessaly/platform/fake/Registry.h"
#include "tessaly/settings/CRegistry.h"
#include "tessaly/trace/Trace.h"
#include "tests/support/Errors.h"
#include "tests/trace/LoggerOfTests.h"
#include "tests/trace/ZPLoggerClientPeer.h"

namespace tessaly::tests {
namespace {

using namespace std::string_literals;

constexpr Long kMachine = 0;

class FrontEndTest : public testing::Test {
 protected:
  FrontEndTest() {
    settings_.root(kMachine);
    settings_.rootPath(u"SOFTWARE\\BRAMWELD SYSTEM\\Tessaly");
  }
  ~FrontEndTest() override { delete std::exchange(logger, nullptr); }

  void switchTo(Long value) { settings_.SetLong(u"Logger", value); }

  void start() {
    switchTo(1);
    StartLogger();
  }

  platform::fake::Registry registry_;
  platform::Override registryInForce_{registry_};
  Machine machine_;
  CRegistry settings_;
};

/// A text as it stands in a record.
std::string stored(const std::string& text) {
  return std::string(1, static_cast<char>(text.size())) + "\0\0\0"s + text;
}

std::string joined(const std::string& folder, const std::string& name) {
  return folder + (platform::core().files->separator() == u'/' ? '/' : '\\') + name;
}

TEST_F(FrontEndTest, WithoutTheSwitchThereIsNoClientAndNoBlock) {
  StartLogger();
  EXPECT_EQ(logger, nullptr);
  switchTo(0);
  StartLogger();
  EXPECT_EQ(logger, nullptr);
  Trace(u"nobody hears it");
  EXPECT_TRUE(machine_.memory.calls().empty());
  EXPECT_TRUE(machine_.messages.calls().empty());
}

TEST_F(FrontEndTest, AnyNumberButZeroSwitchesItOn) {
  for (const Long value : {1, 2, -1, 256, 0x10000, static_cast<Long>(0x80000000)}) {
    switchTo(value);
    StartLogger();
    EXPECT_NE(logger, nullptr) << value;
    delete std::exchange(logger, nullptr);
  }
}

TEST_F(FrontEndTest, ASwitchThatIsNoNumberIsReadAsOneIfItFits) {
  settings_.SetString(u"Logger", u"far too long for a number");
  StartLogger();
  EXPECT_EQ(logger, nullptr);
  settings_.SetString(u"Logger", u"1");
  StartLogger();
  EXPECT_NE(logger, nullptr);
}

TEST_F(FrontEndTest, TheSwitchIsTheMachinesAndNobodyElses) {
  CRegistry users;
  users.root(2);
  users.rootPath(settings_.rootPath());
  users.SetLong(u"Logger", 1);
  StartLogger();
  EXPECT_EQ(logger, nullptr);
}

TEST_F(FrontEndTest, TheSwitchIsLookedAtAgainWhileItIsOff) {
  StartLogger();
  EXPECT_EQ(logger, nullptr);
  start();
  EXPECT_NE(logger, nullptr);
}

TEST_F(FrontEndTest, TheClientTellsItsNameAndTwoFilesInTheFolder) {
  NotingLogger receiver(machine_);
  settings_.SetString(u"Path", u"/var/log");
  start();
  const std::string record = stored("TessalySupport") + stored(joined("/var/log", "TessalySupport.log")) +
                             stored(joined("/var/log", "TessalySupport.bak"));
  EXPECT_EQ(receiver.order(), "Add");
  EXPECT_EQ(receiver.lastBlock(record.size()), record);
}

TEST_F(FrontEndTest, AFolderIsUsedAsItStands) {
  NotingLogger receiver(machine_);
  const std::string folder = joined("/var/log", "");
  settings_.SetString(u"Path", String(folder.begin(), folder.end()));
  start();
  const std::string record = stored("TessalySupport") + stored(joined(folder, "TessalySupport.log"));
  EXPECT_EQ(receiver.lastBlock(record.size()), record);
}

TEST_F(FrontEndTest, WithoutAFolderTheFilesAreTheRoots) {
  NotingLogger receiver(machine_);
  start();
  const std::string record = stored("TessalySupport") + stored(joined("", "TessalySupport.log"));
  EXPECT_EQ(receiver.lastBlock(record.size()), record);
}

TEST_F(FrontEndTest, ASecondStartMakesNoSecondClient) {
  NotingLogger receiver(machine_);
  start();
  const ZPLoggerClient* const first = logger;
  const std::size_t reads = registry_.calls().size();
  StartLogger();
  EXPECT_EQ(logger, first);
  EXPECT_EQ(registry_.calls().size(), reads);
  EXPECT_EQ(receiver.order(), "Add");
  EXPECT_EQ(machine_.count("CreateFileMappingA"), 1U);
}

TEST_F(FrontEndTest, SwitchingOffDoesNotStopAClientThatIsThere) {
  NotingLogger receiver(machine_);
  start();
  switchTo(0);
  StartLogger();
  Trace(u"still heard");
  EXPECT_EQ(receiver.order(), "Add Trace");
}

TEST_F(FrontEndTest, ALineByDefaultIsBlackOnWhiteOfLevelNought) {
  NotingLogger receiver(machine_);
  start();
  Trace(u"Start");
  EXPECT_EQ(receiver.lastBlock(19), "\0\0\0\0\xFF\xFF\xFF\0\x01\0\x05\0\0\0Start"s);
}

TEST_F(FrontEndTest, TheArgumentsStandInAnotherOrderThanThoseOfSendTrace) {
  NotingLogger receiver(machine_);
  start();
  Trace(u"x", 2, 0x000080, 0xFEDCBA, False);
  EXPECT_EQ(receiver.lastBlock(15), "\x80\0\0\0\xBA\xDC\xFE\0\0\x02\x01\0\0\0x"s);
}

TEST_F(FrontEndTest, ATextMayBeALiteralAStringOrAView) {
  NotingLogger receiver(machine_);
  start();
  const String text = u"text";
  Trace(u"text");
  Trace(text);
  Trace(std::u16string_view(text));
  Trace(text.c_str());
  ASSERT_EQ(receiver.order(), "Add Trace Trace Trace Trace");
  for (std::size_t i = 1; i < 5; ++i) EXPECT_EQ(receiver.notes()[i].block.substr(10, 8), stored("text"));
}

TEST_F(FrontEndTest, WithoutALoggerNoLineSearchesForOne) {
  start();
  const std::size_t calls = machine_.messages.calls().size();
  for (int i = 0; i < 5; ++i) Trace(u"lost");
  EXPECT_EQ(machine_.messages.calls().size(), calls);
  NotingLogger late(machine_);
  Trace(u"lost too");
  EXPECT_EQ(late.order(), "");
}

TEST_F(FrontEndTest, TheLineThatFindsTheLoggerGoneGoesToItsSuccessor) {
  auto first = std::make_unique<NotingLogger>(machine_);
  start();
  first.reset();
  NotingLogger successor(machine_);
  Trace(u"heard");
  EXPECT_EQ(successor.order(), "Add Trace");
}

TEST_F(FrontEndTest, AfterALoggerWithoutASuccessorTheProcessStaysSilent) {
  auto first = std::make_unique<NotingLogger>(machine_);
  start();
  first.reset();
  Trace(u"lost");
  EXPECT_FALSE(logger->Connected());
  NotingLogger late(machine_);
  Trace(u"lost too");
  EXPECT_EQ(late.order(), "");
}

TEST_F(FrontEndTest, ALevelThatIsNoByteGoesToTheCallerWhereALoggerIs) {
  Trace(u"off", 256);
  start();
  Trace(u"nobody", 256);
  delete std::exchange(logger, nullptr);
  NotingLogger receiver(machine_);
  start();
  EXPECT_EQ(errorOf([] { Trace(u"x", 256); }), RuntimeError::Overflow);
  EXPECT_EQ(errorOf([] { Trace(u"x", -1); }), RuntimeError::Overflow);
  EXPECT_EQ(receiver.order(), "Add");
}

TEST_F(FrontEndTest, ASettingThatCannotBeReadLeavesItOff) {
  switchTo(1);
  registry_.fail("RegQueryValueExA", platform::registry_result::kAccessDenied);
  StartLogger();
  EXPECT_EQ(logger, nullptr);
}

}  // namespace
}  // namespace tessaly::tests
