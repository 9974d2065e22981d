// What a body of the area Shell must do, whichever it is.

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "tessaly/base/Text.h"
#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Shell.h"
#include "tests/contract/RecordingOpener.h"
#include "tests/support/Platform.h"
#include "tests/support/World.h"

namespace tessaly::tests {
namespace {

using namespace platform;
using shell_result::kLastFailure;

/// Shows what a fake of the shipped kind has kept.
class OpenerOfFake final : public RecordingOpener {
 public:
  explicit OpenerOfFake(const fake::Shell& shell) : shell_(shell) {}

  std::string scheme() const override { return "tessaly-tests"; }
  std::size_t sureLength() const override { return 200000; }
  std::string next() override { return toUtf8(fromAnsi(shell_.opened().at(next_++).file.value_or(""))); }

 private:
  const fake::Shell& shell_;
  std::size_t next_ = 0;
};

class ShellContract : public testing::TestWithParam<Body> {
 protected:
  ShellContract() {
    if (GetParam() == Body::Own) {
      opener_ = RecordingOpener::make();
    } else {
      inForce_.emplace(fake_);
      opener_ = std::make_unique<OpenerOfFake>(fake_);
    }
  }

  static std::intptr_t open(const std::string& file, const char* operation = "open") {
    return desktop().shell->ShellExecuteA(0, operation, file.c_str(), nullptr, nullptr, kShowNormal);
  }

  std::string address(const std::string& rest) const { return opener_->scheme() + ":" + rest; }
  std::size_t sureLength() const { return opener_->sureLength(); }
  std::string next() { return opener_->next(); }

 private:
  fake::Shell fake_;
  std::optional<Override> inForce_;
  std::unique_ptr<RecordingOpener> opener_;
};

/// What takes a system: code pages and programs that open things. A stand-in knows of them what a test tells
/// it.
class ShellOfSystem : public ShellContract {};

INSTANTIATE_TEST_SUITE_P(Bodies, ShellContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Bodies, ShellOfSystem, testing::Values(Body::Own),
                         testing::PrintToStringParamName());

TEST_P(ShellContract, HandsAnAddressToWhoOpensItAsItIs) {
  for (const char* const rest :
       {"", "//host.example/page.html?a=1&b=2;c#d", "a b  c", "'single' `back` $(date) $HOME ${x}", "100%",
        "%41%20", "#", "..", "../../etc/passwd", "C:\\a\\..\\b", "a;b|c>d<e&f&&g", "-x --help", "*?[a-z]~",
        "(a){b}[c]", "@,=+!^"}) {
    EXPECT_GT(open(address(rest)), kLastFailure) << rest;
    EXPECT_EQ(next(), address(rest));
  }
}

TEST_P(ShellOfSystem, ReadsAnAddressInTheSystemsCodePage) {
  for (const char16_t* const text : {u"Caf\u00E9", u"\u0416\u0443\u043A", u"\u65E5\u672C", u"\u05D0"}) {
    const std::string inCodePage = toAnsi(text);
    EXPECT_GT(open(address(inCodePage)), kLastFailure);
    EXPECT_EQ(next(), address(toUtf8(fromAnsi(inCodePage))));
  }
}

TEST_P(ShellContract, LeavesNamesOfVariablesAlone) {
  if (GetParam() == Body::Own && underWine()) GTEST_SKIP() << "Wine: it puts the variables in their place";
  EXPECT_GT(open(address("%PATH% $PATH ${PATH}")), kLastFailure);
  EXPECT_EQ(next(), address("%PATH% $PATH ${PATH}"));
}

TEST_P(ShellContract, OpensALongAddressWholeAndSurvivesOneThatIsTooLong) {
  if (GetParam() == Body::Own && underWine()) GTEST_SKIP() << "Wine: it writes over the end of its buffers";
  for (const std::size_t size : {2000U, 2100U, 30000U, 200000U}) {
    const std::string begin = address("");
    const std::string whole = begin + std::string(size - begin.size(), 'x');
    const bool isOpened = open(whole) > kLastFailure;
    EXPECT_TRUE(isOpened || size > sureLength()) << size;
    if (!isOpened) continue;
    EXPECT_EQ(next(), whole);
  }
}

TEST_P(ShellContract, TakesNoOperationForOpen) {
  const std::string file = address("x");
  const auto result = desktop().shell->ShellExecuteA(0, nullptr, file.c_str(), nullptr, nullptr, kShowNormal);
  EXPECT_GT(result, kLastFailure);
  EXPECT_EQ(next(), file);
}

TEST_P(ShellContract, KnowsItsOperationInAnyCase) {
  EXPECT_GT(open(address("x"), "Open"), kLastFailure);
  EXPECT_EQ(next(), address("x"));
}

TEST_P(ShellOfSystem, FailsForWhatNobodyOpens) { EXPECT_LE(open(kAddressOfNobody), kLastFailure); }

TEST_P(ShellOfSystem, FailsForAFileThatIsNotThere) { EXPECT_LE(open(kMissingFile), kLastFailure); }

TEST_P(ShellContract, FailsForAnOperationThatIsUnknown) {
  EXPECT_LE(open(address("x"), "tessaly-explode"), kLastFailure);
}

}  // namespace
}  // namespace tessaly::tests
