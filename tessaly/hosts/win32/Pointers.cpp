#include "tessaly/hosts/win32/Pointers.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace tessaly::win32 {
namespace {

// The names of user32's cursors are numbers, here in the order of the pointers from 1 on. An icon and a
// sizing pointer in all directions are what later systems show an arrow and a cross of arrows for.
constexpr WORD kArrow = 32512;
constexpr WORD kText = 32513;
constexpr WORD kWait = 32514;
constexpr WORD kCross = 32515;
constexpr WORD kUp = 32516;
constexpr WORD kFallingDiagonal = 32642;
constexpr WORD kRisingDiagonal = 32643;
constexpr WORD kHorizontal = 32644;
constexpr WORD kVertical = 32645;
constexpr WORD kAllDirections = 32646;
constexpr WORD kNo = 32648;
constexpr WORD kAppStarting = 32650;
constexpr WORD kHelp = 32651;
constexpr std::array kSystemCursors{
    kArrow,      kCross, kText, kArrow, kAllDirections, kRisingDiagonal, kVertical,     kFallingDiagonal,
    kHorizontal, kUp,    kWait, kNo,    kAppStarting,   kHelp,           kAllDirections};

constexpr std::uint32_t kCoversWholly = 0xFF000000;
constexpr unsigned kBitsOfRowUnit = 16;

/// Of each pixel whether it lets the screen through, a row being filled up to 16 bits.
std::vector<BYTE> maskOf(const Picture& picture) {
  const auto width = static_cast<std::size_t>(picture.size().width);
  const std::size_t rowBytes = (width + kBitsOfRowUnit - 1) / kBitsOfRowUnit * 2;
  std::vector<BYTE> mask(rowBytes * static_cast<std::size_t>(picture.size().height));
  for (std::size_t index = 0; index < picture.pixels().size(); ++index) {
    if ((picture.pixels()[index] & kCoversWholly) != 0) continue;
    const std::size_t column = index % width;
    BYTE& bits = mask[index / width * rowBytes + column / 8];
    bits = static_cast<BYTE>(bits | (0x80U >> (column % 8)));
  }
  return mask;
}

OwnedBitmap bitmapOf(const Picture& picture) {
  const PixelSize size = picture.size();
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, size.width, -size.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  OwnedBitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (bits != nullptr) {
    std::copy(picture.pixels().begin(), picture.pixels().end(), static_cast<std::uint32_t*>(bits));
  }
  return bitmap;
}

/// As many pixels as the screen has for the picture's, each the nearest one of those.
Picture scaled(const Picture& picture, const Density& density) {
  const PixelSize size = density.toWindow(picture.size());
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
  for (PixelPoint place; place.y < size.height; ++place.y) {
    for (place.x = 0; place.x < size.width; ++place.x) {
      const PixelPoint from = density.toControl(place);
      pixels.push_back(picture.pixels()[static_cast<std::size_t>(from.y * picture.size().width + from.x)]);
    }
  }
  return {size, std::move(pixels)};
}

class ScreenOfThread final : public Screen {
 public:
  using Screen::MousePointer;

  void MousePointer(std::int16_t pointer) override {
    Screen::MousePointer(pointer);
    if (const HCURSOR cursor = systemCursor(pointer)) {
      SetCursor(cursor);
    } else if (const HWND window = windowUnderPointer()) {
      chooseCursorAnew(window);
    }
  }
};

}  // namespace

HCURSOR systemCursor(std::int16_t pointer) {
  const bool isKnown = pointer >= 1 && static_cast<std::size_t>(pointer) <= kSystemCursors.size();
  if (!isKnown) return nullptr;
  return LoadCursorW(nullptr, MAKEINTRESOURCEW(kSystemCursors[static_cast<std::size_t>(pointer - 1)]));
}

OwnedCursor cursorOf(const MouseIcon& icon, const Density& density) {
  if (icon.picture == nullptr || icon.picture->isEmpty()) return nullptr;
  const Picture picture = scaled(*icon.picture, density);
  const PixelPoint hotSpot = density.toWindow(icon.hotSpot);
  const OwnedBitmap colours = bitmapOf(picture);
  const OwnedBitmap mask(
      CreateBitmap(picture.size().width, picture.size().height, 1, 1, maskOf(picture).data()));
  ICONINFO description{FALSE, static_cast<DWORD>(hotSpot.x), static_cast<DWORD>(hotSpot.y), mask.get(),
                       colours.get()};
  return OwnedCursor(CreateIconIndirect(&description));
}

HWND windowUnderPointer() {
  POINT pointer{};
  if (GetCursorPos(&pointer) == FALSE) return nullptr;
  const HWND window = WindowFromPoint(pointer);
  return GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId() ? window : nullptr;
}

void chooseCursorAnew(HWND window) {
  SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
}

Screen& screenOfThread() {
  static thread_local ScreenOfThread screen;
  return screen;
}

}  // namespace tessaly::win32
