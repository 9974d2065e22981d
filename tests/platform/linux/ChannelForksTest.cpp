// A process that forks, and programs that it starts: windows and connections are the parent's alone.

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <csignal>
#include <thread>

#include "tests/platform/linux/ChannelSupport.h"

namespace tessaly::tests {
namespace {

using namespace platform;

class ChannelForksTest : public testing::Test {
 protected:
  OwnChannel channel_;
};

std::intptr_t giveSender(WindowHandle, const SentMessage& message) { return message.sender; }

/// What a child can do with a window of its parent that it should not; 0 is nothing.
int misuse(WindowHandle parents, const std::set<std::string>& descriptorsBefore) {
  const auto open = descriptors();
  if (!std::includes(descriptorsBefore.begin(), descriptorsBefore.end(), open.begin(), open.end())) return 1;
  if (!isAlive(parents) || titleOf(parents) != "the parent's") return 2;
  if (ownMessages().DestroyWindow(parents)) return 3;
  if (ownMessages().PostMessageA(parents, 1)) return 4;
  return ownMessages().GetMessageA() == kQuit ? 0 : 5;
}

TEST_F(ChannelForksTest, AChildHasNoneOfTheParentsWindows) {
  const auto before = descriptors();
  const Window window("the parent's", [](const SentMessage& message) -> std::intptr_t {
    ownMessages().PostMessageA(static_cast<WindowHandle>(message.wParam), 5);
    return message.sender;
  });
  const pid_t child = start([&] {
    const int found = misuse(window.handle(), before);
    const auto handle = static_cast<std::uintptr_t>(window.handle());
    return ownMessages().SendMessageA(window.handle(), 0xC001, handle, 0) == getpid() ? found : 6;
  });
  EXPECT_EQ(ownMessages().GetMessageA(), 5U);
  EXPECT_EQ(endOf(child), 0);
  EXPECT_TRUE(isAlive(window.handle()));
  EXPECT_TRUE(std::filesystem::exists(channel_.socket(window.handle())));
}

TEST_F(ChannelForksTest, AChildDoesNotKeepAKilledParentsWindowAlive) {
  const Telling told;
  const Telling toChild;
  const pid_t parent = start([&] {
    const Window window("x");
    start([&] {
      told.tell(window.handle());
      return static_cast<int>(toChild.hear());
    });
    pause();
    return 0;
  });
  const WindowHandle window = told.hear();
  EXPECT_TRUE(isAlive(window));
  killNow(parent);
  EXPECT_FALSE(isAlive(window));
  EXPECT_EQ(sendTo(window), 0);
  toChild.tell(0);
}

TEST_F(ChannelForksTest, AChildMakesWindowsAndSendsByItself) {
  Receiver receiver("x", giveSender);
  const Window own("own");
  EXPECT_EQ(sendTo(receiver.window()), getpid());
  EXPECT_EQ(inProcess([&] {
              if (sendTo(receiver.window()) != getpid()) return 1;
              Receiver grandchild("y", giveSender);
              const Window window("the child's");
              if (allWindows() != std::vector<WindowHandle>{window.handle(), grandchild.window(),
                                                            own.handle(), receiver.window()})
                return 2;
              return sendTo(grandchild.window()) == getpid() && grandchild.end() == 0 ? 0 : 3;
            }),
            0);
  EXPECT_EQ(allWindows(), (std::vector<WindowHandle>{own.handle(), receiver.window()}));
  EXPECT_EQ(sendTo(receiver.window()), getpid());
}

TEST_F(ChannelForksTest, AChildThatEndsLeavesTheParentsConnection) {
  Receiver receiver("x", giveSender);
  sendTo(receiver.window());
  EXPECT_EQ(inProcess([&] { return isAlive(receiver.window()) ? 0 : 1; }), 0);
  const auto open = descriptors();
  EXPECT_EQ(sendTo(receiver.window()), getpid());
  EXPECT_EQ(descriptors(), open) << "it was connected anew";
}

TEST_F(ChannelForksTest, AChildThatIsForkedByAHandlerComesOutWithoutAWindow) {
  const Telling child;
  Receiver receiver("x", [&](WindowHandle own, const SentMessage& message) -> std::intptr_t {
    if (fork() != 0) return message.lParam;
    child.tell(isAlive(own) && !ownMessages().DestroyWindow(own) ? 1 : 0);
    // The loop around this ends with `kQuit`, and the process with it.
    return -1;
  });
  EXPECT_EQ(sendTo(receiver.window(), 5), 5);
  EXPECT_EQ(child.hear(), 1);
  EXPECT_EQ(sendTo(receiver.window(), 6), 6);
  EXPECT_EQ(child.hear(), 1);
}

TEST_F(ChannelForksTest, AChildThatIsForkedWhileTheParentWaitsGetsNoAnswer) {
  const Telling child;
  pid_t forked = -1;
  const Window own("own", [&](const SentMessage&) -> std::intptr_t {
    forked = fork();
    return 1;
  });
  Receiver receiver("x", [&](WindowHandle, const SentMessage&) { return sendTo(own.handle()) + 1; });
  const std::intptr_t result = sendTo(receiver.window());
  if (forked == 0) {
    child.tell(result);
    _exit(0);
  }
  EXPECT_EQ(result, 2);
  EXPECT_EQ(child.hear(), 0);
  EXPECT_EQ(endOf(forked), 0);
}

TEST_F(ChannelForksTest, AProcessMayForkWhileThreadsSendAndMakeWindows) {
  Receiver receiver("x", giveSender);
  std::atomic<bool> isOver = false;
  std::thread sender([&] {
    while (!isOver) EXPECT_EQ(sendTo(receiver.window()), getpid());
  });
  std::thread maker([&] {
    while (!isOver) EXPECT_NE(Window("y").handle(), 0);
  });
  for (int i = 0; i < 30; ++i) {
    EXPECT_EQ(inProcess([&] {
                const Window window("z");
                return window.handle() != 0 && sendTo(receiver.window()) == getpid() ? 0 : 1;
              }),
              0);
  }
  isOver = true;
  sender.join();
  maker.join();
  EXPECT_EQ(allWindows(), std::vector<WindowHandle>{receiver.window()});
}

TEST_F(ChannelForksTest, NoProgramThatIsStartedGetsADescriptor) {
  const auto before = inheritedDescriptors();
  Receiver receiver("x", [&](WindowHandle, const SentMessage&) -> std::intptr_t {
    return inheritedDescriptors() == before ? 1 : 0;
  });
  const Window window("y");
  EXPECT_EQ(sendTo(receiver.window()), 1);
  EXPECT_EQ(inheritedDescriptors(), before);
}

TEST_F(ChannelForksTest, WhatIsOverLeavesNoDescriptor) {
  Receiver receiver("x", giveSender);
  const auto before = descriptors();
  std::thread([&] {
    const Window window("y");
    EXPECT_EQ(sendTo(receiver.window()), getpid());
    EXPECT_NE(descriptors(), before);
  }).join();
  EXPECT_EQ(descriptors(), before);
}

}  // namespace
}  // namespace tessaly::tests
