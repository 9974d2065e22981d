// The states of a client, each with its ways into and out of it, and where the platform fails.

#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "tests/support/Print.h"
#include "tests/trace/LoggerOfTests.h"
#include "tests/trace/ZPLoggerClientPeer.h"

namespace tessaly::tests {
namespace {

using Peer = ZPLoggerClientPeer;

class StatesTest : public testing::Test {
 protected:
  void init() { client_.emplace().Init(u"Host", u"/log", u"/bak"); }
  void trace() { client_->SendTrace(u"line", 0, 0xFFFFFF, 0, True); }
  void startLogger() { logger_ = std::make_unique<NotingLogger>(machine_); }

  void expectState(bool hasView, platform::WindowHandle window, Boolean registered) const {
    EXPECT_EQ(Peer::hasView(*client_), hasView);
    EXPECT_EQ(Peer::hasMapping(*client_), hasView);
    EXPECT_EQ(Peer::loggerWindow(*client_), window);
    EXPECT_EQ(Peer::registered(*client_), registered);
    EXPECT_EQ(client_->Connected(), Boolean(window != 0));
  }

  void expectNoLogger() const { expectState(true, 0, False); }
  void expectRegisteredWith(const NotingLogger& logger) const { expectState(true, logger.window(), True); }

  Machine machine_;
  std::unique_ptr<NotingLogger> logger_;
  std::optional<ZPLoggerClient> client_;
};

TEST_F(StatesTest, ANewClientHasRegisteredItsMessagesAndHasNothingElse) {
  client_.emplace();
  expectState(false, 0, False);
  EXPECT_EQ(Peer::clientId(*client_), 0);
  // The messages are registered in this order, and these stand-ins give numbers by order.
  EXPECT_EQ(machine_.messages.calls(), std::vector<std::string>(3, "RegisterWindowMessageA"));
  EXPECT_EQ(Peer::messages(*client_), (std::vector<std::uint32_t>{0xC001, 0xC002, 0xC000}));
  EXPECT_EQ(machine_.messages.RegisterWindowMessageA("ZPLoggerWindowMsgAddTrace"), 0xC000U);
  EXPECT_EQ(machine_.messages.RegisterWindowMessageA("ZPLoggerWindowMsgAddClient"), 0xC001U);
  EXPECT_EQ(machine_.messages.RegisterWindowMessageA("ZPLoggerWindowMsgDeleteClient"), 0xC002U);
}

TEST_F(StatesTest, ANewClientSendsNothing) {
  startLogger();
  client_.emplace();
  trace();
  EXPECT_EQ(logger_->order(), "");
  EXPECT_EQ(machine_.count("EnumWindows"), 0U);
}

TEST_F(StatesTest, InitWithALoggerRegisters) {
  startLogger();
  init();
  expectRegisteredWith(*logger_);
  EXPECT_EQ(logger_->order(), "Add");
  EXPECT_EQ(Peer::clientId(*client_), 458);
}

TEST_F(StatesTest, InitMapsTheBlockAsItIsDocumented) {
  init();
  EXPECT_EQ(machine_.memory.calls(), (std::vector<std::string>{"CreateFileMappingA", "MapViewOfFile"}));
  EXPECT_EQ(machine_.memory.bytes("ZPLoggerMappedFile1CA").size(), 5000U);
}

TEST_F(StatesTest, InitWithoutALoggerIsNoError) {
  init();
  expectNoLogger();
}

TEST_F(StatesTest, WithoutALoggerEachLineSearchesAndIsLost) {
  init();
  const std::size_t before = machine_.count("EnumWindows");
  trace();
  trace();
  EXPECT_EQ(machine_.count("EnumWindows"), before + 2);
  expectNoLogger();
}

TEST_F(StatesTest, ALoggerThatComesLateIsFoundByTheNextLine) {
  init();
  trace();
  startLogger();
  trace();
  expectRegisteredWith(*logger_);
  EXPECT_EQ(logger_->order(), "Add Trace");
}

TEST_F(StatesTest, ARegisteredClientSendsTheLineAlone) {
  startLogger();
  init();
  const std::size_t searches = machine_.count("EnumWindows");
  trace();
  trace();
  EXPECT_EQ(logger_->order(), "Add Trace Trace");
  EXPECT_EQ(machine_.count("EnumWindows"), searches);
  EXPECT_EQ(machine_.count("GetWindowLongA"), 2U);
}

TEST_F(StatesTest, ALoggerThatStartsAgainIsToldTheClientBeforeTheLine) {
  startLogger();
  init();
  trace();
  startLogger();
  trace();
  expectRegisteredWith(*logger_);
  EXPECT_EQ(logger_->order(), "Add Trace");
}

TEST_F(StatesTest, ALoggerThatHasGoneIsNoticedByTheNextLineAndNotBefore) {
  startLogger();
  init();
  const platform::WindowHandle gone = logger_->window();
  logger_.reset();
  expectState(true, gone, True);
  trace();
  expectNoLogger();
}

TEST_F(StatesTest, LinesAfterALostLoggerRepeatNothingUntilAWindowIsFound) {
  startLogger();
  init();
  logger_.reset();
  trace();
  trace();
  const std::size_t sends = machine_.count("SendMessageA");
  trace();
  EXPECT_EQ(machine_.count("SendMessageA"), sends);
  startLogger();
  trace();
  EXPECT_EQ(logger_->order(), "Add Trace");
}

/// The number is all that a client knows of a window.
TEST_F(StatesTest, AWindowThatGotTheStaleNumberGetsTheMessages) {
  startLogger();
  init();
  const platform::WindowHandle stale = logger_->window();
  logger_.reset();
  machine_.messages.reuse(stale);
  NotingLogger other(machine_, "Some other window");
  trace();
  EXPECT_EQ(other.window(), stale);
  EXPECT_EQ(other.order(), "Trace");
  expectRegisteredWith(other);
}

TEST_F(StatesTest, WithASecondLoggerTheFirstInTheSystemsOrderGetsAll) {
  startLogger();
  NotingLogger newer(machine_);
  init();
  trace();
  EXPECT_EQ(newer.order(), "Add Trace");
  EXPECT_EQ(logger_->order(), "");
}

TEST_F(StatesTest, TwoClientsShareOneBlock) {
  startLogger();
  init();
  ZPLoggerClient second;
  second.Init(u"Second", u"", u"");
  second.SendTrace(u"its line", 0, 0, 0, True);
  trace();
  EXPECT_EQ(logger_->order(), "Add Add Trace Trace");
  EXPECT_EQ(machine_.memory.openHandles(), 2U);
  EXPECT_EQ(logger_->lastBlock(18).substr(14), "line");
}

TEST_F(StatesTest, TerminationClosesTheBlockAndTellsNobody) {
  startLogger();
  init();
  client_.reset();
  EXPECT_EQ(machine_.memory.calls(), (std::vector<std::string>{"CreateFileMappingA", "MapViewOfFile",
                                                               "UnmapViewOfFile", "CloseHandle"}));
  EXPECT_EQ(machine_.memory.openHandles() + machine_.memory.views(), 0U);
  EXPECT_EQ(logger_->order(), "Add");
}

TEST_F(StatesTest, TerminationOfANewClientCallsNothing) {
  client_.emplace();
  client_.reset();
  EXPECT_TRUE(machine_.memory.calls().empty());
}

TEST_F(StatesTest, ASecondInitKeepsOneBlockAndTheRegistration) {
  startLogger();
  init();
  client_->Init(u"Other", u"", u"");
  expectRegisteredWith(*logger_);
  EXPECT_EQ(logger_->order(), "Add");
  EXPECT_EQ(machine_.memory.openHandles(), 1U);
  EXPECT_EQ(machine_.memory.views(), 1U);
}

TEST_F(StatesTest, WithoutABlockTheLoggerIsSeenAndNothingIsSent) {
  startLogger();
  machine_.memory.fail("CreateFileMappingA");
  init();
  expectState(false, logger_->window(), True);
  EXPECT_EQ(machine_.count("MapViewOfFile"), 0U);
  trace();
  expectState(false, logger_->window(), True);
  EXPECT_EQ(logger_->order(), "");
}

TEST_F(StatesTest, WithoutABlockAndALoggerThereIsNothing) {
  machine_.memory.fail("CreateFileMappingA");
  init();
  expectState(false, 0, False);
  startLogger();
  trace();
  expectState(false, 0, False);
  EXPECT_EQ(logger_->order(), "");
}

TEST_F(StatesTest, ABlockThatCannotBeShownIsClosed) {
  startLogger();
  machine_.memory.fail("MapViewOfFile");
  init();
  expectState(false, logger_->window(), True);
  EXPECT_EQ(machine_.memory.openHandles(), 0U);
  EXPECT_EQ(machine_.count("UnmapViewOfFile"), 0U);
  EXPECT_EQ(logger_->order(), "");
}

TEST_F(StatesTest, MessagesThatCannotBeRegisteredAreSentAsZero) {
  machine_.messages.fail("RegisterWindowMessageA");
  startLogger();
  init();
  EXPECT_EQ(Peer::messages(*client_), (std::vector<std::uint32_t>{0, 0, 0}));
  trace();
  EXPECT_EQ(machine_.count("SendMessageA"), 2U);
  EXPECT_EQ(logger_->order(), "");
}

TEST_F(StatesTest, WindowsThatCannotBeListedAreNone) {
  startLogger();
  machine_.messages.fail("EnumWindows");
  init();
  expectNoLogger();
}

/// The logger is killed in the middle of a message: the line is lost, and the next one finds the successor.
TEST_F(StatesTest, ALoggerKilledWhileItHandlesALineLosesThatLine) {
  struct Dying final : platform::MessageHandler {
    explicit Dying(Machine& all) : machine(all) {}
    std::intptr_t handle(const platform::SentMessage&) noexcept override {
      if (++handled == 2) machine.messages.kill(window);
      return 0;
    }
    Machine& machine;
    platform::WindowHandle window = machine.messages.CreateWindowExA("ZPLogger server", *this);
    int handled = 0;
  };
  Dying dying(machine_);
  init();
  trace();
  expectState(true, dying.window, True);
  startLogger();
  trace();
  expectRegisteredWith(*logger_);
  EXPECT_EQ(logger_->order(), "Add Trace");
}

TEST_F(StatesTest, DeleteClientTellsTheLoggerOnce) {
  startLogger();
  init();
  Peer::deleteClient(*client_);
  EXPECT_EQ(logger_->order(), "Add Delete");
  expectState(true, logger_->window(), False);
  Peer::deleteClient(*client_);
  EXPECT_EQ(logger_->order(), "Add Delete");
  trace();
  EXPECT_EQ(logger_->order(), "Add Delete Add Trace");
}

TEST_F(StatesTest, DeleteClientTakesNothingButMinusOneForRegistered) {
  startLogger();
  init();
  Peer::registered(*client_, 1);
  Peer::deleteClient(*client_);
  EXPECT_EQ(logger_->order(), "Add");
  Peer::addClient(*client_);
  EXPECT_EQ(logger_->order(), "Add");
}

TEST_F(StatesTest, DeleteClientWithoutALoggerSendsNothing) {
  init();
  Peer::registered(*client_, True);
  Peer::deleteClient(*client_);
  EXPECT_EQ(machine_.count("SendMessageA"), 0U);
  EXPECT_EQ(Peer::registered(*client_), True);
}

}  // namespace
}  // namespace tessaly::tests
