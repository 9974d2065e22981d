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

/// Tells a fake of the shipped kind what nobody opens, and shows what it has kept.
class OpenerOfFake final : public RecordingOpener {
 public:
  explicit OpenerOfFake(fake::Shell& shell) : shell_(shell) {
    shell.answer(kAddressOfNobody, shell_result::kNoAssociation);
    shell.answer(kMissingFile, shell_result::kFileNotFound);
  }

  std::string scheme() const override { return "tessaly-tests"; }
  std::string next() override { return toUtf8(fromAnsi(shell_.opened().at(next_++).file.value_or(""))); }

 private:
  fake::Shell& shell_;
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
  std::string next() { return opener_->next(); }

 private:
  fake::Shell fake_;
  std::optional<Override> inForce_;
  std::unique_ptr<RecordingOpener> opener_;
};

INSTANTIATE_TEST_SUITE_P(Bodies, ShellContract, testing::Values(Body::Own, Body::Fake),
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

TEST_P(ShellContract, ReadsAnAddressInTheSystemsCodePage) {
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

TEST_P(ShellContract, SurvivesWhatIsTooLong) {
  if (GetParam() == Body::Own && underWine()) GTEST_SKIP() << "Wine: it writes over the end of its buffers";
  for (const std::size_t size : {2000U, 2100U, 30000U}) {
    if (open(address(std::string(size, 'x'))) <= kLastFailure) continue;
    EXPECT_EQ(next(), address(std::string(size, 'x')));
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

TEST_P(ShellContract, FailsForWhatNobodyOpens) { EXPECT_LE(open(kAddressOfNobody), kLastFailure); }

TEST_P(ShellContract, FailsForAFileThatIsNotThere) { EXPECT_LE(open(kMissingFile), kLastFailure); }

TEST_P(ShellContract, FailsForAnOperationThatIsUnknown) {
  EXPECT_LE(open(address("x"), "tessaly-explode"), kLastFailure);
}

}  // namespace
}  // namespace tessaly::tests
