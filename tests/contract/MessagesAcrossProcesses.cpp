// What a body of the area Messages must do between processes.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <future>
#include <sstream>

#include "tests/contract/MessagesWorld.h"
#include "tests/contract/Peer.h"
#include "tests/support/Platform.h"

namespace tessaly::tests {
namespace {

using namespace platform;

class MessagesAcrossProcesses : public testing::Test {
  MessagesWorld world_{Body::Own};
};

template <class... Parts>
std::string words(const Parts&... parts) {
  std::ostringstream line;
  ((line << parts << ' '), ...);
  return line.str();
}

std::future<std::intptr_t> sendAside(WindowHandle window, const char* name) {
  return std::async(std::launch::async, [=] { return send(window, name, 1, 2); });
}

bool isListed(WindowHandle window) {
  const auto all = windowsThere();
  return std::find(all.begin(), all.end(), window) != all.end();
}

std::string titleOf(WindowHandle window) {
  std::string buffer(1000, '#');
  const Long length = messages().GetWindowTextA(window, buffer.data(), 1000);
  return buffer.substr(0, static_cast<std::size_t>(length));
}

TEST_F(MessagesAcrossProcesses, NamesHaveTheSameNumberInAll) {
  Peer peer;
  for (const char* name : {"tessaly.tests.a", "tessaly.tests.b", "A name with blanks"})
    EXPECT_EQ(peer.askNumber(std::string("register ") + name), numberOf(name));
  EXPECT_EQ(peer.askNumber("register TESSALY.Tests.c"), numberOf("tessaly.tests.C"));
  EXPECT_EQ(peer.askNumber("register " + std::string(255, 'n')), numberOf(std::string(255, 'n')));
}

TEST_F(MessagesAcrossProcesses, AWindowIsFoundByItsTitle) {
  const Peer peer;
  EXPECT_TRUE(isAlive(peer.window()));
  EXPECT_TRUE(isListed(peer.window()));
  EXPECT_EQ(titleOf(peer.window()), "Tessaly test peer");
}

TEST_F(MessagesAcrossProcesses, ALongTitleIsCutToFit) {
  Peer peer;
  const std::string title(1200, 't');
  const WindowHandle window = peer.askNumber("window " + title);
  std::string buffer(2000, '#');
  EXPECT_EQ(messages().GetWindowTextA(window, buffer.data(), 1000), 999);
  EXPECT_EQ(buffer.substr(0, 1000), title.substr(0, 999) + '\0');
  EXPECT_EQ(buffer.substr(1000), std::string(1000, '#'));
}

TEST_F(MessagesAcrossProcesses, BytesBehindATitleStayAsTheyWere) {
  const Peer peer;
  std::string buffer(1000, ' ');
  EXPECT_EQ(messages().GetWindowTextA(peer.window(), buffer.data(), 1000), 17);
  EXPECT_EQ(buffer, std::string("Tessaly test peer\0", 18) + std::string(982, ' '));
}

TEST_F(MessagesAcrossProcesses, AWindowGoesWhereItsProcessLetsItGo) {
  Peer peer;
  const WindowHandle window = peer.askNumber("window second");
  EXPECT_TRUE(isListed(window));
  EXPECT_EQ(peer.ask(words("destroy", window)), "1");
  EXPECT_FALSE(isAlive(window));
  EXPECT_FALSE(isListed(window));
  EXPECT_EQ(send(window, peer_message::kTell, 1, 2), 0);
  EXPECT_TRUE(isAlive(peer.window()));
}

TEST_F(MessagesAcrossProcesses, AWindowGoesWithItsThread) {
  Peer peer;
  const WindowHandle window = peer.askNumber("brief");
  EXPECT_FALSE(isAlive(window));
  EXPECT_FALSE(isListed(window));
}

TEST_F(MessagesAcrossProcesses, AWindowGoesWithItsProcess) {
  for (const bool killed : {false, true}) {
    Peer peer;
    EXPECT_TRUE(isAlive(peer.window()));
    if (killed) {
      peer.kill();
    } else {
      peer.process().closeInput();
      EXPECT_EQ(peer.process().wait(), 0);
    }
    EXPECT_FALSE(isAlive(peer.window()));
    EXPECT_FALSE(isListed(peer.window()));
    EXPECT_EQ(send(peer.window(), peer_message::kTell, 1, 2), 0);
  }
}

TEST_F(MessagesAcrossProcesses, AWindowThatIsGoneHasNoTitle) {
  if (underWine()) GTEST_SKIP() << kWineTitles;
  Peer peer;
  const WindowHandle window = peer.askNumber("window second");
  EXPECT_EQ(peer.ask(words("destroy", window)), "1");
  EXPECT_EQ(titleOf(window), "");
  peer.kill();
  EXPECT_EQ(titleOf(peer.window()), "");
}

TEST_F(MessagesAcrossProcesses, OnlyItsOwnProcessLetsAWindowGoOrPostsThere) {
  Peer peer;
  const Receiver own("own");
  EXPECT_FALSE(messages().DestroyWindow(peer.window()));
  EXPECT_FALSE(messages().PostMessageA(peer.window(), 0xC000));
  EXPECT_EQ(peer.ask(words("destroy", own.handle())), "0");
  EXPECT_EQ(peer.ask(words("post", own.handle())), "0");
  EXPECT_EQ(peer.ask(words("alive", own.handle())), "1");
  EXPECT_TRUE(isAlive(peer.window()));
}

TEST_F(MessagesAcrossProcesses, WhatIsSentArrivesWhole) {
  Peer peer;
  constexpr std::uintptr_t wParam = UINTPTR_MAX - 5;
  constexpr std::intptr_t lParam = INTPTR_MIN + 7;
  EXPECT_EQ(send(peer.window(), peer_message::kTell, wParam, lParam), resultOf(wParam, lParam));
  std::istringstream line(peer.hear());
  std::string got;
  std::uint32_t number = 0;
  std::uintptr_t arrivedW = 0;
  std::intptr_t arrivedL = 0;
  line >> got >> number >> arrivedW >> arrivedL;
  EXPECT_EQ(got, "got");
  EXPECT_EQ(number, numberOf(peer_message::kTell));
  EXPECT_EQ(arrivedW, wParam);
  EXPECT_EQ(arrivedL, lParam);
}

TEST_F(MessagesAcrossProcesses, AReceiverLearnsTheSenderWhereThePlatformTellsIt) {
  Peer peer;
  std::vector<std::uint32_t> senders;
  Receiver window("receiver");
  window.onMessage([&](const SentMessage& message) {
    senders.push_back(message.sender);
    messages().PostMessageA(window.handle(), kQuit);
    return -7;
  });
  peer.tell(words("send", window.handle(), numberOf(peer_message::kTell), 1, 2));
  EXPECT_EQ(messages().GetMessageA(), kQuit);
  EXPECT_EQ(peer.hear(), "-7");
  ASSERT_EQ(senders.size(), 1U);
  EXPECT_TRUE(senders[0] == 0 || senders[0] == peer.process().id()) << senders[0];
}

TEST_F(MessagesAcrossProcesses, WhatIsSentBackIsHandledWhileASenderWaits) {
  const Peer peer;
  const Receiver own("own");
  EXPECT_EQ(send(peer.window(), peer_message::kBounce, static_cast<std::uintptr_t>(own.handle()), 21), 22);
  EXPECT_EQ(own.got().size(), 11U);
}

TEST_F(MessagesAcrossProcesses, WhatAThirdSendsIsHandledWhileASenderWaits) {
  Peer holder;
  Peer third;
  const Receiver own("own", [&](const SentMessage&) {
    holder.tell("release");
    return 3;
  });
  third.tell(words("send", own.handle(), numberOf(peer_message::kTell), 1, 2));
  EXPECT_EQ(send(holder.window(), peer_message::kHold), 1);
  EXPECT_EQ(third.hear(), "3");
  EXPECT_EQ(own.got().size(), 1U);
}

TEST_F(MessagesAcrossProcesses, WhatTwoSendAtOnceArrivesWholeAndInOrder) {
  constexpr std::size_t count = 1000;
  Peer first;
  Peer second;
  Receiver window("receiver");
  window.onMessage([&](const SentMessage& message) {
    if (window.got().size() == 2 * count) messages().PostMessageA(window.handle(), kQuit);
    return resultOf(message.wParam, message.lParam);
  });
  first.tell(words("flood", window.handle(), numberOf(peer_message::kTell), 1, count));
  second.tell(words("flood", window.handle(), numberOf(peer_message::kTell), 2, count));
  EXPECT_EQ(messages().GetMessageA(), kQuit);
  EXPECT_EQ(first.hear(), "0");
  EXPECT_EQ(second.hear(), "0");
  std::array<std::size_t, 3> next{};
  for (const SentMessage& message : window.got())
    EXPECT_EQ(message.lParam, static_cast<std::intptr_t>(next.at(message.wParam)++));
  EXPECT_EQ(next[1], count);
  EXPECT_EQ(next[2], count);
}

TEST_F(MessagesAcrossProcesses, AReceiverThatIsKilledInMidMessageGivesZero) {
  Peer peer;
  auto result = sendAside(peer.window(), peer_message::kHold);
  EXPECT_EQ(peer.hear(), "holding");
  peer.kill();
  EXPECT_EQ(result.get(), 0);
}

TEST_F(MessagesAcrossProcesses, AReceiverThatEndsInMidMessageGivesZero) {
  Peer peer;
  EXPECT_EQ(send(peer.window(), peer_message::kExit), 0);
  EXPECT_EQ(peer.process().wait(), 3);
  EXPECT_FALSE(isAlive(peer.window()));
}

TEST_F(MessagesAcrossProcesses, AReceiverThatIsKilledBeforeItsTurnGivesZero) {
  Peer peer;
  auto first = sendAside(peer.window(), peer_message::kHold);
  EXPECT_EQ(peer.hear(), "holding");
  auto second = sendAside(peer.window(), peer_message::kTell);
  auto third = sendAside(peer.window(), peer_message::kTell);
  peer.kill();
  EXPECT_EQ(first.get(), 0);
  EXPECT_EQ(second.get(), 0);
  EXPECT_EQ(third.get(), 0);
  EXPECT_EQ(peer.hear(), "");
}

TEST_F(MessagesAcrossProcesses, AReceiverOutlivesASenderThatIsKilledInMidMessage) {
  Peer sender;
  Peer receiver;
  sender.tell(words("send", receiver.window(), numberOf(peer_message::kHold), 1, 2));
  EXPECT_EQ(receiver.hear(), "holding");
  sender.kill();
  receiver.tell("release");
  EXPECT_EQ(send(receiver.window(), peer_message::kTell, 1, 2), resultOf(1, 2));
  EXPECT_TRUE(receiver.hear().starts_with("got "));
}

TEST_F(MessagesAcrossProcesses, AReceiverThatHangsHoldsTheSenderUntilItGoesOn) {
  Peer hanging;
  Peer other;
  hanging.process().suspend();
  std::atomic<bool> resumed = false;
  std::promise<void> sending;
  auto early = std::async(std::launch::async, [&] {
    sending.set_value();
    const std::intptr_t result = send(hanging.window(), peer_message::kTell, 1, 2);
    EXPECT_TRUE(resumed) << "the sender did not wait";
    return result;
  });
  sending.get_future().get();
  // Time enough for a sender that would not wait: others are served meanwhile.
  for (int i = 0; i < 200; ++i) {
    EXPECT_EQ(send(other.window(), peer_message::kTell, 1, 2), resultOf(1, 2));
    EXPECT_TRUE(other.hear().starts_with("got "));
  }
  EXPECT_EQ(titleOf(hanging.window()), "Tessaly test peer");
  EXPECT_TRUE(isAlive(hanging.window()));
  resumed = true;
  hanging.process().resume();
  EXPECT_EQ(early.get(), resultOf(1, 2));
  EXPECT_TRUE(hanging.hear().starts_with("got "));
}

TEST_F(MessagesAcrossProcesses, AReceiverThatHangsAndIsKilledLetsTheSenderGo) {
  Peer hanging;
  hanging.process().suspend();
  auto result = sendAside(hanging.window(), peer_message::kTell);
  hanging.kill();
  EXPECT_EQ(result.get(), 0);
}

TEST_F(MessagesAcrossProcesses, AWindowMayGoInItsHandler) {
  Peer peer;
  const WindowHandle window = peer.askNumber("window second");
  const std::intptr_t result = send(window, peer_message::kVanish);
  EXPECT_TRUE(result == 5 || result == 0) << result;
  EXPECT_FALSE(isAlive(window));
  EXPECT_EQ(send(window, peer_message::kTell, 1, 2), 0);
  EXPECT_EQ(send(peer.window(), peer_message::kTell, 1, 2), resultOf(1, 2));
}

TEST_F(MessagesAcrossProcesses, EachWindowOfAProcessGetsItsOwn) {
  Peer peer;
  const WindowHandle second = peer.askNumber("window second");
  EXPECT_NE(second, peer.window());
  EXPECT_EQ(titleOf(second), "second");
  EXPECT_EQ(send(second, peer_message::kTell, 3, 4), resultOf(3, 4));
  EXPECT_EQ(send(peer.window(), peer_message::kTell, 5, 6), resultOf(5, 6));
  EXPECT_TRUE(peer.hear().starts_with(words("got", numberOf(peer_message::kTell), 3, 4)));
  EXPECT_TRUE(peer.hear().starts_with(words("got", numberOf(peer_message::kTell), 5, 6)));
}

}  // namespace
}  // namespace tessaly::tests
