#include "examples/showcase/window/win32/Fields.h"

#include <commctrl.h>

#include "examples/showcase/window/win32/Parts.h"
#include "tessaly/base/Text.h"
#include "tessaly/hosts/win32/Controls.h"

namespace showcase {

using tessaly::toWide;

namespace {

using Kind = Field::Kind;

constexpr int kLineHeight = 24;
constexpr int kAroundLink = 8;
constexpr int kListHeight = 150;
constexpr int kParagraphHeight = 90;

HWND makeInside(HWND dialog, const wchar_t* className, DWORD style, const tessaly::String& text, int id,
                HFONT font, DWORD extendedStyle = 0) {
  const HWND child = CreateWindowExW(
      extendedStyle, className, toWide(text).c_str(), WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0, dialog,
      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
  setFont(child, font);
  return child;
}

void addChoices(HWND window, UINT message, const Field& field) {
  for (const auto& choice : field.choices) {
    SendMessageW(window, message, 0, reinterpret_cast<LPARAM>(toWide(choice).c_str()));
  }
}

HWND makeLink(HWND dialog, const Field& field, int id) {
  const HWND window = makeInside(dialog, tessaly::win32::kUrlLinkClass, WS_TABSTOP, field.label, id, nullptr);
  tessaly::URLLink* const link = tessaly::win32::urlLinkOf(window);
  // It would draw its texts mirrored where the dialog is.
  mirror(window, false);
  if (link != nullptr) field.onLink(*link);
  return window;
}

HWND makeWindow(HWND dialog, const Field& field, int id, const DialogFonts& fonts) {
  switch (field.kind) {
    case Kind::Words:
      return makeInside(dialog, WC_STATICW, SS_NOPREFIX, field.text, id, fonts.usual);
    case Kind::Heading:
      return makeInside(dialog, WC_STATICW, SS_NOPREFIX, field.text, id, fonts.heading);
    case Kind::Choice: {
      const HWND window =
          makeInside(dialog, WC_COMBOBOXW, WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, u"", id, fonts.usual);
      addChoices(window, CB_ADDSTRING, field);
      return window;
    }
    case Kind::List: {
      const HWND window = makeInside(dialog, WC_LISTBOXW, WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY, u"", id,
                                     fonts.usual, WS_EX_CLIENTEDGE);
      addChoices(window, LB_ADDSTRING, field);
      return window;
    }
    case Kind::Check:
      return makeInside(dialog, WC_BUTTONW, WS_TABSTOP | BS_AUTOCHECKBOX, field.label, id, fonts.usual);
    case Kind::Text:
      return makeInside(dialog, WC_EDITW, WS_TABSTOP | ES_AUTOHSCROLL, u"", id, fonts.usual,
                        WS_EX_CLIENTEDGE);
    case Kind::Paragraph:
      return makeInside(dialog, WC_EDITW,
                        WS_TABSTOP | WS_VSCROLL | ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL, u"", id,
                        fonts.usual, WS_EX_CLIENTEDGE);
    case Kind::Link:
      break;
  }
  return makeLink(dialog, field, id);
}

bool hasLabelBefore(const Field& field) {
  return field.kind == Kind::Choice || field.kind == Kind::List || field.kind == Kind::Text ||
         field.kind == Kind::Paragraph;
}

int heightOf(HWND dialog, const Field& field, const DialogFonts& fonts) {
  if (field.kind == Kind::List) return kListHeight;
  if (field.kind == Kind::Paragraph) return kParagraphHeight;
  if (field.kind != Kind::Words && field.kind != Kind::Heading) return kLineHeight;
  const HFONT font = field.kind == Kind::Heading ? fonts.heading : fonts.usual;
  return static_cast<int>(sizeOf(dialog, font, toWide(field.text), kRowWidth).cy);
}

tessaly::String textIn(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  text.resize(
      static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1)));
  return tessaly::fromWide(text);
}

}  // namespace

SIZE sizeOf(HWND window, HFONT font, const std::wstring& text, int width) {
  const HDC context = GetDC(window);
  const HGDIOBJ before = SelectObject(context, font);
  RECT area{0, 0, width, 0};
  DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &area, DT_CALCRECT | DT_WORDBREAK);
  SelectObject(context, before);
  ReleaseDC(window, context);
  return {area.right, area.bottom};
}

Row makeRow(HWND dialog, const Field& field, int id, const DialogFonts& fonts) {
  Row row;
  // The label comes before its window in the order of children: so its key leads there.
  if (hasLabelBefore(field) && !field.label.empty()) {
    row.label = makeInside(dialog, WC_STATICW, 0, field.label, 0, fonts.usual);
    row.labelWidth = static_cast<int>(sizeOf(dialog, fonts.usual, toWide(field.label), kRowWidth).cx);
  }
  row.window = makeWindow(dialog, field, id, fonts);
  row.height = heightOf(dialog, field, fonts);
  if (field.kind == Kind::Link) {
    const SIZE text = sizeOf(dialog, fonts.usual, toWide(field.label), kRowWidth);
    row.width = static_cast<int>(text.cx) + kAroundLink;
    row.height = static_cast<int>(text.cy) + kAroundLink / 2;
  }
  return row;
}

void show(const Field& field, HWND window) {
  const auto number = static_cast<WPARAM>(field.number);
  if (field.kind == Kind::Choice) SendMessageW(window, CB_SETCURSEL, number, 0);
  if (field.kind == Kind::List) SendMessageW(window, LB_SETCURSEL, number, 0);
  if (field.kind == Kind::Check) SendMessageW(window, BM_SETCHECK, number, 0);
  if (field.kind == Kind::Text || field.kind == Kind::Paragraph) {
    if (textIn(window) != field.text) SetWindowTextW(window, toWide(field.text).c_str());
  }
}

void read(Field& field, HWND window) {
  const auto ask = [window](UINT message) {
    return static_cast<tessaly::Long>(SendMessageW(window, message, 0, 0));
  };
  if (field.kind == Kind::Choice) field.number = ask(CB_GETCURSEL);
  if (field.kind == Kind::List) field.number = ask(LB_GETCURSEL);
  if (field.kind == Kind::Check) field.number = ask(BM_GETCHECK);
  if (field.kind == Kind::Text || field.kind == Kind::Paragraph) field.text = textIn(window);
}

}  // namespace showcase
