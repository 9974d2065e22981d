#include "examples/contact-sheet/Sections.h"

#include <array>
#include <vector>

#include "examples/contact-sheet/Button.h"

namespace sheet {
namespace {

using tessaly::Long;
using tessaly::OLE_COLOR;
using tessaly::PixelPoint;
using tessaly::PixelSize;
using tessaly::String;

constexpr Long kSeeThrough = 0xFF00FF;

/// A button with one of the pictures.
class PictureButton : public Button {
 public:
  PictureButton(Artwork& artwork, const String& name, PixelSize size, Long border) : Button(size) {
    (*this)->Picture(artwork.picture(name));
    (*this)->disabledPicture(artwork.picture(name + u"-disabled"));
    (*this)->withBorder(border);
  }
};

void put(Canvas& canvas, PixelPoint corner, Button& button) { canvas.put(corner, *button.shown()); }

void putState(Canvas& canvas, Artwork& artwork, PixelPoint corner, const String& name, Long border,
              void (*act)(Button&)) {
  PictureButton button(artwork, name, {56, 56}, border);
  act(button);
  put(canvas, corner, button);
}

void putGrid(Canvas& canvas, Artwork& artwork, PixelPoint corner, const String& name, const String& overlay) {
  for (Long anchor = 0; anchor < 9; ++anchor) {
    PictureButton button(artwork, name, {46, 46}, 0);
    button->AddBitmap(artwork.picture(overlay), anchor, kSeeThrough);
    put(canvas, {corner.x + anchor % 3 * 49, corner.y + anchor / 3 * 58}, button);
  }
}

void putBorders(Canvas& canvas, Artwork& artwork, PixelPoint corner, Long colour) {
  PictureButton raised(artwork, u"save", {58, 50}, 3);
  raised->backcolor(colour);
  raised.hover();
  put(canvas, corner, raised);
  PictureButton sunken(artwork, u"save", {58, 50}, 3);
  sunken->backcolor(colour);
  sunken.press();
  put(canvas, {corner.x, corner.y + 54}, sunken);
}

}  // namespace

void putStates(Canvas& canvas, Artwork& artwork) {
  const std::array<void (*)(Button&), 5> acts = {
      [](Button&) {}, [](Button& button) { button.hover(); }, [](Button& button) { button.press(); },
      [](Button& button) { button.dragAway(); }, [](Button& button) { button->enabled(tessaly::False); }};
  const std::array<String, 4> names = {u"open", u"save", u"print", u"find"};
  for (Long border = 0; border < 4; ++border) {
    for (Long column = 0; column < 5; ++column) {
      putState(canvas, artwork, {112 + column * 84, 108 + border * 70},
               names[static_cast<std::size_t>(border)], border, acts[static_cast<std::size_t>(column)]);
    }
  }
}

void putSizes(Canvas& canvas, Artwork& artwork) {
  PictureButton natural(artwork, u"find", {80, 80}, 1);
  natural.hover();
  put(canvas, {556, 104}, natural);
  PictureButton scaled(artwork, u"find", {98, 82}, 1);
  scaled->AutoResize(tessaly::True);
  scaled.hover();
  put(canvas, {690, 104}, scaled);
  PictureButton small(artwork, u"find", {32, 32}, 1);
  small.hover();
  put(canvas, {556, 216}, small);
  PictureButton stretched(artwork, u"find", {10, 10}, 1);
  stretched->stretch(tessaly::True);
  stretched.hover();
  put(canvas, {690, 216}, stretched);

  PictureButton first(artwork, u"print", {70, 70}, 1);
  first->AddBitmap(artwork.picture(u"lock-16"), 9, kSeeThrough);
  put(canvas, {556, 308}, first);
  PictureButton second(artwork, u"print", {70, 70}, 1);
  second->AddBitmap(artwork.picture(u"new-16"), 8, kSeeThrough);
  second->AddBitmap(artwork.picture(u"lock-12"), 9, kSeeThrough);
  put(canvas, {690, 308}, second);
}

void putAnchors(Canvas& canvas, Artwork& artwork) {
  putGrid(canvas, artwork, {36, 462}, u"open", u"new-12");
  putGrid(canvas, artwork, {194, 462}, u"print", u"lock-16");
  putGrid(canvas, artwork, {352, 462}, u"save", u"stop-24");

  PictureButton several(artwork, u"print", {64, 64}, 2);
  several->AddBitmap(artwork.picture(u"new-16"), 0, kSeeThrough);
  several->AddBitmap(artwork.picture(u"lock-16"), 2, kSeeThrough);
  several->AddBitmap(artwork.picture(u"stop-16"), 8, kSeeThrough);
  several.hover();
  put(canvas, {40, 660}, several);
  PictureButton above(artwork, u"open", {64, 64}, 2);
  above->AddBitmap(artwork.picture(u"stop-24"), 4, kSeeThrough);
  above->AddBitmap(artwork.picture(u"lock-16"), 4, kSeeThrough);
  above.hover();
  put(canvas, {124, 660}, above);

  PictureButton disabled(artwork, u"print", {64, 64}, 2);
  disabled->AddBitmap(artwork.picture(u"lock-24"), 8, kSeeThrough);
  disabled->enabled(tessaly::False);
  put(canvas, {300, 660}, disabled);
}

void putFlattened(Canvas& canvas, Artwork& artwork) {
  PictureButton button(artwork, u"open", {48, 48}, 1);
  button->backcolor(0xF0D8B0);
  button->AddBitmap(artwork.picture(u"new-16"), 8, kSeeThrough);
  canvas.put({556, 460}, *button->resultPicture());
  canvas.put({640, 460}, *button->resultPictureWithWidth(96, 0));
  canvas.put({752, 460}, *button->resultPictureWithWidth(64, 96));
}

void putBorderColours(Canvas& canvas, Artwork& artwork) {
  const std::array<OLE_COLOR, 4> colours = {0x000000, 0xC0C0C0, 0xFFFFFF, tessaly::kButtonFace};
  for (std::size_t i = 0; i < colours.size(); ++i) {
    putBorders(canvas, artwork, {545 + static_cast<Long>(i) * 72, 630}, colours[i]);
  }
}

}  // namespace sheet
