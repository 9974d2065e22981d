#include "tools/zplogger/Receiver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <optional>

#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/Messages.h"
#include "tessaly/platform/fake/SharedMemory.h"
#include "tests/tools/zplogger/Recorder.h"
#include "tests/tools/zplogger/Records.h"
#include "tools/zplogger/OtherLogger.h"

namespace tessaly::zplogger {
namespace {

using Heard = std::vector<std::string>;

constexpr const char* kBlock = "ZPLoggerMappedFile1CA";

class ZpReceiverTest : public testing::Test {
 public:
  std::uint32_t message(const char* name) {
    return messages.RegisterWindowMessageA((std::string("ZPLoggerWindowMsg") + name).c_str());
  }

  void makeBlock(const char* name) {
    memory.CreateFileMappingA(platform::kReadWritePages | platform::kCommittedPages, 0, kBlockSize, name);
  }

  /// What a client does for one record.
  std::intptr_t send(const char* name, const std::string& bytes, std::intptr_t client = 458) {
    if (!bytes.empty()) memory.put(kBlock, 0, bytes);
    return messages.SendMessageA(receiver->window(), message(name), 0, client);
  }

  std::ptrdiff_t openings() const {
    return std::count(memory.calls().begin(), memory.calls().end(), "OpenFileMappingA");
  }

