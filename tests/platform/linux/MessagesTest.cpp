// Messages between processes: who waits for whom, and what comes back when somebody is gone.

#include <gtest/gtest.h>
#include <sys/time.h>
#include <unistd.h>

#include <csignal>
#include <thread>

#include "tests/platform/linux/ChannelSupport.h"

namespace tessaly::tests {
namespace {

using namespace platform;

class MessagesTest : public testing::Test {
 protected:
  OwnChannel channel_;
};

std::intptr_t addOne(WindowHandle, const SentMessage& message) { return message.lParam + 1; }

TEST_F(MessagesTest, EverythingThatIsSentArrives) {
  Receiver receiver("x", [](WindowHandle, const SentMessage& message) -> std::intptr_t {
    const bool isWhole = message.number == 0xFFFFFFFE && message.wParam == 0x123456789ABCDEF0 &&
                         message.lParam == -458 && message.sender == static_cast<std::uint32_t>(getppid());
    return isWhole ? -0x123456789ABCDEF0 : 0;
  });
  EXPECT_EQ(ownMessages().SendMessageA(receiver.window(), 0xFFFFFFFE, 0x123456789ABCDEF0, -458),
            -0x123456789ABCDEF0);
  EXPECT_EQ(receiver.end(), 0);
}

TEST_F(MessagesTest, SendsOneAfterTheOtherKeepOneConnection) {
  Receiver receiver("x", addOne);
  sendTo(receiver.window());
  const auto open = descriptors();
  for (std::intptr_t i = 0; i < 1000; ++i) {
    ASSERT_TRUE(isAlive(receiver.window()));
    ASSERT_EQ(sendTo(receiver.window(), i), i + 1);
  }
  EXPECT_EQ(descriptors(), open);
}

TEST_F(MessagesTest, RegisteredNumbersFollowFromTheName) {
  Messages& messages = ownMessages();
  EXPECT_EQ(messages.RegisterWindowMessageA("ZPLoggerWindowMsgAddTrace"),
            messages.RegisterWindowMessageA("zploggerwindowmsgaddtrace"));
  EXPECT_EQ(messages.RegisterWindowMessageA("A"), 0xC40BF6CCU);
  EXPECT_EQ(messages.RegisterWindowMessageA("a"), 0xC40BF6CCU);
  EXPECT_EQ(messages.RegisterWindowMessageA(std::string(256, 'x').c_str()), 0U);
  EXPECT_EQ(messages.RegisterWindowMessageA(nullptr), 0U);
}

TEST_F(MessagesTest, AReceiverThatIsKilledInMidMessageGivesNothingAndItsSuccessorTheNext) {
  Receiver receiver("first",
                    [](WindowHandle, const SentMessage&) -> std::intptr_t { return raise(SIGKILL); });
  EXPECT_TRUE(isAlive(receiver.window()));
  EXPECT_EQ(sendTo(receiver.window(), 1), 0);
  receiver.kill();
  EXPECT_FALSE(isAlive(receiver.window()));
  EXPECT_EQ(sendTo(receiver.window(), 1), 0);
  Receiver successor("second", addOne);
  EXPECT_EQ(allWindows(), std::vector<WindowHandle>{successor.window()});
  EXPECT_EQ(sendTo(successor.window(), 1), 2);
}

/// A dying process lets go of its files one by one, and once its window outlived its connection: the next
/// line went there and was lost too.
TEST_F(MessagesTest, AReceiverThatDiesInMidMessageIsSeenToBeGoneAtOnce) {
  for (int i = 0; i < 100; ++i) {
    Receiver receiver("dying",
                      [](WindowHandle, const SentMessage&) -> std::intptr_t { return raise(SIGKILL); });
    EXPECT_EQ(sendTo(receiver.window(), 1), 0);
    EXPECT_FALSE(isAlive(receiver.window()));
  }
}

TEST_F(MessagesTest, AConnectionThatEndedWhileNobodySentRaisesNoSignal) {
  Receiver receiver("x", addOne);
  EXPECT_EQ(sendTo(receiver.window(), 1), 2);
  receiver.kill();
  // SIGPIPE would end the test here.
  EXPECT_EQ(sendTo(receiver.window(), 1), 0);
  EXPECT_EQ(sendTo(receiver.window(), 1), 0);
}

TEST_F(MessagesTest, AWindowThatWasClosedIsSeenToBeGoneAtOnce) {
  Receiver receiver("x", [](WindowHandle own, const SentMessage&) -> std::intptr_t {
    return ownMessages().PostMessageA(own, kQuit) ? 1 : 0;
  });
  EXPECT_TRUE(isAlive(receiver.window()));
  receiver.end();
  EXPECT_FALSE(isAlive(receiver.window()));
}

TEST_F(MessagesTest, AReceiverThatHangsHoldsTheSenderUntilItGoesOn) {
  const Telling toReceiver;
  const Telling toTest;
  Receiver receiver("x", [&](WindowHandle, const SentMessage&) -> std::intptr_t {
    toTest.tell(1);
    return toReceiver.hear();
  });
  const pid_t sender = start([&] { return sendTo(receiver.window()) == 42 ? 0 : 1; });
  toTest.hear();
  EXPECT_EQ(kill(sender, 0), 0);
  toReceiver.tell(42);
  EXPECT_EQ(endOf(sender), 0);
}

TEST_F(MessagesTest, SendersAtOnceAreHandledOneAfterTheOther) {
  Receiver receiver("x",
                    [count = std::intptr_t{0}](WindowHandle, const SentMessage&) mutable { return ++count; });
  std::vector<pid_t> senders;
  senders.reserve(3);
  for (int i = 0; i < 3; ++i) {
    senders.push_back(start([&] {
      std::intptr_t before = 0;
      for (int sent = 0; sent < 500; ++sent) {
        const std::intptr_t count = sendTo(receiver.window());
        if (count <= before) return 1;
        before = count;
      }
      return 0;
    }));
  }
  for (const pid_t sender : senders) EXPECT_EQ(endOf(sender), 0);
  EXPECT_EQ(sendTo(receiver.window()), 1501);
}

TEST_F(MessagesTest, AHandlerMaySendToTheSenderWhichHandlesItWhileItWaits) {
  WindowHandle other = 0;
  const Window own("own", [&](const SentMessage& message) -> std::intptr_t {
    // And back again, two levels deep, until the count is out.
    return message.lParam > 4 ? message.lParam : sendTo(other, message.lParam + 1);
  });
  Receiver receiver("other", [&](WindowHandle, const SentMessage& message) {
    return sendTo(own.handle(), message.lParam + 1) * 10;
  });
  other = receiver.window();
  EXPECT_EQ(sendTo(other, 0), 5000);
  EXPECT_EQ(sendTo(other, 4), 50);
}

// Two messages that waited on one connection took each other's answers.
TEST_F(MessagesTest, AMessageSentWhileAnotherWaitsGetsItsOwnAnswer) {
  const Telling toSlow;
  const Telling fromSlow;
  Receiver slow("slow", [&](WindowHandle, const SentMessage& message) -> std::intptr_t {
    if (message.lParam == 1) {
      fromSlow.tell(1);
      toSlow.hear();
    }
    return message.lParam * 100;
  });
  std::intptr_t inner = 0;
  const Window own("own", [&](const SentMessage&) {
    toSlow.tell(1);
    inner = sendTo(slow.window(), 2);
    return 0;
  });
  const pid_t third = start([&] {
    fromSlow.hear();
    sendTo(own.handle());
    return 0;
  });
  EXPECT_EQ(sendTo(slow.window(), 1), 100);
  EXPECT_EQ(inner, 200);
  EXPECT_EQ(endOf(third), 0);
}

TEST_F(MessagesTest, AWindowOfTheCallingThreadHandlesWithinTheCall) {
  const auto open = [] { return descriptors().size(); };
  std::size_t before = 0;
  const Window own("own", [&](const SentMessage& message) -> std::intptr_t {
    EXPECT_EQ(message.sender, static_cast<std::uint32_t>(getpid()));
    EXPECT_EQ(open(), before);
    return message.lParam > 0 ? sendTo(own.handle(), message.lParam - 1) + 1 : 0;
  });
  before = open();
  EXPECT_EQ(sendTo(own.handle(), 3), 3);
}

TEST_F(MessagesTest, ThreadsOfOneProcessSendToEachOther) {
  const Telling told;
  std::thread other([&] {
    const Window window("of a thread", [&](const SentMessage& message) -> std::intptr_t {
      if (message.lParam == 0) ownMessages().PostMessageA(static_cast<WindowHandle>(message.wParam), 77);
      return message.sender == static_cast<std::uint32_t>(getpid()) ? message.lParam : -1;
    });
    told.tell(window.handle());
    EXPECT_EQ(ownMessages().GetMessageA(), 77U);
  });
  const WindowHandle window = told.hear();
  EXPECT_EQ(sendTo(window, 5), 5);
  EXPECT_EQ(ownMessages().SendMessageA(window, 0xC001, static_cast<std::uintptr_t>(window), 0), 0);
  other.join();
  EXPECT_FALSE(isAlive(window));
}

TEST_F(MessagesTest, AHandlerMayDestroyItsWindowAndTheSenderGetsNothing) {
  Receiver receiver("x", [](WindowHandle own, const SentMessage&) -> std::intptr_t {
    return ownMessages().DestroyWindow(own) ? 1 : 2;
  });
  EXPECT_EQ(sendTo(receiver.window()), 0);
  EXPECT_FALSE(isAlive(receiver.window()));
  EXPECT_TRUE(namesIn(channel_.folder()).empty());
  // Without a window nothing more can come.
  EXPECT_EQ(receiver.end(), 0);
}

TEST_F(MessagesTest, AHandlerMayMakeAndDestroyOtherWindows) {
  std::vector<std::unique_ptr<Window>> others;
  Receiver receiver("x", [&](WindowHandle, const SentMessage& message) -> std::intptr_t {
    others.clear();
    for (std::intptr_t i = 0; i < message.lParam; ++i) others.push_back(std::make_unique<Window>("y"));
    return others.empty() ? 0 : others.back()->handle();
  });
  for (std::intptr_t count = 0; count < 30; ++count) {
    const std::intptr_t last = sendTo(receiver.window(), count % 4);
    EXPECT_EQ(last != 0, count % 4 != 0);
    EXPECT_EQ(allWindows().size(), static_cast<std::size_t>(count % 4 + 1));
    if (last != 0) {
      EXPECT_TRUE(isAlive(last));
    }
  }
}

TEST_F(MessagesTest, PostedMessagesComeInTheirOrderAndGoWithTheirWindow) {
  Messages& messages = ownMessages();
  const Window first("first");
  {
    const Window second("second");
    EXPECT_TRUE(messages.PostMessageA(first.handle(), 1));
    EXPECT_TRUE(messages.PostMessageA(second.handle(), 2));
    EXPECT_TRUE(messages.PostMessageA(first.handle(), 3));
  }
  EXPECT_EQ(messages.GetMessageA(), 1U);
  EXPECT_EQ(messages.GetMessageA(), 3U);
  Receiver other("x", addOne);
  EXPECT_FALSE(messages.PostMessageA(other.window(), 1)) << "it is another process's";
}

TEST_F(MessagesTest, WhatIsPostedMeanwhileWaitsUntilASendIsThrough) {
  const Window own("own", [](const SentMessage& message) -> std::intptr_t {
    return ownMessages().PostMessageA(static_cast<WindowHandle>(message.wParam), 5) ? 1 : 0;
  });
  Receiver receiver("x", [&](WindowHandle, const SentMessage&) {
    return ownMessages().SendMessageA(own.handle(), 0xC001, static_cast<std::uintptr_t>(own.handle()), 0);
  });
  EXPECT_EQ(sendTo(receiver.window()), 1);
  EXPECT_EQ(sendTo(receiver.window()), 1);
  EXPECT_EQ(ownMessages().GetMessageA(), 5U);
  EXPECT_EQ(ownMessages().GetMessageA(), 5U);
}

const Telling* interrupted = nullptr;

/// Lets signals interrupt the calling process again and again, and the receiver go on at the third.
void interruptOften(const Telling& told) {
  interrupted = &told;
  struct sigaction action {};
  action.sa_handler = [](int) {
    static volatile std::sig_atomic_t count = 0;
    count = count + 1;
    if (count == 3) interrupted->tell(1);
  };
  sigaction(SIGALRM, &action, nullptr);
  const itimerval often = {{0, 2000}, {0, 2000}};
  setitimer(ITIMER_REAL, &often, nullptr);
}

TEST_F(MessagesTest, ASendThatSignalsInterruptGoesOn) {
  const Telling third;
  Receiver receiver("x", [&](WindowHandle, const SentMessage&) -> std::intptr_t { return third.hear() + 6; });
  EXPECT_EQ(inProcess([&] {
              interruptOften(third);
              return sendTo(receiver.window()) == 7 ? 0 : 1;
            }),
            0);
  EXPECT_EQ(inProcess([&] {
              const Window own("own");
              interruptOften(third);
              return sendTo(receiver.window()) == 7 ? 0 : 1;
            }),
            0);
}

TEST_F(MessagesTest, ALoopThatSignalsInterruptGoesOn) {
  const Telling third;
  const Telling window;
  const pid_t receiver = start([&] {
    const Window own("own", [](const SentMessage& message) {
      ownMessages().PostMessageA(static_cast<WindowHandle>(message.wParam), kQuit);
      return 3;
    });
    window.tell(own.handle());
    interruptOften(third);
    return ownMessages().GetMessageA() == kQuit ? 0 : 1;
  });
  const WindowHandle handle = window.hear();
  third.hear();
  EXPECT_EQ(ownMessages().SendMessageA(handle, 0xC001, static_cast<std::uintptr_t>(handle), 0), 3);
  EXPECT_EQ(endOf(receiver), 0);
}

}  // namespace
}  // namespace tessaly::tests
