// What a body of the area SharedMemory must do between processes.

#include <gtest/gtest.h>

#include "tests/contract/Peer.h"
#include "tests/contract/SharedMemoryWorld.h"

namespace tessaly::tests {
namespace {

class SharedMemoryAcrossProcesses : public testing::Test {
 protected:
  std::string name() const { return world_.name(); }

  /// The peer makes or opens the block and shows it.
  bool peerShows(Peer& peer) const {
    return peer.ask("create " + std::to_string(kSize) + " " + name()) == "1" &&
           peer.ask("map " + std::to_string(kSize)) == "1";
  }

 private:
  SharedMemoryWorld world_{Body::Own};
};

TEST_F(SharedMemoryAcrossProcesses, EachSeesWhatTheOtherWrites) {
  const Shown block(name());
  ASSERT_NE(block.view(), nullptr);
  Peer peer;
  ASSERT_TRUE(peerShows(peer));
  block.view()[7] = 'a';
  EXPECT_EQ(peer.ask("read 7"), std::to_string('a'));
  EXPECT_EQ(peer.ask("write 4999 98"), "1");
  EXPECT_EQ(block.view()[4999], 'b');
}

TEST_F(SharedMemoryAcrossProcesses, ABlockIsOpenedByItsName) {
  Peer peer;
  EXPECT_EQ(peer.ask("open " + name()), "0");
  const Shown block(name());
  ASSERT_NE(block.view(), nullptr);
  block.view()[0] = 'a';
  EXPECT_EQ(peer.ask("open " + name()), "1");
  EXPECT_EQ(peer.ask("map 100"), "1");
  EXPECT_EQ(peer.ask("read 0"), std::to_string('a'));
}

TEST_F(SharedMemoryAcrossProcesses, AHandleOfAnotherProcessKeepsABlock) {
  Peer peer;
  {
    const Shown block(name());
    ASSERT_NE(block.view(), nullptr);
    block.view()[0] = 'a';
    ASSERT_EQ(peer.ask("open " + name()), "1");
  }
  EXPECT_TRUE(isThere(name()));
  EXPECT_EQ(peer.ask("map 1"), "1");
  EXPECT_EQ(peer.ask("read 0"), std::to_string('a'));
  EXPECT_EQ(peer.ask("unmap"), "1");
  EXPECT_EQ(peer.ask("close"), "1");
  EXPECT_FALSE(isThere(name()));
}

TEST_F(SharedMemoryAcrossProcesses, AViewOfAnotherProcessKeepsItsBytes) {
  Peer peer;
  ASSERT_TRUE(peerShows(peer));
  {
    const Shown block(name());
    ASSERT_NE(block.view(), nullptr);
    block.view()[0] = 'a';
    EXPECT_EQ(peer.ask("close"), "1");
  }
  EXPECT_EQ(peer.ask("read 0"), std::to_string('a'));
  EXPECT_EQ(peer.ask("unmap"), "1");
  EXPECT_FALSE(isThere(name()));
  const Shown next(name());
  ASSERT_NE(next.view(), nullptr);
  EXPECT_TRUE(isZero(next.view()));
}

TEST_F(SharedMemoryAcrossProcesses, AProcessThatEndsLetsGoOfItsBlock) {
  Peer peer;
  ASSERT_TRUE(peerShows(peer));
  EXPECT_EQ(peer.ask("write 0 97"), "1");
  peer.process().closeInput();
  EXPECT_EQ(peer.process().wait(), 0);
  EXPECT_FALSE(isThere(name()));
}

TEST_F(SharedMemoryAcrossProcesses, AProcessThatIsKilledLetsGoOfItsBlock) {
  Peer peer;
  ASSERT_TRUE(peerShows(peer));
  EXPECT_EQ(peer.ask("write 0 97"), "1");
  peer.kill();
  EXPECT_FALSE(isThere(name()));
  const Shown next(name());
  ASSERT_NE(next.view(), nullptr);
  EXPECT_TRUE(isZero(next.view()));
}

TEST_F(SharedMemoryAcrossProcesses, ABlockStaysWhenAnotherHolderIsKilled) {
  const Shown block(name());
  ASSERT_NE(block.view(), nullptr);
  {
    Peer peer;
    ASSERT_TRUE(peerShows(peer));
    EXPECT_EQ(peer.ask("write 0 97"), "1");
    peer.kill();
  }
  EXPECT_EQ(block.view()[0], 'a');
  Peer next;
  ASSERT_TRUE(peerShows(next));
  EXPECT_EQ(next.ask("read 0"), std::to_string('a'));
}

}  // namespace
}  // namespace tessaly::tests
