#include "tools/zplogger/Worker.h"

#include <gtest/gtest.h>

#include "tests/support/Gate.h"

namespace tessaly::zplogger {
namespace {

using std::chrono::milliseconds;

TEST(ZpWorker, IsWaitedForWhileItGetsOn) {
  tests::Gate gate;
  Worker worker([&] { gate.pass(); });
  std::size_t left = 1'000'000'000;
  const auto count = [&] {
    if (--left == 999'999'995) gate.open();
    return left;
  };
  EXPECT_TRUE(worker.endsWithin(milliseconds(1), count));
  EXPECT_LE(left, 999'999'995U);
}

TEST(ZpWorker, IsNotWaitedForWhereItHangs) {
  tests::Gate gate;
  Worker worker([&] { gate.pass(); });
  EXPECT_FALSE(worker.endsWithin(milliseconds(1), [] { return std::size_t{7}; }));
  EXPECT_FALSE(worker.endsWithin(milliseconds(1)));
  gate.open();
}

}  // namespace
}  // namespace tessaly::zplogger
