#include "examples/showcase/window/win32/DialogWindow.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "examples/showcase/window/win32/Parts.h"
#include "tessaly/base/Text.h"

namespace showcase {

using tessaly::Long;
using tessaly::toWide;

namespace {

constexpr int kEdge = 16;
constexpr int kBetweenRows = 9;
constexpr int kBetween = 8;
constexpr int kButtonHeight = 27;
constexpr int kLeastButtonWidth = 88;
constexpr int kAroundText = 24;
constexpr int kDropHeight = 220;
constexpr int kFirstFieldId = 1000;
constexpr UINT kVisit = WM_APP;
constexpr std::int16_t kF1 = 112;

/// A dialog without items, which are made when it is there.
struct Template {
  DLGTEMPLATE head;
  WORD menu = 0;
  WORD windowClass = 0;
  WORD title = 0;
};

std::int16_t shiftStateNow() {
  const auto held = [](int key) { return (GetKeyState(key) & 0x8000) != 0; };
  return static_cast<std::int16_t>((held(VK_SHIFT) ? 1 : 0) | (held(VK_CONTROL) ? 2 : 0) |
                                   (held(VK_MENU) ? 4 : 0));
}

void moveTo(HWND window, int left, int top, int width, int height) {
  MoveWindow(window, left, top, width, height, FALSE);
}

/// Gives a dialog's inside a size, and places it in the middle before its owner.
void centre(HWND dialog, int width, int height) {
  RECT outer{0, 0, width, height};
  AdjustWindowRectEx(&outer, static_cast<DWORD>(GetWindowLongW(dialog, GWL_STYLE)), FALSE, 0);
  RECT owner{};
  GetWindowRect(GetWindow(dialog, GW_OWNER), &owner);
  const int outerWidth = static_cast<int>(outer.right - outer.left);
  const int outerHeight = static_cast<int>(outer.bottom - outer.top);
  const int left = static_cast<int>(owner.left + owner.right - outerWidth) / 2;
  const int top = static_cast<int>(owner.top + owner.bottom - outerHeight) / 2;
  SetWindowPos(dialog, nullptr, std::max(left, 0), std::max(top, 0), outerWidth, outerHeight,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

DialogWindow::DialogWindow(Dialog& dialog, DialogVisit visit)
    : dialog_(dialog), visit_(std::move(visit)), usual_(messageFont()), heading_(headingFont()) {}

Long DialogWindow::run(HWND owner, bool isFromRight) {
  Template description{};
  description.head.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;
  description.head.dwExtendedStyle = isFromRight ? WS_EX_LAYOUTRTL : 0;
  const INT_PTR button = DialogBoxIndirectParamW(GetModuleHandleW(nullptr), &description.head, owner,
                                                 procedure, reinterpret_cast<LPARAM>(this));
  window_ = nullptr;
  dialog_.window = 0;
  return button > 0 ? static_cast<Long>(button) : Dialog::kCancel;
}

INT_PTR CALLBACK DialogWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    auto* const created = reinterpret_cast<DialogWindow*>(lParam);
    SetWindowLongPtrW(window, DWLP_USER, lParam);
    created->window_ = window;
    created->fill();
    return FALSE;
  }
  auto* const self = reinterpret_cast<DialogWindow*>(GetWindowLongPtrW(window, DWLP_USER));
  return self != nullptr && self->handle(message, wParam) ? TRUE : FALSE;
}

bool DialogWindow::handle(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_COMMAND:
      command(LOWORD(wParam), HIWORD(wParam));
      return true;
    case WM_HELP:
      dialog_.onKey(kF1, shiftStateNow());
      return true;
    case kVisit:
      visit_(*this);
      return true;
    default:
      return false;
  }
}

void DialogWindow::fill() {
  dialog_.window = reinterpret_cast<tessaly::platform::WindowHandle>(window_);
  SetWindowTextW(window_, toWide(dialog_.title).c_str());
  const DialogFonts fonts{usual_.get(), heading_.get()};
  for (const Field& field : dialog_.fields) {
    rows_.push_back(makeRow(window_, field, kFirstFieldId + static_cast<int>(rows_.size()), fonts));
  }
  const int height = placeButtons(placeRows());
  centre(window_, kRowWidth + 2 * kEdge, height);
  writeFields();
  // This selects what is written there, too.
  SendMessageW(window_, WM_NEXTDLGCTL,
               reinterpret_cast<WPARAM>(hasEntry(dialog_) ? GetNextDlgTabItem(window_, nullptr, FALSE)
                                                          : GetDlgItem(window_, dialog_.buttons[0].id)),
               TRUE);
  if (visit_) PostMessageW(window_, kVisit, 0, 0);
}

int DialogWindow::placeRows() {
  int labelWidth = 0;
  for (const Row& row : rows_) labelWidth = std::max(labelWidth, row.labelWidth);
  int top = kEdge;
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const Row& row = rows_[i];
    const int indent = row.label == nullptr ? 0 : labelWidth + kBetween;
    const bool drops = dialog_.fields[i].kind == Field::Kind::Choice;
    if (row.label != nullptr) moveTo(row.label, kEdge, top + 4, labelWidth, row.height - 4);
    moveTo(row.window, kEdge + indent, top, row.width > 0 ? row.width : kRowWidth - indent,
           drops ? kDropHeight : row.height);
    top += row.height + kBetweenRows;
  }
  return top + kBetween;
}

