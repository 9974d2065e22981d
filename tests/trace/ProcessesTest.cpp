// Clients and loggers in processes of their own, over the platform's own channel.

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

#include "tessaly/platform/Core.h"
#include "tests/support/OwnRuntime.h"
#include "tests/support/Process.h"

namespace tessaly::tests {
namespace {

/// The number behind a word in an answer.
long long numberIn(const std::optional<std::string>& line, const std::string& word) {
  EXPECT_TRUE(line && line->starts_with(word + ' ')) << line.value_or("nothing");
  return line && line->size() > word.size() + 1 ? std::stoll(line->substr(word.size() + 1)) : -1;
}

class TraceProcessesTest : public testing::Test {
 protected:
  TraceProcessesTest() { useOwnRuntime(); }

  /// Starts a logger and waits until clients can find it.
  static std::unique_ptr<Process> startLogger(const std::vector<std::string>& arguments = {}) {
    auto logger = std::make_unique<Process>("tests-trace-logger", arguments);
    EXPECT_EQ(logger->readLine(), "ready");
    return logger;
  }

  static std::string answer(Process& process, const std::string& line) {
    EXPECT_TRUE(process.write(line + '\n'));
    return process.readLine().value_or("nothing");
  }

  /// Has a line sent: whether the call came back, whatever became of the line.
  static bool send(Process& client, const std::string& text) {
    return answer(client, "send 0 " + text).starts_with("sent ");
  }

  std::unique_ptr<Process> startClient(const std::string& name = "Host") {
    auto client = std::make_unique<Process>("tests-trace-client");
    init(*client, name);
    return client;
  }

  void init(Process& client, const std::string& name) {
    connected_ = answer(client, "init " + name + "|/l/" + name + ".log|/l/" + name + ".bak") == "ready yes";
  }

  /// What a logger is told of a client.
  static std::string added(const std::string& name = "Host") {
    return "add " + name + "|/l/" + name + ".log|/l/" + name + ".bak";
  }

