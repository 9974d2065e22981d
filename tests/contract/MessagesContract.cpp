// What a body of the area Messages must do within one thread, whichever it is.

#include "tessaly/platform/Messages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tests/contract/MessagesWorld.h"
#include "tests/support/Platform.h"

namespace tessaly::tests {
namespace {

using namespace platform;

class MessagesContract : public testing::TestWithParam<Body> {
  MessagesWorld world_{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Body, MessagesContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

constexpr Long kTitleSize = 1000;

/// What the call gives for the title, and the whole buffer, which held '#' before.
struct Title {
  Title(WindowHandle window, Long size, std::size_t room = 2000)
      : buffer(room, '#'), length(messages().GetWindowTextA(window, buffer.data(), size)) {}

  std::string buffer;
  Long length;
};

TEST_P(MessagesContract, RegistersNumbersFromC000On) {
  const std::uint32_t number = numberOf("tessaly.tests.a");
  EXPECT_GE(number, 0xC000U);
  EXPECT_EQ(numberOf("tessaly.tests.a"), number);
}

TEST_P(MessagesContract, NamesOfMessagesAreOneInAnyCase) {
  EXPECT_EQ(numberOf("tessaly.tests.Name"), numberOf("TESSALY.TESTS.nAME"));
}

TEST_P(MessagesContract, OtherNamesHaveOtherNumbers) {
  std::set<std::uint32_t> numbers;
  for (int i = 0; i < 50; ++i) numbers.insert(numberOf("tessaly.tests.other" + std::to_string(i)));
  EXPECT_EQ(numbers.size(), 50U);
}

TEST_P(MessagesContract, RefusesToRegisterAnEmptyName) { EXPECT_EQ(numberOf(""), 0U); }

TEST_P(MessagesContract, RegistersNamesOf255Bytes) {
  const std::string longest(255, 'n');
  EXPECT_GE(numberOf(longest), 0xC000U);
  EXPECT_EQ(numberOf(longest), numberOf(longest));
  EXPECT_EQ(numberOf(longest + "n"), 0U);
}

TEST_P(MessagesContract, AWindowHasItsTitle) {
  const Receiver window("A title: with \xE9 and more");
  ASSERT_NE(window.handle(), 0);
  const Title title(window.handle(), kTitleSize);
  EXPECT_STREQ(title.buffer.c_str(), "A title: with \xE9 and more");
  EXPECT_EQ(title.length, 24);
}

TEST_P(MessagesContract, BlanksOfATitleStay) {
  const Receiver window("  between blanks  ");
  EXPECT_STREQ(Title(window.handle(), kTitleSize).buffer.c_str(), "  between blanks  ");
}

TEST_P(MessagesContract, BytesBehindATitleStayAsTheyWere) {
  const Receiver window("short");
  const Title title(window.handle(), kTitleSize);
  EXPECT_EQ(title.buffer.substr(0, 6), std::string("short\0", 6));
  EXPECT_EQ(title.buffer.substr(6), std::string(title.buffer.size() - 6, '#'));
}

TEST_P(MessagesContract, ATitleIsCutToFit) {
  const std::string given(1200, 't');
  const Receiver window(given);
  const Title title(window.handle(), kTitleSize);
  EXPECT_EQ(title.length, kTitleSize - 1);
  EXPECT_EQ(title.buffer.substr(0, kTitleSize), given.substr(0, kTitleSize - 1) + '\0');
  EXPECT_EQ(title.buffer.substr(kTitleSize), std::string(1000, '#'));
}

TEST_P(MessagesContract, ATitleThatJustFitsIsWhole) {
  const Receiver window("12345");
  EXPECT_EQ(Title(window.handle(), 6).length, 5);
  EXPECT_STREQ(Title(window.handle(), 6).buffer.c_str(), "12345");
  EXPECT_EQ(Title(window.handle(), 5).length, 4);
  EXPECT_STREQ(Title(window.handle(), 5).buffer.c_str(), "1234");
}

TEST_P(MessagesContract, ABufferWithoutRoomGetsNoTitle) {
  const Receiver window("title");
  const Title one(window.handle(), 1);
  EXPECT_EQ(one.length, 0);
  EXPECT_EQ(one.buffer.substr(0, 2), std::string("\0#", 2));
  const Title none(window.handle(), 0);
  EXPECT_EQ(none.length, 0);
  EXPECT_EQ(none.buffer.front(), '#');
}

TEST_P(MessagesContract, AnEmptyTitleIsOnlyANul) {
  const Receiver window("");
  const Title title(window.handle(), kTitleSize);
  EXPECT_EQ(title.length, 0);
  EXPECT_EQ(title.buffer.substr(0, 2), std::string("\0#", 2));
}

TEST_P(MessagesContract, WhatDoesNotExistHasNoTitle) {
  if (GetParam() == Body::Own && underWine()) GTEST_SKIP() << kWineTitles;
  EXPECT_EQ(Title(0, kTitleSize).length, 0);
  EXPECT_EQ(Title(goneWindow(), kTitleSize).length, 0);
}

TEST_P(MessagesContract, AWindowIsAliveUntilItGoes) {
  Receiver window("alive");
  EXPECT_TRUE(isAlive(window.handle()));
  EXPECT_TRUE(window.destroy());
  EXPECT_FALSE(isAlive(window.handle()));
  EXPECT_FALSE(isAlive(0));
}

TEST_P(MessagesContract, AWindowGoesOnce) {
  Receiver window("once");
  EXPECT_TRUE(window.destroy());
  EXPECT_FALSE(window.destroy());
  EXPECT_FALSE(messages().DestroyWindow(0));
}

TEST_P(MessagesContract, AnEnumerationShowsEachWindowOnce) {
  const Receiver first("one");
  const Receiver second("two");
  const std::vector<WindowHandle> all = windowsThere();
  EXPECT_EQ(std::count(all.begin(), all.end(), first.handle()), 1);
  EXPECT_EQ(std::count(all.begin(), all.end(), second.handle()), 1);
}

TEST_P(MessagesContract, AnEnumerationShowsNoWindowThatIsGone) {
  const WindowHandle gone = goneWindow();
  const std::vector<WindowHandle> all = windowsThere();
  EXPECT_EQ(std::count(all.begin(), all.end(), gone), 0);
}

TEST_P(MessagesContract, AnEnumerationCarriesTheCallersValue) {
  const Receiver window("one");
  Long count = 40;
  const auto counting = [](WindowHandle /*window*/, Long& value) -> Long {
    ++value;
    return 1;
  };
  EXPECT_TRUE(messages().EnumWindows(counting, count));
  EXPECT_GT(count, 40);
}

TEST_P(MessagesContract, AnEnumerationEndsWhereTheCallbackSaysSo) {
  const Receiver first("one");
  const Receiver second("two");
  Long count = 0;
  const auto stopping = [](WindowHandle /*window*/, Long& value) -> Long {
    ++value;
    return 0;
  };
  EXPECT_FALSE(messages().EnumWindows(stopping, count));
  EXPECT_EQ(count, 1);
}

TEST_P(MessagesContract, AnyNumberButZeroLetsAnEnumerationGoOn) {
  const Receiver first("one");
  const Receiver second("two");
  Long count = 0;
  const auto counting = [](WindowHandle /*window*/, Long& value) -> Long {
    ++value;
    return value % 2 == 0 ? -1 : 256;
  };
  EXPECT_TRUE(messages().EnumWindows(counting, count));
  EXPECT_GE(count, 2);
}

TEST_P(MessagesContract, WhatACallbackThrowsComesOutOfTheEnumeration) {
  const Receiver first("one");
  const Receiver second("two");
  Long count = 0;
  const auto throwing = [](WindowHandle /*window*/, Long& value) -> Long {
    ++value;
    throw value;
  };
  EXPECT_THROW(messages().EnumWindows(throwing, count), Long);
  EXPECT_EQ(count, 1);
}

TEST_P(MessagesContract, ACallbackMayUseWindows) {
  Receiver window("used within an enumeration");
  const auto looking = [](WindowHandle handle, Long& value) -> Long {
    if (Title(handle, kTitleSize).buffer.starts_with("used within an")) {
      value = static_cast<Long>(messages().SendMessageA(handle, numberOf(peer_message::kTell), 2, 3));
      return 0;
    }
    return 1;
  };
  Long result = 0;
  EXPECT_FALSE(messages().EnumWindows(looking, result));
  EXPECT_EQ(result, resultOf(2, 3));
  EXPECT_EQ(window.got().size(), 1U);
}

TEST_P(MessagesContract, WhatIsSentArrivesWhole) {
  Receiver window("receiver");
  const std::uint32_t number = numberOf(peer_message::kTell);
  constexpr std::uintptr_t wParam = std::numeric_limits<std::uintptr_t>::max() - 1;
  constexpr std::intptr_t lParam = std::numeric_limits<std::intptr_t>::min() + 3;
  EXPECT_EQ(messages().SendMessageA(window.handle(), number, wParam, lParam), resultOf(wParam, lParam));
  ASSERT_EQ(window.got().size(), 1U);
  EXPECT_EQ(window.got()[0].number, number);
  EXPECT_EQ(window.got()[0].wParam, wParam);
  EXPECT_EQ(window.got()[0].lParam, lParam);
}

TEST_P(MessagesContract, TheHandlersResultComesBackWhole) {
  for (const std::intptr_t result : {std::intptr_t{-1}, std::intptr_t{1} << 40,
                                     std::numeric_limits<std::intptr_t>::min(), std::intptr_t{0}}) {
    Receiver window("receiver", [=](const SentMessage&) { return result; });
    EXPECT_EQ(messages().SendMessageA(window.handle(), numberOf("tessaly.tests.any"), 0, 0), result);
  }
}

TEST_P(MessagesContract, EachWindowGetsItsOwn) {
  Receiver first("one");
  Receiver second("two");
  messages().SendMessageA(first.handle(), numberOf(peer_message::kTell), 1, 0);
  messages().SendMessageA(second.handle(), numberOf(peer_message::kTell), 2, 0);
  ASSERT_EQ(first.got().size(), 1U);
  ASSERT_EQ(second.got().size(), 1U);
  EXPECT_EQ(first.got()[0].wParam, 1U);
  EXPECT_EQ(second.got()[0].wParam, 2U);
}

TEST_P(MessagesContract, OnlyRegisteredNumbersReachTheHandler) {
  Receiver window("receiver");
  for (const std::uint32_t number : {0U, 0x400U, 0x8000U, 0xBFFFU})
    EXPECT_EQ(messages().SendMessageA(window.handle(), number, 1, 2), 0) << number;
  EXPECT_TRUE(window.got().empty());
  EXPECT_TRUE(isAlive(window.handle()));
}

TEST_P(MessagesContract, WhatIsSentToNoWindowGivesZero) {
  const std::uint32_t number = numberOf(peer_message::kTell);
  EXPECT_EQ(messages().SendMessageA(0, number, 1, 2), 0);
  EXPECT_EQ(messages().SendMessageA(goneWindow(), number, 1, 2), 0);
  EXPECT_EQ(messages().SendMessageA(0x7ABCDEF0, number, 1, 2), 0);
}

TEST_P(MessagesContract, AHandlerMaySendToOtherWindowsAndBack) {
  Receiver first("one");
  Receiver second("two");
  EXPECT_EQ(messages().SendMessageA(first.handle(), numberOf(peer_message::kBounce),
                                    static_cast<std::uintptr_t>(second.handle()), 10),
            11);
}

TEST_P(MessagesContract, AWindowMayGoInItsHandler) {
  Receiver window("vanishing");
  const std::intptr_t result =
      messages().SendMessageA(window.handle(), numberOf(peer_message::kVanish), 0, 0);
  EXPECT_TRUE(result == 5 || result == 0) << result;
  EXPECT_FALSE(isAlive(window.handle()));
  EXPECT_EQ(messages().SendMessageA(window.handle(), numberOf(peer_message::kTell), 1, 2), 0);
  EXPECT_EQ(window.got().size(), 1U);
}

TEST_P(MessagesContract, WindowsMayComeInAHandler) {
  std::vector<std::unique_ptr<Receiver>> more;
  Receiver window("maker", [&](const SentMessage&) {
    more.push_back(std::make_unique<Receiver>("made"));
    return more.back()->handle();
  });
  const WindowHandle made = messages().SendMessageA(window.handle(), numberOf("tessaly.tests.any"), 0, 0);
  EXPECT_TRUE(isAlive(made));
  EXPECT_EQ(messages().SendMessageA(made, numberOf(peer_message::kTell), 1, 2), resultOf(1, 2));
}

TEST_P(MessagesContract, WhatIsPostedIsTakenInItsOrder) {
  Receiver window("receiver");
  EXPECT_TRUE(messages().PostMessageA(window.handle(), 0xC001));
  EXPECT_TRUE(messages().PostMessageA(window.handle(), 0xC000));
  EXPECT_TRUE(messages().PostMessageA(window.handle(), kQuit));
  EXPECT_EQ(messages().GetMessageA(), 0xC001U);
  EXPECT_EQ(messages().GetMessageA(), 0xC000U);
  EXPECT_EQ(messages().GetMessageA(), kQuit);
  EXPECT_TRUE(window.got().empty()) << "what is posted is not for the handler";
}

TEST_P(MessagesContract, WhatIsPostedForAnyWindowOfTheThreadIsTaken) {
  const Receiver first("one");
  const Receiver second("two");
  EXPECT_TRUE(messages().PostMessageA(second.handle(), 0xC001));
  EXPECT_TRUE(messages().PostMessageA(first.handle(), 0xC002));
  EXPECT_EQ(messages().GetMessageA(), 0xC001U);
  EXPECT_EQ(messages().GetMessageA(), 0xC002U);
}

TEST_P(MessagesContract, AHandlerMayPost) {
  Receiver window("receiver");
  window.onMessage(
      [&](const SentMessage&) { return messages().PostMessageA(window.handle(), kQuit) ? 1 : 0; });
  EXPECT_EQ(messages().SendMessageA(window.handle(), numberOf("tessaly.tests.any"), 0, 0), 1);
  EXPECT_EQ(messages().GetMessageA(), kQuit);
}

TEST_P(MessagesContract, NothingIsPostedToNoWindow) {
  EXPECT_FALSE(messages().PostMessageA(0, 0xC000));
  EXPECT_FALSE(messages().PostMessageA(goneWindow(), 0xC000));
}

}  // namespace
}  // namespace tessaly::tests