/// From the end backwards, but for the one that is none of the usual ones, which stands at the beginning.
int DialogWindow::placeButtons(int top) {
  std::vector<std::pair<HWND, int>> made;
  for (const DialogButton& button : dialog_.buttons) {
    const std::wstring text = toWide(button.text);
    const DWORD kind = made.empty() ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    const HWND window = CreateWindowExW(
        0, WC_BUTTONW, text.c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP | kind, 0, 0, 0, 0, window_,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(button.id)), GetModuleHandleW(nullptr), nullptr);
    setFont(window, usual_.get());
    const int width = static_cast<int>(sizeOf(window_, usual_.get(), text, kRowWidth).cx) + kAroundText;
    made.emplace_back(window, std::max(width, kLeastButtonWidth));
  }
  int end = kEdge + kRowWidth;
  for (std::size_t i = made.size(); i-- > 0;) {
    const auto [window, width] = made[i];
    const bool isOther = dialog_.buttons[i].id == Dialog::kOther;
    if (!isOther) end -= width;
    moveTo(window, isOther ? kEdge : end, top, width, kButtonHeight);
    if (!isOther) end -= kBetween;
  }
  SendMessageW(window_, DM_SETDEFID, static_cast<WPARAM>(dialog_.buttons[0].id), 0);
  return top + kButtonHeight + kEdge;
}

void DialogWindow::command(int id, int notification) {
  if (id < kFirstFieldId) {
    if (notification == BN_CLICKED) press(id);
  } else if (notification == LBN_DBLCLK &&
             dialog_.fields[static_cast<std::size_t>(id - kFirstFieldId)].kind == Field::Kind::List) {
    press(dialog_.buttons[0].id);
  }
}

void DialogWindow::press(Long button) {
  readFields();
  const bool closes = dialog_.onButton(button);
  writeFields();
  if (closes) EndDialog(window_, button);
}

void DialogWindow::readFields() {
  for (std::size_t i = 0; i < rows_.size(); ++i) read(dialog_.fields[i], rows_[i].window);
}

void DialogWindow::writeFields() {
  for (std::size_t i = 0; i < rows_.size(); ++i) show(dialog_.fields[i], rows_[i].window);
}

void DialogWindow::write(std::size_t field, std::u16string_view text) {
  readFields();
  dialog_.fields[field].text = text;
  writeFields();
}

void DialogWindow::choose(std::size_t field, Long number) {
  readFields();
  dialog_.fields[field].number = number;
  writeFields();
}

void DialogWindow::click(std::size_t field) {
  SendMessageW(rows_[field].window, WM_LBUTTONDOWN, MK_LBUTTON, 0);
  SendMessageW(rows_[field].window, WM_LBUTTONUP, 0, 0);
}

void DialogWindow::key(std::int16_t key, std::int16_t shift) { dialog_.onKey(key, shift); }

// Not all of what stands in it draws itself where it is asked to.
tessaly::PictureReference DialogWindow::picture() { return nullptr; }

}  // namespace showcase