  bool connected_ = false;
};

TEST_F(TraceProcessesTest, ALineArrives) {
  const auto logger = startLogger();
  const auto client = startClient();
  EXPECT_TRUE(connected_);
  EXPECT_EQ(logger->readLine(), added());
  EXPECT_TRUE(send(*client, "Start"));
  EXPECT_EQ(logger->readLine(), "trace 0 Start");
  EXPECT_TRUE(answer(*client, "send 255 Stop").starts_with("sent"));
  EXPECT_EQ(logger->readLine(), "trace 255 Stop");
}

TEST_F(TraceProcessesTest, ALevelThatIsNoByteIsAnErrorAndSendsNothing) {
  const auto logger = startLogger();
  const auto client = startClient();
  EXPECT_EQ(logger->readLine(), added());
  EXPECT_EQ(answer(*client, "send 256 never"), "error 6");
  EXPECT_TRUE(send(*client, "next"));
  EXPECT_EQ(logger->readLine(), "trace 0 next");
}

TEST_F(TraceProcessesTest, WithoutALoggerLinesAreLostAndALaterLoggerIsFound) {
  const auto client = startClient();
  EXPECT_FALSE(connected_);
  EXPECT_TRUE(send(*client, "lost"));
  EXPECT_EQ(answer(*client, "connected"), "no");
  const auto logger = startLogger();
  EXPECT_TRUE(send(*client, "found"));
  EXPECT_EQ(logger->readLine(), added());
  EXPECT_EQ(logger->readLine(), "trace 0 found");
  EXPECT_EQ(answer(*client, "connected"), "yes");
}

TEST_F(TraceProcessesTest, ALoggerThatStartsAgainIsToldTheClientBeforeTheLine) {
  auto logger = startLogger();
  const auto client = startClient();
  EXPECT_EQ(logger->readLine(), added());
  logger->kill();
  logger->wait();
  EXPECT_EQ(answer(*client, "connected"), "yes");
  logger = startLogger();
  EXPECT_TRUE(send(*client, "again"));
  EXPECT_EQ(logger->readLine(), added());
  EXPECT_EQ(logger->readLine(), "trace 0 again");
}

TEST_F(TraceProcessesTest, ALoggerThatHasGoneIsNoticedByTheNextLine) {
  auto logger = startLogger();
  const auto client = startClient();
  logger->kill();
  logger->wait();
  EXPECT_TRUE(send(*client, "lost"));
  EXPECT_EQ(answer(*client, "connected"), "no");
}

/// The logger had the line when it was killed: the call comes back, and the next line finds the successor.
TEST_F(TraceProcessesTest, ALoggerKilledWhileItHandlesALineLosesThatLineAlone) {
  auto logger = startLogger({"2"});
  const auto client = startClient();
  EXPECT_EQ(logger->readLine(), added());
  ASSERT_TRUE(client->write("send 0 its last\n"));
  EXPECT_EQ(logger->readLine(), "trace 0 its last");
  logger->kill();
  logger->wait();
  EXPECT_GT(numberIn(client->readLine(), "sent"), 0);
  EXPECT_EQ(answer(*client, "connected"), "yes");
  logger = startLogger();
  EXPECT_TRUE(send(*client, "next"));
  EXPECT_EQ(logger->readLine(), added());
  EXPECT_EQ(logger->readLine(), "trace 0 next");
}

TEST_F(TraceProcessesTest, ALoggerThatTakesItsTimeHoldsTheClient) {
  const auto logger = startLogger({"2"});
  const auto client = startClient();
  EXPECT_EQ(logger->readLine(), added());
  ASSERT_TRUE(client->write("send 0 slow\n"));
  EXPECT_EQ(logger->readLine(), "trace 0 slow");
  const long long released = numberIn(answer(*logger, "go on"), "answering");
  EXPECT_GE(numberIn(client->readLine(), "sent"), released);
}

TEST_F(TraceProcessesTest, OfTwoLoggersOneGetsAllUntilItGoes) {
  auto first = startLogger();
  auto second = startLogger();
  const auto client = startClient();
  EXPECT_TRUE(send(*client, "one"));
  // Whoever goes first, the other one takes over; who has the lines is the system's choice.
  first->kill();
  first->wait();
  EXPECT_TRUE(send(*client, "two"));
  EXPECT_EQ(answer(*client, "connected"), "yes");
  EXPECT_EQ(second->readLine(), added());
  for (auto line = second->readLine(); line != "trace 0 two"; line = second->readLine())
    ASSERT_EQ(line, "trace 0 one");
  second->kill();
  second->wait();
  EXPECT_TRUE(send(*client, "three"));
  EXPECT_EQ(answer(*client, "connected"), "no");
}

TEST_F(TraceProcessesTest, TwoClientsInTwoProcessesAreBothHeard) {
  const auto logger = startLogger();
  const auto one = startClient("One");
  const auto two = startClient("Two");
  EXPECT_EQ(logger->readLine(), added("One"));
  EXPECT_EQ(logger->readLine(), added("Two"));
  EXPECT_TRUE(send(*two, "from two"));
  EXPECT_TRUE(send(*one, "from one"));
  EXPECT_EQ(logger->readLine(), "trace 0 from two");
  EXPECT_EQ(logger->readLine(), "trace 0 from one");
}

/// Nothing is locked between them, so a line may be another's; but each message comes, one line for each.
TEST_F(TraceProcessesTest, ClientsAtOnceSendAsManyMessagesAsLines) {
  constexpr int lines = 500;
  const auto logger = startLogger();
  const auto one = startClient("One");
  const auto two = startClient("Two");
  logger->readLine();
  logger->readLine();
  for (Process* client : {one.get(), two.get()}) client->write("many " + std::to_string(lines) + " line\n");
  for (int i = 0; i < 2 * lines; ++i) {
    const auto line = logger->readLine();
    ASSERT_TRUE(line && line->starts_with("trace 0 ")) << line.value_or("nothing");
  }
  EXPECT_GT(numberIn(one->readLine(), "sent"), 0);
  EXPECT_GT(numberIn(two->readLine(), "sent"), 0);
  EXPECT_TRUE(send(*one, "the end"));
  EXPECT_EQ(logger->readLine(), "trace 0 the end");
}

TEST_F(TraceProcessesTest, AClientThatIsKilledDisturbsNobody) {
  const auto logger = startLogger();
  const auto one = startClient("One");
  auto two = startClient("Two");
  logger->readLine();
  logger->readLine();
  two->kill();
  two->wait();
  EXPECT_TRUE(send(*one, "still here"));
  EXPECT_EQ(logger->readLine(), "trace 0 still here");
}

TEST_F(TraceProcessesTest, LinesOfOneClientArriveWholeAndInOrder) {
  constexpr int lines = 2000;
  const auto logger = startLogger();
  const auto client = startClient();
  EXPECT_EQ(logger->readLine(), added());
  ASSERT_TRUE(client->write("many " + std::to_string(lines) + " a line of some length with the number\n"));
  for (int i = 1; i <= lines; ++i)
    ASSERT_EQ(logger->readLine(), "trace 0 a line of some length with the number " + std::to_string(i));
  EXPECT_GT(numberIn(client->readLine(), "sent"), 0);
}

/// Run once more where the user is Japanese.
TEST_F(TraceProcessesTest, ATextGoesThroughTheCodePageOfTheUser) {
  constexpr Long japanese = 932;
  const auto logger = startLogger();
  const auto client = startClient();
  EXPECT_EQ(logger->readLine(), added());
  EXPECT_TRUE(send(*client, "日本 x"));
  // Four characters, so four of their six bytes.
  const bool isJapanese = platform::core().locale->GetACP() == japanese;
  EXPECT_EQ(isJapanese, std::getenv("TESSALY_EXPECTS_JAPANESE") != nullptr);
  EXPECT_EQ(logger->readLine(), isJapanese ? "trace 0 \x93\xFA\x96\x7B" : "trace 0 ?? x");
}

}  // namespace
}  // namespace tessaly::tests
