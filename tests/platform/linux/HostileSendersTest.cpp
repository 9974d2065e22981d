// Senders that do what none should: the receiver neither waits for them nor falls over them.

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <ctime>

#include "tests/platform/linux/ChannelSupport.h"

namespace tessaly::tests {
namespace {

using namespace platform;

/// A connection that is used by hand.
class RawSender {
 public:
  explicit RawSender(const std::filesystem::path& path)
      : socket_(::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.string().copy(address.sun_path, sizeof address.sun_path - 1);
    if (connect(socket_.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
      throw std::runtime_error("can't connect");
  }

  int get() const { return socket_.get(); }

  void send(const std::string& packet) const { ::send(get(), packet.data(), packet.size(), MSG_NOSIGNAL); }

  /// The size of the answer; 0 where the connection was ended.
  ssize_t receive(void* answer, std::size_t size) const {
    return std::max<ssize_t>(recv(get(), answer, size, 0), 0);
  }

  bool isEnded() const {
    char byte = 0;
    return receive(&byte, 1) == 0;
  }

  bool isSilentFor(int milliseconds) const {
    pollfd file{get(), POLLIN, 0};
    return poll(&file, 1, milliseconds) == 0;
  }

 private:
  Descriptor socket_;
};

std::string packetOf(std::uint32_t number, std::uint32_t reserved, std::uint64_t wParam,
                     std::int64_t lParam) {
  std::string packet(24, '\0');
  std::memcpy(packet.data(), &number, 4);
  std::memcpy(packet.data() + 4, &reserved, 4);
  std::memcpy(packet.data() + 8, &wParam, 8);
  std::memcpy(packet.data() + 16, &lParam, 8);
  return packet;
}

class HostileSendersTest : public testing::Test {
 protected:
  void expectItWorks() { EXPECT_EQ(sendTo(receiver_.window(), 5), 6); }

  std::filesystem::path path() const { return channel_.socket(receiver_.window()); }

  OwnChannel channel_;
  Receiver receiver_{"x", [](WindowHandle, const SentMessage& message) { return message.lParam + 1; }};
};

TEST_F(HostileSendersTest, ThePacketsAreAsDocumented) {
  const RawSender sender(path());
  for (std::int64_t i = 0; i < 3; ++i) {
    sender.send(packetOf(0xC001, 0, 0, i));
    std::array<char, 100> answer{};
    ASSERT_EQ(sender.receive(answer.data(), answer.size()), 8);
    std::int64_t result = 0;
    std::memcpy(&result, answer.data(), sizeof result);
    EXPECT_EQ(result, i + 1);
  }
}

TEST_F(HostileSendersTest, APacketOfAnotherFormEndsTheConnection) {
  const std::string whole = packetOf(0xC001, 0, 0, 1);
  const std::string tooMuch(100000, 'x');
  for (const std::string& packet : {std::string(), whole.substr(0, 1), whole.substr(0, 23), whole + "x",
                                    tooMuch, packetOf(0xC001, 1, 0, 1)}) {
    const RawSender sender(path());
    sender.send(packet);
    EXPECT_TRUE(sender.isEnded()) << packet.size();
    expectItWorks();
  }
}

TEST_F(HostileSendersTest, ASenderThatIsSilentHoldsNobody) {
  const RawSender silent(path());
  expectItWorks();
  const RawSender other(path());
  expectItWorks();
}

TEST_F(HostileSendersTest, ASenderThatGoesWithoutWaitingHarmsNobody) {
  for (int i = 0; i < 100; ++i) {
    const RawSender sender(path());
    if (i % 2 == 0) sender.send(packetOf(0xC001, 0, 0, 1));
  }
  expectItWorks();
}

TEST_F(HostileSendersTest, ASenderThatNeverTakesAnAnswerHoldsNobody) {
  const RawSender sender(path());
  const timeval soon = {0, 50000};
  setsockopt(sender.get(), SOL_SOCKET, SO_SNDTIMEO, &soon, sizeof soon);
  for (int i = 0; i < 2000; ++i) sender.send(packetOf(0xC001, 0, 0, 1));
  expectItWorks();
}

TEST_F(HostileSendersTest, DescriptorsThatAreSentAlongAreNotTaken) {
  Receiver counter("y", [](WindowHandle, const SentMessage&) -> std::intptr_t {
    return static_cast<std::intptr_t>(descriptors().size());
  });
  const std::intptr_t before = sendTo(counter.window());
  const RawSender sender(channel_.socket(counter.window()));
  std::string packet = packetOf(0xC001, 0, 0, 1);
  iovec bytes{packet.data(), packet.size()};
  alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> control{};
  msghdr message{};
  message.msg_iov = &bytes;
  message.msg_iovlen = 1;
  message.msg_control = control.data();
  message.msg_controllen = control.size();
  cmsghdr* header = CMSG_FIRSTHDR(&message);
  header->cmsg_level = SOL_SOCKET;
  header->cmsg_type = SCM_RIGHTS;
  header->cmsg_len = CMSG_LEN(sizeof(int));
  const int given = STDIN_FILENO;
  std::memcpy(CMSG_DATA(header), &given, sizeof given);
  ASSERT_EQ(sendmsg(sender.get(), &message, MSG_NOSIGNAL), 24);
  std::int64_t count = 0;
  ASSERT_EQ(sender.receive(&count, sizeof count), 8);
  EXPECT_EQ(count, before + 1) << "only the sender's connection came to it";
}

TEST_F(HostileSendersTest, ASecondPacketBeforeTheAnswerEndsTheConnection) {
  const Telling isUnderWay;
  const Telling goOn;
  const RawSender* hasty = nullptr;
  bool isEnded = false;
  const Window own("own", [&](const SentMessage& message) -> std::intptr_t {
    isEnded = hasty->isEnded();
    return ownMessages().PostMessageA(static_cast<WindowHandle>(message.wParam), kQuit) ? 0 : 1;
  });
  Receiver receiver("y", [&](WindowHandle, const SentMessage&) -> std::intptr_t {
    isUnderWay.tell(1);
    goOn.hear();
    const WindowHandle window = own.handle();
    return ownMessages().SendMessageA(window, 0xC001, static_cast<std::uintptr_t>(window), 0);
  });
  const RawSender sender(channel_.socket(receiver.window()));
  hasty = &sender;
  sender.send(packetOf(0xC001, 0, 0, 1));
  isUnderWay.hear();
  sender.send(packetOf(0xC001, 0, 0, 2));
  goOn.tell(1);
  EXPECT_EQ(ownMessages().GetMessageA(), kQuit);
  EXPECT_TRUE(isEnded);
}

TEST_F(HostileSendersTest, MoreSendersThanAReceiverTakesWaitForTheirTurn) {
  std::vector<std::unique_ptr<RawSender>> flood;
  flood.reserve(600);
  for (int i = 0; i < 600; ++i) flood.push_back(std::make_unique<RawSender>(path()));
  flood.back()->send(packetOf(0xC001, 0, 0, 1));
  std::int64_t result = 0;
  // All that are taken are answered twice, so the last one had time to be taken too.
  for (int i = 0; i < 1000; ++i) {
    flood[static_cast<std::size_t>(i) % 500]->send(packetOf(0xC001, 0, 0, 1));
    EXPECT_EQ(flood[static_cast<std::size_t>(i) % 500]->receive(&result, sizeof result), 8);
  }
  EXPECT_TRUE(flood.back()->isSilentFor(1));
  flood.erase(flood.begin(), flood.begin() + 300);
  EXPECT_EQ(flood.back()->receive(&result, sizeof result), 8);
  expectItWorks();
}

TEST_F(HostileSendersTest, AReceiverWithoutDescriptorsNeitherSpinsNorForgetsWhoWaits) {
  Receiver receiver("y", [](WindowHandle, const SentMessage& message) -> std::intptr_t {
    if (message.lParam != 1) return std::clock() * 1000 / CLOCKS_PER_SEC;
    const rlimit few{static_cast<rlim_t>(std::stoi(*descriptors().rbegin())) + 20, 4096};
    return setrlimit(RLIMIT_NOFILE, &few);
  });
  const auto file = channel_.socket(receiver.window());
  EXPECT_EQ(sendTo(receiver.window(), 1), 0);
  const std::intptr_t before = sendTo(receiver.window(), 2);
  std::vector<std::unique_ptr<RawSender>> flood;
  flood.reserve(60);
  for (int i = 0; i < 60; ++i) flood.push_back(std::make_unique<RawSender>(file));
  flood.back()->send(packetOf(0xC001, 0, 0, 2));
  EXPECT_TRUE(flood.back()->isSilentFor(500));
  EXPECT_LT(sendTo(receiver.window(), 2) - before, 250) << "milliseconds of work in half a second";
  flood.erase(flood.begin(), flood.end() - 1);
  std::int64_t result = 0;
  EXPECT_EQ(flood.back()->receive(&result, sizeof result), 8);
}

}  // namespace
}  // namespace tessaly::tests
