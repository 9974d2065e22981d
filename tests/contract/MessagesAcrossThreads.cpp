// What a body of the area Messages must do between the threads of one process. The stand-in is for one
// thread, so this is for the platform's own body.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <future>
#include <memory>

#include <thread>

#include "tests/contract/MessagesWorld.h"
#include "tests/support/Gate.h"

namespace tessaly::tests {
namespace {

using namespace platform;

class MessagesAcrossThreads : public testing::Test {
  MessagesWorld world_{Body::Own};
};

/// A thread with a window, which handles what is sent there until this object goes.
class WindowThread {
 public:
  explicit WindowThread(Receiver::Reaction reaction = {})
      : thread_([this, reaction = std::move(reaction)] { run(reaction); }),
        window_(made_.get_future().get()) {}
  WindowThread(const WindowThread&) = delete;
  WindowThread& operator=(const WindowThread&) = delete;
  ~WindowThread() { end(); }

  WindowHandle window() const { return window_; }
  std::thread::id id() const { return thread_.get_id(); }

  /// Ends the thread, and gives what its window got.
  std::vector<SentMessage> end() {
    if (thread_.joinable()) {
      messages().PostMessageA(window_, kQuit);
      thread_.join();
    }
    return got_;
  }

 private:
  void run(const Receiver::Reaction& reaction) {
    const Receiver receiver("A window of a thread", reaction);
    made_.set_value(receiver.handle());
    while (messages().GetMessageA() != kQuit) {
    }
    got_ = receiver.got();
  }