  platform::fake::Locale locale{1033, u".", 1252};
  platform::fake::Messages messages;
  platform::fake::SharedMemory memory;
  platform::Override localeInForce{locale};
  platform::Override messagesInForce{messages};
  platform::Override memoryInForce{memory};
  tests::Recorder recorder;
  std::optional<Receiver> receiver{std::in_place, recorder};
};

TEST_F(ZpReceiverTest, IsFoundByItsTitle) {
  std::array<char, 100> title{};
  messages.GetWindowTextA(receiver->window(), title.data(), 100);
  EXPECT_STREQ(title.data(), "ZPLogger server");
  Receiver other(recorder, "Another title");
  messages.GetWindowTextA(other.window(), title.data(), 100);
  EXPECT_STREQ(title.data(), "Another title");
}

TEST_F(ZpReceiverTest, HandsOnWhatClientsSend) {
  makeBlock(kBlock);
  EXPECT_EQ(send("AddClient", tests::clientBytes("Host", "/l/h.log", "")), 0);
  EXPECT_EQ(send("AddTrace", tests::traceBytes("Start", 2)), 0);
  EXPECT_EQ(send("DeleteClient", ""), 0);
  EXPECT_EQ(recorder.heard, (Heard{"add 458/0 Host|/l/h.log|", "trace 458/0 2 Start", "delete 458/0"}));
}

TEST_F(ZpReceiverTest, TellsProcessesApart) {
  makeBlock(kBlock);
  messages.sendAs(10);
  send("AddTrace", tests::traceBytes("one"));
  messages.sendAs(11);
  send("AddTrace", tests::traceBytes("two"));
  EXPECT_EQ(recorder.heard, (Heard{"trace 458/10 0 one", "trace 458/11 0 two"}));
}

TEST_F(ZpReceiverTest, OpensTheBlockThatTheIdNames) {
  for (const auto& [id, name] :
       std::vector<std::pair<std::int64_t, const char*>>{{0x1CA, kBlock},
                                                         {0, "ZPLoggerMappedFile0"},
                                                         {0xABCDEF01, "ZPLoggerMappedFileABCDEF01"},
                                                         {-1, "ZPLoggerMappedFileFFFFFFFF"}}) {
    makeBlock(name);
    memory.put(name, 0, tests::traceBytes(name));
    messages.SendMessageA(receiver->window(), message("AddTrace"), 0, static_cast<std::intptr_t>(id));
    ASSERT_FALSE(recorder.heard.empty());
    EXPECT_TRUE(recorder.heard.back().ends_with(name)) << recorder.heard.back();
  }
}

TEST_F(ZpReceiverTest, OpensABlockOnceForManyLines) {
  makeBlock(kBlock);
  makeBlock("ZPLoggerMappedFile2");
  for (int i = 0; i < 100; ++i) send("AddTrace", tests::traceBytes("x"));
  EXPECT_EQ(openings(), 1);
  EXPECT_EQ(memory.views(), 1U);
  send("AddTrace", "", 2);
  send("AddTrace", "");
  EXPECT_EQ(openings(), 3);
  EXPECT_EQ(memory.views(), 1U);
  EXPECT_EQ(recorder.heard.size(), 102U);
}

TEST_F(ZpReceiverTest, LeavesNothingOpen) {
  makeBlock(kBlock);
  const std::size_t before = memory.openHandles();
  send("AddTrace", tests::traceBytes("x"));
  const platform::WindowHandle window = receiver->window();
  receiver.reset();
  EXPECT_EQ(memory.openHandles(), before);
  EXPECT_EQ(memory.views(), 0U);
  EXPECT_EQ(messages.GetWindowLongA(window, platform::kWindowInstance), 0);
}

TEST_F(ZpReceiverTest, TellsOfABlockThatIsMissingAndFindsItLater) {
  send("AddTrace", "");
  send("AddClient", "");
  EXPECT_EQ(recorder.heard, (Heard{"fault 458/0 its block of memory can't be opened",
                                   "fault 458/0 its block of memory can't be opened"}));
  makeBlock(kBlock);
  send("AddTrace", tests::traceBytes("x"));
  EXPECT_EQ(recorder.heard.back(), "trace 458/0 0 x");
}

TEST_F(ZpReceiverTest, TellsOfABlockThatIsTooSmall) {
  memory.CreateFileMappingA(platform::kReadWritePages, 0, kBlockSize - 1, kBlock);
  send("AddTrace", "");
  EXPECT_EQ(recorder.heard, (Heard{"fault 458/0 its block of memory can't be opened"}));
}

TEST_F(ZpReceiverTest, TellsOfRecordsThatDoNotFit) {
  makeBlock(kBlock);
  const std::string ones(kBlockSize, '\xFF');
  send("AddTrace", ones);
  send("AddClient", ones);
  EXPECT_EQ(recorder.heard, (Heard{"fault 458/0 a trace record does not fit into its block",
                                   "fault 458/0 a client record does not fit into its block"}));
}

TEST_F(ZpReceiverTest, LeavesOtherMessagesAlone) {
  makeBlock(kBlock);
  messages.SendMessageA(receiver->window(), messages.RegisterWindowMessageA("Another"), 0, 458);
  messages.SendMessageA(receiver->window(), 0x10, 0, 458);
  EXPECT_TRUE(recorder.heard.empty());
}

TEST_F(ZpReceiverTest, SurvivesAListenerThatHasNoMemory) {
  struct : tests::Recorder {
    void trace(const Sender&, const TraceRecord&) override { throw std::bad_alloc(); }
  } failing;
  makeBlock(kBlock);
  Receiver other(failing);
  memory.put(kBlock, 0, tests::traceBytes("x"));
  EXPECT_EQ(messages.SendMessageA(other.window(), message("AddTrace"), 0, 458), 0);
  messages.SendMessageA(other.window(), message("DeleteClient"), 0, 458);
  EXPECT_EQ(failing.heard, Heard{"delete 458/0"});
}

TEST_F(ZpReceiverTest, RunsUntilItIsStopped) {
  receiver->stop();
  receiver->run();
  EXPECT_EQ(messages.calls().back(), "GetMessageA");
}

TEST_F(ZpReceiverTest, RunsUntilItsWindowIsToClose) {
  messages.PostMessageA(receiver->window(), 0x401);
  messages.PostMessageA(receiver->window(), 0x10);
  messages.PostMessageA(receiver->window(), 0x402);
  receiver->run();
  EXPECT_EQ(messages.GetMessageA(), 0x402U);
}

TEST_F(ZpReceiverTest, HasNoWindowWhereNoneCanBeMade) {
  messages.fail("CreateWindowExA");
  Receiver other(recorder);
  EXPECT_EQ(other.window(), 0);
  other.stop();
  other.run();
  EXPECT_NE(messages.calls().back(), "GetMessageA");
}

TEST_F(ZpReceiverTest, IsSeenByAnotherLogger) {
  EXPECT_TRUE(isLoggerThere());
  receiver.reset();
  EXPECT_FALSE(isLoggerThere());
  const Receiver lower(recorder, "zplogger server");
  EXPECT_FALSE(isLoggerThere());
  const Receiver longer(recorder, "  ZPLogger server 2");
  EXPECT_TRUE(isLoggerThere());
}

}  // namespace
}  // namespace tessaly::zplogger
