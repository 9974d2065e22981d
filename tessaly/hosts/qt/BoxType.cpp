#include "tessaly/hosts/qt/BoxType.h"

#include <algorithm>
#include <array>

namespace tessaly::qt {
namespace {

constexpr std::uint32_t kButtonBits = 0xF;
constexpr std::uint32_t kIconBits = 0xF0;
constexpr std::uint32_t kDefaultBits = 0xF00;
constexpr std::uint32_t kSystemModal = 0x1000;
constexpr std::uint32_t kTaskModal = 0x2000;
constexpr std::uint32_t kHelp = 0x4000;
constexpr std::uint32_t kSetForeground = 0x10000;
constexpr std::uint32_t kTopMost = 0x40000;
constexpr std::uint32_t kRight = 0x80000;
constexpr std::uint32_t kRightToLeft = 0x100000;

constexpr BoxButton kOk{1, QMessageBox::Ok};
constexpr BoxButton kCancel{2, QMessageBox::Cancel};
constexpr BoxButton kAbort{3, QMessageBox::Abort};
constexpr BoxButton kRetry{4, QMessageBox::Retry};
constexpr BoxButton kIgnore{5, QMessageBox::Ignore};
constexpr BoxButton kYes{6, QMessageBox::Yes};
constexpr BoxButton kNo{7, QMessageBox::No};
constexpr BoxButton kTryAgain{10, QMessageBox::NoButton, "&Try Again"};
constexpr BoxButton kContinue{11, QMessageBox::NoButton, "&Continue"};

std::vector<BoxButton> buttonsOf(std::uint32_t type) {
  switch (type & kButtonBits) {
    case 0:
      return {kOk};
    case 1:
      return {kOk, kCancel};
    case 2:
      return {kAbort, kRetry, kIgnore};
    case 3:
      return {kYes, kNo, kCancel};
    case 4:
      return {kYes, kNo};
    case 5:
      return {kRetry, kCancel};
    case 6:
      return {kCancel, kTryAgain, kContinue};
    default:
      return {};
  }
}

QMessageBox::Icon iconOf(std::uint32_t type) {
  switch (type & kIconBits) {
    case 0x10:
      return QMessageBox::Critical;
    case 0x20:
      return QMessageBox::Question;
    case 0x30:
      return QMessageBox::Warning;
    case 0x40:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

std::optional<Long> escapeOf(const std::vector<BoxButton>& buttons) {
  if (buttons.size() == 1) return buttons.front().result;
  const bool hasCancel = std::any_of(buttons.begin(), buttons.end(),
                                     [](const BoxButton& b) { return b.result == kCancel.result; });
  return hasCancel ? std::optional(kCancel.result) : std::nullopt;
}

}  // namespace

std::optional<BoxType> boxType(Long type) {
  const auto bits = static_cast<std::uint32_t>(type);
  const auto has = [bits](std::uint32_t flag) { return (bits & flag) != 0; };
  BoxType box;
  box.buttons = buttonsOf(bits);
  if (box.buttons.empty()) return {};
  box.escape = escapeOf(box.buttons);
  box.icon = iconOf(bits);
  box.hasHelp = has(kHelp);
  const std::size_t wanted = (bits & kDefaultBits) >> 8U;
  box.defaultButton = wanted < box.buttons.size() + (box.hasHelp ? 1 : 0) ? wanted : 0;
  box.isOnTop = has(kSystemModal) || has(kTopMost);
  box.blocksAll = has(kSystemModal) || has(kTaskModal);
  box.comesToFront = has(kSetForeground);
  box.isAlignedRight = has(kRight);
  box.isRightToLeft = has(kRightToLeft);
  return box;
}

}  // namespace tessaly::qt
