// What a click on a link brings to the programs that open things, by the platform's own shell.

#include <gtest/gtest.h>

#include <algorithm>

#include "tessaly/base/Text.h"
#include "tessaly/controls/URLLink.h"
#include "tessaly/forms/headless/Form.h"
#include "tessaly/platform/Ansi.h"
#include "tests/contract/RecordingOpener.h"
#include "tests/support/Platform.h"

namespace tessaly::tests {
namespace {

class LinkToShellTest : public testing::Test {
 protected:
  String address(std::u16string_view rest) const {
    return fromUtf8(opener_->scheme()).append(u":").append(rest);
  }

  /// What is opened by a click, in UTF-8.
  std::string openedBy(const String& url) {
    link_.URL(url);
    form_.movePointer({20, 15});
    form_.press();
    form_.release();
    return opener_->next();
  }

  std::unique_ptr<RecordingOpener> opener_ = RecordingOpener::make();
  headless::Form form_;
  URLLink& link_ = form_.add<URLLink>({10, 10, 60, 20});
};

TEST_F(LinkToShellTest, URLsOfAnyKindArriveAsTheyAre) {
  for (const char16_t* const rest :
       {u"", u"//host.example/a?b=c&d#e", u"a b  c", u"'a' `b`", u"100%", u"%41%20", u"#", u"..\\..\\b",
        u"../b", u"-x --y", u"a;b|c<d>", u"$(x) $HOME"}) {
    EXPECT_EQ(openedBy(address(rest)), toUtf8(address(rest)));
  }
}

TEST_F(LinkToShellTest, OtherScriptsPassThroughTheSystemsCodePage) {
  for (const char16_t* const rest : {u"Caf\u00E9", u"\u0416\u0443\u043A", u"\u65E5\u672C", u"\U0001F600"}) {
    const String url = address(rest);
    EXPECT_EQ(openedBy(url), toUtf8(platform::fromAnsi(platform::toAnsi(url))));
  }
}

TEST_F(LinkToShellTest, WhatTheHostPutsInItsPlaceArrivesInstead) {
  link_.events.GoToURL = [](String& URL, Boolean&) { URL += u"/b"; };
  EXPECT_EQ(openedBy(address(u"a")), toUtf8(address(u"a/b")));
}

TEST_F(LinkToShellTest, ALongURLArrivesWhole) {
  if (underWine()) GTEST_SKIP() << "Wine: it writes over the end of its buffers";
  const String begin = address(u"");
  const String url = begin + String(std::min<std::size_t>(opener_->sureLength(), 30000) - begin.size(), u'x');
  EXPECT_EQ(openedBy(url), toUtf8(url));
}

}  // namespace
}  // namespace tessaly::tests