  std::promise<WindowHandle> made_;
  std::vector<SentMessage> got_;
  std::thread thread_;
  WindowHandle window_;
};

TEST_F(MessagesAcrossThreads, AWindowHandlesOnItsOwnThread) {
  std::thread::id handledOn;
  WindowThread receiver([&](const SentMessage&) {
    handledOn = std::this_thread::get_id();
    return 8;
  });
  EXPECT_EQ(send(receiver.window(), peer_message::kTell), 8);
  EXPECT_EQ(handledOn, receiver.id());
}

TEST_F(MessagesAcrossThreads, WhatIsSentArrivesWhole) {
  WindowThread receiver;
  EXPECT_EQ(send(receiver.window(), peer_message::kTell, UINTPTR_MAX - 1, INTPTR_MIN + 1),
            resultOf(UINTPTR_MAX - 1, INTPTR_MIN + 1));
  const auto got = receiver.end();
  ASSERT_EQ(got.size(), 1U);
  EXPECT_EQ(got[0].number, numberOf(peer_message::kTell));
  EXPECT_EQ(got[0].wParam, UINTPTR_MAX - 1);
  EXPECT_EQ(got[0].lParam, INTPTR_MIN + 1);
}

TEST_F(MessagesAcrossThreads, ASenderWaitsUntilTheWindowsThreadTakesMessages) {
  std::promise<WindowHandle> made;
  Gate sending;
  std::atomic<bool> takes = false;
  std::thread thread([&] {
    const Receiver receiver("late");
    made.set_value(receiver.handle());
    sending.pass();
    // Ten windows come and go meanwhile: the sender had time to come back if it did not wait.
    for (int i = 0; i < 10; ++i) goneWindow();
    takes = true;
    while (messages().GetMessageA() != kQuit) {
    }
  });
  const WindowHandle window = made.get_future().get();
  sending.open();
  EXPECT_EQ(send(window, peer_message::kTell, 1, 2), resultOf(1, 2));
  EXPECT_TRUE(takes) << "it was handled by another than the window's thread";
  EXPECT_TRUE(messages().PostMessageA(window, kQuit));
  thread.join();
}

TEST_F(MessagesAcrossThreads, WhatIsSentBackIsHandledWhileASenderWaits) {
  Receiver here("here");
  const WindowThread there;
  std::thread::id handledOn;
  here.onMessage([&](const SentMessage& message) -> std::intptr_t {
    handledOn = std::this_thread::get_id();
    if (message.lParam <= 0) return 1;
    return 1 + send(there.window(), peer_message::kBounce, static_cast<std::uintptr_t>(here.handle()),
                    message.lParam - 1);
  });
  EXPECT_EQ(send(there.window(), peer_message::kBounce, static_cast<std::uintptr_t>(here.handle()), 21), 22);
  EXPECT_EQ(handledOn, std::this_thread::get_id());
}

TEST_F(MessagesAcrossThreads, WhatAThirdSendsIsHandledWhileASenderWaits) {
  Gate held;
  Gate released;
  const Receiver here("here", [&](const SentMessage&) {
    released.open();
    return 3;
  });
  const WindowThread holder([&](const SentMessage&) {
    held.open();
    released.pass();
    return 4;
  });
  auto third = std::async(std::launch::async, [&] {
    held.pass();
    return send(here.handle(), peer_message::kTell);
  });
  EXPECT_EQ(send(holder.window(), peer_message::kHold), 4);
  EXPECT_EQ(third.get(), 3);
}

TEST_F(MessagesAcrossThreads, WhatTwoSendAtOnceArrivesWholeAndInOrder) {
  constexpr std::intptr_t count = 2000;
  WindowThread receiver;
  const auto flood = [&](std::uintptr_t sender) {
    std::intptr_t wrong = 0;
    for (std::intptr_t i = 0; i < count; ++i)
      wrong += send(receiver.window(), peer_message::kTell, sender, i) != resultOf(sender, i) ? 1 : 0;
    return wrong;
  };
  auto first = std::async(std::launch::async, flood, 1);
  auto second = std::async(std::launch::async, flood, 2);
  EXPECT_EQ(first.get(), 0);
  EXPECT_EQ(second.get(), 0);
  std::array<std::intptr_t, 3> next{};
  for (const SentMessage& message : receiver.end()) EXPECT_EQ(message.lParam, next.at(message.wParam)++);
  EXPECT_EQ(next[1], count);
  EXPECT_EQ(next[2], count);
}

TEST_F(MessagesAcrossThreads, TwoMaySendToEachOtherAtOnce) {
  const WindowThread first;
  const WindowThread second;
  const auto bounce = [](const WindowThread& from, const WindowThread& to) {
    return send(from.window(), peer_message::kBounce, static_cast<std::uintptr_t>(to.window()), 9);
  };
  for (int i = 0; i < 50; ++i) {
    auto there = std::async(std::launch::async, [&] { return bounce(first, second); });
    auto back = std::async(std::launch::async, [&] { return bounce(second, first); });
    EXPECT_EQ(there.get(), 10);
    EXPECT_EQ(back.get(), 10);
  }
}

TEST_F(MessagesAcrossThreads, OnlyAWindowsOwnThreadLetsItGo) {
  const WindowThread other;
  EXPECT_FALSE(messages().DestroyWindow(other.window()));
  EXPECT_TRUE(isAlive(other.window()));
  EXPECT_EQ(send(other.window(), peer_message::kTell, 1, 2), resultOf(1, 2));
}

TEST_F(MessagesAcrossThreads, AWindowGoesWithItsThread) {
  WindowHandle window = 0;
  // It outlives the thread, so nobody but the thread's end lets the window go.
  std::unique_ptr<Receiver> receiver;
  std::thread([&] {
    receiver = std::make_unique<Receiver>("brief");
    window = receiver->handle();
    EXPECT_TRUE(isAlive(window));
  }).join();
  EXPECT_FALSE(isAlive(window));
  EXPECT_EQ(send(window, peer_message::kTell, 1, 2), 0);
  EXPECT_FALSE(messages().PostMessageA(window, kQuit));
  const auto all = windowsThere();
  EXPECT_EQ(std::count(all.begin(), all.end(), window), 0);
  EXPECT_TRUE(receiver->got().empty());
}

TEST_F(MessagesAcrossThreads, ASenderComesBackWhenTheWindowGoesWithItsThread) {
  for (int i = 0; i < 20; ++i) {
    std::promise<WindowHandle> made;
    Gate sending;
    std::unique_ptr<Receiver> receiver;
    std::thread thread([&] {
      receiver = std::make_unique<Receiver>("never taking messages");
      made.set_value(receiver->handle());
      sending.pass();
    });
    const WindowHandle window = made.get_future().get();
    sending.open();
    EXPECT_EQ(send(window, peer_message::kTell, 1, 2), 0);
    thread.join();
    EXPECT_TRUE(receiver->got().empty());
  }
}

TEST_F(MessagesAcrossThreads, AWindowGoesInItsHandlerForOthersToo) {
  Receiver* own = nullptr;
  WindowHandle window = 0;
  std::promise<void> made;
  std::thread thread([&] {
    Receiver vanishing("vanishing");
    const Receiver staying("staying");
    own = &vanishing;
    window = staying.handle();
    made.set_value();
    while (messages().GetMessageA() != kQuit) {
    }
  });
  made.get_future().get();
  const WindowHandle gone = own->handle();
  const std::intptr_t result = send(gone, peer_message::kVanish);
  EXPECT_TRUE(result == 5 || result == 0) << result;
  EXPECT_FALSE(isAlive(gone));
  EXPECT_TRUE(isAlive(window));
  EXPECT_TRUE(messages().PostMessageA(window, kQuit));
  thread.join();
}

TEST_F(MessagesAcrossThreads, WhatAnotherThreadPostsIsTaken) {
  const Receiver window("receiver");
  std::thread([&] { EXPECT_TRUE(messages().PostMessageA(window.handle(), 0xC001)); }).join();
  EXPECT_EQ(messages().GetMessageA(), 0xC001U);
  std::thread late([&] { EXPECT_TRUE(messages().PostMessageA(window.handle(), kQuit)); });
  EXPECT_EQ(messages().GetMessageA(), kQuit);
  late.join();
}

TEST_F(MessagesAcrossThreads, WhatIsSentIsHandledBeforeAPostEndsTheWait) {
  Receiver window("receiver");
  auto other = std::async(std::launch::async, [&] {
    const std::intptr_t result = send(window.handle(), peer_message::kTell, 1, 2);
    messages().PostMessageA(window.handle(), kQuit);
    return result;
  });
  EXPECT_EQ(messages().GetMessageA(), kQuit);
  EXPECT_EQ(other.get(), resultOf(1, 2));
  EXPECT_EQ(window.got().size(), 1U);
}

TEST_F(MessagesAcrossThreads, AWindowOfAnotherThreadIsSeen) {
  const WindowThread other;
  EXPECT_TRUE(isAlive(other.window()));
  const auto all = windowsThere();
  EXPECT_EQ(std::count(all.begin(), all.end(), other.window()), 1);
  std::string buffer(1000, '#');
  EXPECT_EQ(messages().GetWindowTextA(other.window(), buffer.data(), 1000), 20);
  EXPECT_STREQ(buffer.c_str(), "A window of a thread");
}

TEST_F(MessagesAcrossThreads, WindowsComeAndGoWhileOthersLook) {
  std::atomic<bool> ends = false;
  std::thread maker([&] {
    while (!ends) goneWindow();
  });
  const Receiver lasting("lasting");
  for (int i = 0; i < 200; ++i) {
    const auto all = windowsThere();
    ASSERT_EQ(std::count(all.begin(), all.end(), lasting.handle()), 1) << i;
  }
  ends = true;
  maker.join();
}

}  // namespace
}  // namespace tessaly::tests
