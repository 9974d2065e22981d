// What a window is to other processes: its files, who lives, and what the dead have left.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "tessaly/platform/Core.h"
#include "tests/platform/linux/ChannelSupport.h"

namespace tessaly::tests {
namespace {

using namespace platform;
using std::filesystem::path;
using Windows = std::vector<WindowHandle>;

std::intptr_t ignore(WindowHandle, const SentMessage&) { return 0; }

std::string textOf(const path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class EndpointsTest : public testing::Test {
 protected:
  /// What a killed process has left of a window.
  WindowHandle leaveDead() const {
    Receiver receiver("the dead one's", ignore);
    receiver.kill();
    return receiver.window();
  }

  std::set<std::string> files() const { return namesIn(channel_.folder()); }

  OwnChannel channel_;
};

TEST_F(EndpointsTest, AWindowHasTwoFilesByItsNumberForTheOwnerAlone) {
  const mode_t before = umask(0);
  WindowHandle handle = 0;
  {
    const Window window("A title");
    handle = window.handle();
    umask(before);
    ASSERT_GT(handle, 0);
    ASSERT_LE(handle, 0x7FFFFFFF);
    EXPECT_EQ(textOf(channel_.title(handle)), "A title");
    EXPECT_EQ(permissionsOf(channel_.title(handle)), 0600U);
    EXPECT_EQ(permissionsOf(channel_.socket(handle)), 0600U);
    EXPECT_TRUE(std::filesystem::is_socket(channel_.socket(handle)));
    EXPECT_EQ(files().size(), 2U);
  }
  EXPECT_TRUE(files().empty());
  EXPECT_FALSE(isAlive(handle));
}

TEST_F(EndpointsTest, AnUmaskThatTakesEverythingBreaksNothing) {
  EXPECT_EQ(asNobody([&] {
              const TemporaryFolder base;
              setenv("XDG_RUNTIME_DIR", base.path().c_str(), 1);
              umask(0777);
              Receiver receiver("x", [](WindowHandle, const SentMessage& message) { return message.lParam; });
              return titleOf(receiver.window()) == "x" && sendTo(receiver.window(), 5) == 5 ? 0 : 1;
            }),
            0);
}

TEST_F(EndpointsTest, TitlesAreKeptInUtf8) {
  const String title = u"Gr\u00FC\u00DFe";
  const Window window(core().locale->WideCharToMultiByte(core().locale->GetACP(), title).c_str());
  EXPECT_EQ(textOf(channel_.title(window.handle())),
            "Gr\xC3\xBC\xC3\x9F"
            "e");
  EXPECT_EQ(titleOf(window.handle()), core().locale->WideCharToMultiByte(core().locale->GetACP(), title));
}

TEST_F(EndpointsTest, TheNewestWindowComesFirst) {
  Windows made;
  std::vector<std::unique_ptr<Window>> windows;
  for (int i = 0; i < 20; ++i) {
    windows.push_back(std::make_unique<Window>("x"));
    made.insert(made.begin(), windows.back()->handle());
  }
  EXPECT_EQ(allWindows(), made);
}

TEST_F(EndpointsTest, WindowsOfAllProcessesAreFound) {
  const Receiver first("first", ignore);
  const Window own("own");
  const Receiver last("last", ignore);
  EXPECT_EQ(allWindows(), (Windows{last.window(), own.handle(), first.window()}));
  EXPECT_EQ(titleOf(first.window()), "first");
  EXPECT_TRUE(isAlive(first.window()));
}

TEST_F(EndpointsTest, ADeadProcessesWindowIsNeverFoundAliveAndIsSwept) {
  const WindowHandle dead = leaveDead();
  const Window living("living");
  EXPECT_EQ(files().size(), 4U);
  EXPECT_FALSE(isAlive(dead));
  EXPECT_EQ(titleOf(dead), "");
  EXPECT_EQ(sendTo(dead), 0);
  EXPECT_EQ(allWindows(), Windows{living.handle()});
  EXPECT_EQ(files().size(), 2U);
}

TEST_F(EndpointsTest, WhileAWindowIsBeingMadeNothingIsSwept) {
  const WindowHandle dead = leaveDead();
  const Descriptor folder(open(channel_.folder().c_str(), O_RDONLY | O_CLOEXEC));
  ASSERT_EQ(flock(folder.get(), LOCK_SH), 0);
  EXPECT_EQ(allWindows(), Windows());
  EXPECT_TRUE(std::filesystem::exists(channel_.title(dead)));
  ASSERT_EQ(flock(folder.get(), LOCK_UN), 0);
  EXPECT_EQ(allWindows(), Windows());
  EXPECT_TRUE(files().empty());
}

TEST_F(EndpointsTest, ManyThatAskAtOnceDoNotTakeEachOtherForTheWindow) {
  for (int round = 0; round < 20; ++round) {
    const WindowHandle dead = leaveDead();
    std::vector<pid_t> processes;
    processes.reserve(3);
    for (int i = 0; i < 3; ++i)
      processes.push_back(start([&] { return isAlive(dead) || !allWindows().empty() ? 1 : 0; }));
    for (const pid_t process : processes) EXPECT_EQ(endOf(process), 0);
  }
}

TEST_F(EndpointsTest, WindowsThatComeAndGoWhileOthersLookAreFoundWholeOrNotAtAll) {
  const pid_t maker = start([] {
    while (Window("whole").handle() != 0) {
    }
    return 1;
  });
  for (int seen = 0; seen < 500;) {
    for (const WindowHandle window : allWindows()) {
      const std::string title = titleOf(window);
      EXPECT_TRUE(title == "whole" || !isAlive(window)) << title;
      ++seen;
    }
  }
  killNow(maker);
  EXPECT_TRUE(allWindows().empty());
  EXPECT_TRUE(files().empty());
}

TEST_F(EndpointsTest, OtherFilesInTheFolderAreLeftAlone) {
  const Window window("x");
  const path folder = channel_.folder();
  for (const char* name : {"00000000.title", "80000000.title", "0000000A.title", "1.title", "12345678.titles",
                           "readme", "0x123456.title", "-1234567.title"})
    std::ofstream(folder / name) << "text";
  std::filesystem::create_directory(folder / "00000001.title");
  std::filesystem::create_symlink("/etc/passwd", folder / "00000002.title");
  EXPECT_EQ(allWindows(), Windows{window.handle()});
  EXPECT_TRUE(std::filesystem::exists(folder / "80000000.title"));
  EXPECT_TRUE(std::filesystem::is_symlink(folder / "00000002.title"));
  EXPECT_EQ(titleOf(2), "");
}

TEST_F(EndpointsTest, AFifoInATitlesPlaceHoldsNobody) {
  const Window window("x");
  ASSERT_EQ(mkfifo((channel_.folder() / "00000001.title").c_str(), 0600), 0);
  EXPECT_EQ(allWindows(), Windows{window.handle()});
  EXPECT_FALSE(isAlive(1));
  EXPECT_EQ(titleOf(1), "");
}

TEST_F(EndpointsTest, ATitleWithoutEndIsReadAsFarAsTitlesGo) {
  const Window window("x");
  ASSERT_EQ(truncate(channel_.title(window.handle()).c_str(), 1 << 30), 0);
  std::string buffer(200000, 'x');
  const Long size = ownMessages().GetWindowTextA(window.handle(), buffer.data(), 200000);
  EXPECT_EQ(size, 65536);
}

TEST_F(EndpointsTest, AThreadsWindowsGoWithIt) {
  WindowHandle window = 0;
  std::thread([&] {
    static Handler handler([](const SentMessage&) { return 0; });
    window = ownMessages().CreateWindowExA("of a thread", handler);
    EXPECT_EQ(allWindows(), Windows{window});
  }).join();
  EXPECT_NE(window, 0);
  EXPECT_FALSE(isAlive(window));
  EXPECT_FALSE(ownMessages().PostMessageA(window, kQuit));
  EXPECT_TRUE(files().empty());
}

TEST_F(EndpointsTest, AProgramThatEndsLeavesNoWindow) {
  EXPECT_EQ(inProcess([]() -> int {
              static Handler handler([](const SentMessage&) { return 0; });
              std::exit(ownMessages().CreateWindowExA("x", handler) != 0 ? 0 : 1);
            }),
            0);
  EXPECT_TRUE(files().empty());
}

TEST_F(EndpointsTest, AnotherThreadsWindowIsNotDestroyed) {
  const Window window("x");
  std::thread([&] {
    EXPECT_FALSE(ownMessages().DestroyWindow(window.handle()));
    EXPECT_TRUE(isAlive(window.handle()));
  }).join();
  EXPECT_TRUE(isAlive(window.handle()));
}

TEST_F(EndpointsTest, LongFolderNamesWork) {
  path base = channel_.base();
  for (int i = 0; i < 3; ++i) base /= std::string(200, 'x');
  std::filesystem::create_directories(base);
  EXPECT_EQ(inProcess([&] {
              setenv("XDG_RUNTIME_DIR", base.c_str(), 1);
              Receiver receiver("far away",
                                [](WindowHandle, const SentMessage& message) { return message.lParam + 1; });
              if (allWindows() != Windows{receiver.window()}) return 1;
              return sendTo(receiver.window(), 1) == 2 && receiver.end() == 0 ? 0 : 2;
            }),
            0);
  EXPECT_TRUE(namesIn(base / "tessaly").empty());
}

TEST_F(EndpointsTest, WithoutARuntimeFolderWindowsAreFoundInTheTemporaryOne) {
  EXPECT_EQ(inProcess([&] {
              unsetenv("XDG_RUNTIME_DIR");
              setenv("TMPDIR", channel_.base().c_str(), 1);
              Receiver receiver("x", [](WindowHandle, const SentMessage&) { return 7; });
              if (!std::filesystem::exists(channel_.base() / ("tessaly-" + std::to_string(geteuid()))))
                return 1;
              return allWindows().size() == 1 && sendTo(receiver.window()) == 7 ? 0 : 2;
            }),
            0);
}

int connectTo(const path& socket) {
  const Descriptor client(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  socket.string().copy(address.sun_path, sizeof address.sun_path - 1);
  return connect(client.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 ? 0 : errno;
}

TEST_F(EndpointsTest, AnotherUserCanNeitherListNorConnect) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be another user";
  const Window window("x");
  chmod(channel_.base().c_str(), 0755);
  EXPECT_EQ(connectTo(channel_.socket(window.handle())), 0);
  EXPECT_EQ(asNobody([&] { return connectTo(channel_.socket(window.handle())); }), EACCES);
  EXPECT_EQ(asNobody([&] { return open(channel_.folder().c_str(), O_RDONLY | O_CLOEXEC) < 0 ? errno : 0; }),
            EACCES);
  EXPECT_EQ(asNobody([&] {
              return open(channel_.title(window.handle()).c_str(), O_RDONLY | O_CLOEXEC) < 0 ? errno : 0;
            }),
            EACCES);
}

TEST_F(EndpointsTest, AnotherUserIsNoSenderEvenWhereTheFolderIsOpenToHim) {
  if (geteuid() != 0) GTEST_SKIP() << "only root can be another user";
  Receiver receiver("x", [](WindowHandle, const SentMessage&) { return 9; });
  chmod(channel_.base().c_str(), 0755);
  chmod(channel_.folder().c_str(), 0755);
  chmod(channel_.socket(receiver.window()).c_str(), 0666);
  EXPECT_EQ(asNobody([&] {
              const Descriptor client(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0));
              sockaddr_un address{};
              address.sun_family = AF_UNIX;
              channel_.socket(receiver.window()).string().copy(address.sun_path, sizeof address.sun_path - 1);
              if (connect(client.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0) return 1;
              const char packet[24] = {1};
              send(client.get(), packet, sizeof packet, MSG_NOSIGNAL);
              char answer[8];
              return recv(client.get(), answer, sizeof answer, 0) <= 0 ? 0 : 2;
            }),
            0);
  chmod(channel_.folder().c_str(), 0700);
  EXPECT_EQ(sendTo(receiver.window()), 9);
}

}  // namespace
}  // namespace tessaly::tests
