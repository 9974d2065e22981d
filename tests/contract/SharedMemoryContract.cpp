// What a body of the area SharedMemory must do, whichever it is.

#include "tessaly/platform/SharedMemory.h"

#include <gtest/gtest.h>

#include "tests/contract/SharedMemoryWorld.h"

namespace tessaly::tests {
namespace {

using namespace platform;

class SharedMemoryContract : public testing::TestWithParam<Body> {
 protected:
  std::string name(const std::string& ending = "") const { return world_.name(ending); }

 private:
  SharedMemoryWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Body, SharedMemoryContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(SharedMemoryContract, ANewBlockIsAllZeros) {
  const Shown block(name());
  ASSERT_NE(block.view(), nullptr);
  EXPECT_TRUE(isZero(block.view()));
}

TEST_P(SharedMemoryContract, OneNameIsOneBlock) {
  const Shown first(name());
  const Shown second(name());
  ASSERT_TRUE(first.view() != nullptr && second.view() != nullptr);
  put(first.view(), "from the first");
  EXPECT_STREQ(second.view(), "from the first");
  second.view()[kSize - 1] = 'x';
  EXPECT_EQ(first.view()[kSize - 1], 'x');
}

TEST_P(SharedMemoryContract, AnOpenedBlockIsTheOneThatWasMade) {
  const Shown block(name());
  ASSERT_NE(block.view(), nullptr);
  put(block.view(), "made");
  const MappingHandle opened = open(name());
  ASSERT_NE(opened, 0);
  char* const view = show(opened, 100);
  ASSERT_NE(view, nullptr);
  EXPECT_STREQ(view, "made");
  EXPECT_TRUE(memory().UnmapViewOfFile(view));
  EXPECT_TRUE(memory().CloseHandle(opened));
}

TEST_P(SharedMemoryContract, AViewForReadingSeesWhatIsWritten) {
  const Shown block(name());
  ASSERT_NE(block.view(), nullptr);
  const MappingHandle opened = memory().OpenFileMappingA(kViewRead, name().c_str());
  ASSERT_NE(opened, 0);
  const auto* const view = static_cast<const char*>(memory().MapViewOfFile(opened, kViewRead, kSize));
  ASSERT_NE(view, nullptr);
  put(block.view(), "written later");
  EXPECT_STREQ(view, "written later");
  EXPECT_TRUE(memory().UnmapViewOfFile(view));
  EXPECT_TRUE(memory().CloseHandle(opened));
}

TEST_P(SharedMemoryContract, PagesNeedNotBeAskedForAtOnce) {
  const MappingHandle mapping = memory().CreateFileMappingA(kReadWritePages, 0, kSize, name().c_str());
  ASSERT_NE(mapping, 0);
  char* const view = show(mapping);
  ASSERT_NE(view, nullptr);
  view[kSize - 1] = 'x';
  EXPECT_TRUE(memory().UnmapViewOfFile(view));
  EXPECT_TRUE(memory().CloseHandle(mapping));
}

TEST_P(SharedMemoryContract, OtherNamesAreOtherBlocks) {
  const Shown first(name("a"));
  const Shown second(name("b"));
  ASSERT_TRUE(first.view() != nullptr && second.view() != nullptr);
  first.view()[0] = 'x';
  EXPECT_TRUE(isZero(second.view()));
}

TEST_P(SharedMemoryContract, NamesAreToldApartByCase) {
  const Shown block(name("a"));
  ASSERT_NE(block.view(), nullptr);
  block.view()[0] = 'x';
  EXPECT_FALSE(isThere(name("A")));
  const Shown other(name("A"));
  ASSERT_NE(other.view(), nullptr);
  EXPECT_TRUE(isZero(other.view()));
}

TEST_P(SharedMemoryContract, OpensNothingWhereNothingIs) {
  EXPECT_EQ(open(name()), 0);
  EXPECT_FALSE(isThere(name()));
}

TEST_P(SharedMemoryContract, ABlockThatIsThereIsOpenedWhateverItsSize) {
  const Shown small(name(), 4096);
  ASSERT_NE(small.view(), nullptr);
  const MappingHandle mapping = make(name(), 10'000);
  ASSERT_NE(mapping, 0);
  EXPECT_EQ(show(mapping, 10'000), nullptr);
  char* const view = show(mapping, 4096);
  ASSERT_NE(view, nullptr);
  small.view()[4095] = 'x';
  EXPECT_EQ(view[4095], 'x');
  EXPECT_TRUE(memory().UnmapViewOfFile(view));
  EXPECT_TRUE(memory().CloseHandle(mapping));
}

TEST_P(SharedMemoryContract, ASmallerSizeDoesNotShrinkABlockThatIsThere) {
  const Shown large(name(), 10'000);
  ASSERT_NE(large.view(), nullptr);
  const MappingHandle mapping = make(name(), 100);
  ASSERT_NE(mapping, 0);
  char* const view = show(mapping, 10'000);
  ASSERT_NE(view, nullptr);
  large.view()[9999] = 'x';
  EXPECT_EQ(view[9999], 'x');
  EXPECT_TRUE(memory().UnmapViewOfFile(view));
  EXPECT_TRUE(memory().CloseHandle(mapping));
}

TEST_P(SharedMemoryContract, ABlockCanBeShownInPart) {
  const Shown block(name());
  ASSERT_NE(block.view(), nullptr);
  put(block.view(), "its beginning");
  char* const part = show(block.mapping(), 20);
  ASSERT_NE(part, nullptr);
  EXPECT_STREQ(part, "its beginning");
  EXPECT_TRUE(memory().UnmapViewOfFile(part));
}

TEST_P(SharedMemoryContract, AViewStaysWhenItsHandleIsClosed) {
  const MappingHandle mapping = make(name());
  char* const first = show(mapping);
  char* const second = show(mapping);
  ASSERT_TRUE(first != nullptr && second != nullptr);
  first[0] = 'x';
  EXPECT_TRUE(memory().CloseHandle(mapping));
  EXPECT_EQ(second[0], 'x');
  first[kSize - 1] = 'y';
  EXPECT_EQ(second[kSize - 1], 'y') << "the views are no longer of one block";
  EXPECT_TRUE(memory().UnmapViewOfFile(first));
  EXPECT_TRUE(memory().UnmapViewOfFile(second));
}

TEST_P(SharedMemoryContract, AHandleStaysWhenItsViewIsClosed) {
  const MappingHandle mapping = make(name());
  char* const view = show(mapping);
  ASSERT_NE(view, nullptr);
  view[0] = 'x';
  EXPECT_TRUE(memory().UnmapViewOfFile(view));
  char* const again = show(mapping);
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(again[0], 'x');
  EXPECT_TRUE(memory().UnmapViewOfFile(again));
  EXPECT_TRUE(memory().CloseHandle(mapping));
}

TEST_P(SharedMemoryContract, ABlockGoesWithItsLastHandle) {
  const MappingHandle first = make(name());
  const MappingHandle second = open(name());
  char* const view = show(first);
  ASSERT_NE(view, nullptr);
  view[0] = 'x';
  EXPECT_TRUE(memory().UnmapViewOfFile(view));
  EXPECT_TRUE(memory().CloseHandle(first));
  EXPECT_TRUE(isThere(name()));
  EXPECT_TRUE(memory().CloseHandle(second));
  EXPECT_FALSE(isThere(name()));
  const Shown next(name());
  ASSERT_NE(next.view(), nullptr);
  EXPECT_TRUE(isZero(next.view())) << "the old block came back";
}

// While there are only views, the bytes stay with them; whether the name still leads there is the platform's
// affair: Windows forgets it with the last handle.
TEST_P(SharedMemoryContract, ABlockGoesWithItsLastView) {
  const MappingHandle mapping = make(name());
  char* const view = show(mapping);
  ASSERT_NE(view, nullptr);
  view[0] = 'x';
  EXPECT_TRUE(memory().CloseHandle(mapping));
  EXPECT_TRUE(memory().UnmapViewOfFile(view));
  EXPECT_FALSE(isThere(name()));
  const Shown next(name());
  ASSERT_NE(next.view(), nullptr);
  EXPECT_TRUE(isZero(next.view())) << "the old block came back";
}

TEST_P(SharedMemoryContract, TheNextBlockMayHaveAnotherSize) {
  { const Shown small(name(), 100); }
  const Shown large(name(), 100'000);
  ASSERT_NE(large.view(), nullptr);
  EXPECT_TRUE(isZero(large.view(), 100'000));
}

TEST_P(SharedMemoryContract, ClosingTwiceFails) {
  const MappingHandle mapping = make(name());
  ASSERT_NE(mapping, 0);
  EXPECT_TRUE(memory().CloseHandle(mapping));
  EXPECT_FALSE(memory().CloseHandle(mapping));
  EXPECT_FALSE(memory().CloseHandle(0));
}

TEST_P(SharedMemoryContract, UnmappingTwiceFails) {
  const MappingHandle mapping = make(name());
  const char* const view = show(mapping);
  ASSERT_NE(view, nullptr);
  EXPECT_TRUE(memory().UnmapViewOfFile(view));
  EXPECT_FALSE(memory().UnmapViewOfFile(view));
  EXPECT_FALSE(memory().UnmapViewOfFile(nullptr));
  EXPECT_TRUE(memory().CloseHandle(mapping));
}

TEST_P(SharedMemoryContract, WhatIsClosedCantBeShown) {
  const MappingHandle mapping = make(name());
  ASSERT_NE(mapping, 0);
  EXPECT_TRUE(memory().CloseHandle(mapping));
  EXPECT_EQ(show(mapping), nullptr);
  EXPECT_EQ(show(0), nullptr);
}

TEST_P(SharedMemoryContract, HandlesAreClosedOneByOne) {
  const MappingHandle first = make(name());
  const MappingHandle second = make(name());
  ASSERT_TRUE(first != 0 && second != 0);
  EXPECT_NE(first, second);
  EXPECT_TRUE(memory().CloseHandle(first));
  EXPECT_EQ(show(first), nullptr);
  char* const view = show(second);
  ASSERT_NE(view, nullptr);
  EXPECT_TRUE(memory().UnmapViewOfFile(view));
  EXPECT_TRUE(memory().CloseHandle(second));
}

}  // namespace
}  // namespace tessaly::tests
