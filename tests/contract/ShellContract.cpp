// What a body of the area Shell must do, whichever it is.

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/Shell.h"
#include "tests/contract/RecordingOpener.h"
#include "tests/support/Platform.h"
#include "tests/support/World.h"

namespace tessaly::tests {
namespace {

using namespace platform;
using shell_result::kLastFailure;

/// Has a fake of the shipped kind answer as the platforms do.
class OpenerOfFake final : public RecordingOpener {
 public:
  explicit OpenerOfFake(fake::Shell& shell) : shell_(shell) {
    shell.onOpen([this](const fake::Shell::Opened& call) { shell_.answer(resultFor(call)); });
  }

  std::string scheme() const override { return "tessaly-tests"; }
  std::string next() override { return shell_.opened().at(next_++).file.value_or(""); }

 private:
  static std::intptr_t resultFor(const fake::Shell::Opened& call) {
    if (call.operation.value_or("open") != "open") return shell_result::kNoAssociation;
    if (call.file == kAddressOfNobody) return shell_result::kNoAssociation;
    return call.file == kMissingFile ? shell_result::kFileNotFound : shell_result::kSuccess;
  }

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

TEST_P(ShellContract, FailsForWhatNobodyOpens) { EXPECT_LE(open(kAddressOfNobody), kLastFailure); }

TEST_P(ShellContract, FailsForAFileThatIsNotThere) { EXPECT_LE(open(kMissingFile), kLastFailure); }

TEST_P(ShellContract, FailsForAnOperationThatIsUnknown) {
  EXPECT_LE(open(address("x"), "tessaly-explode"), kLastFailure);
}

}  // namespace
}  // namespace tessaly::tests
