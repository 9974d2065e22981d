#include "tests/controls/GoldenSheets.h"

#include <array>

#include "tests/controls/Button.h"

namespace tessaly::tests {
namespace {

constexpr OLE_COLOR kYellow = 0x00FFFF;
constexpr PixelSize kOverlaySmall{8, 6};
constexpr PixelSize kOverlayOdd{15, 11};
constexpr PixelSize kOverlayLarge{60, 50};

const std::array<std::string, 9> kAnchors{"top left",    "top centre",    "top right",
                                          "middle left", "centre",        "middle right",
                                          "bottom left", "bottom centre", "bottom right"};

std::string numbered(std::string name, Long number) {
  name += ' ';
  return name += std::to_string(number);
}

/// An overlay at each anchor in turn. An overlay's own colour is seen as an open middle, the main picture's
/// is not.
template <const PixelSize& overlay, Long border>
Sheet anchors() {
  Sheet sheet(3);
  for (std::size_t anchor = 0; anchor < kAnchors.size(); ++anchor) {
    Button button({50, 41});
    button.control.Picture(ring({20, 15}, 40));
    button.control.withBorder(border);
    button.control.AddBitmap(ring(overlay, 200, kYellow), static_cast<Long>(anchor), kYellow);
    sheet.add(kAnchors[anchor], button.shown());
  }
  return sheet;
}

PictureReference placed(PixelSize control, Long border, bool scaled, const PictureReference& picture) {
  Button button(control);
  button.control.withBorder(border);
  button.control.AutoResize(scaled);
  button.control.Picture(picture);
  return button.shown();
}

Sheet scaledUp() {
  Sheet sheet(3);
  for (const Long border : {0, 3, -3}) {
    const std::string name = numbered("border", border);
    sheet.add(name + ", natural", placed({50, 41}, border, false, ring({20, 15}, 40)));
    sheet.add(name + ", scaled", placed({50, 41}, border, true, ring({20, 15}, 40)));
    sheet.add(name + ", scaled in one direction",
              placed({50, 41}, border, true, ring({20, 41 - 2 * border}, 40)));
  }
  return sheet;
}

Sheet scaledDown() {
  Sheet sheet(2);
  for (const Long border : {0, 3}) {
    const std::string name = numbered("border", border);
    sheet.add(name + ", natural", placed({50, 41}, border, false, ring({75, 60}, 40)));
    sheet.add(name + ", scaled", placed({50, 41}, border, true, ring({75, 60}, 40)));
  }
  return sheet;
}

/// Pictures in their natural size in areas of others. Only one that fills the area to the pixel, or to the
/// half pixel that is rounded away, leaves the border free.
Sheet sizes() {
  Sheet sheet(3);
  for (const Long border : {0, 3}) {
    const std::string name = numbered("border", border) + ", ";
    const auto add = [&](Long area, Long picture) {
      sheet.add(numbered(numbered(name, picture) + " in", area),
                placed({area + 2 * border, 21 + 2 * border}, border, false, ring({picture, 11}, 40)));
    };
    add(101, 100);
    add(101, 98);
    add(100, 101);
    add(100, 100);
    add(101, 101);
    add(100, 99);
    add(100, 50);
    add(100, 103);
    add(100, 140);
  }
  return sheet;
}

Sheet disabled() {
  Sheet sheet(2);
  for (const bool isEnabled : {true, false}) {
    for (const bool hasOverlay : {false, true}) {
      Button button({50, 41});
      button.control.Picture(ring({20, 15}, 40));
      button.control.disabledPicture(ring({30, 12}, 120));
      if (hasOverlay) button.control.AddBitmap(slope(kOverlaySmall, 200), 8, 0xFFFFFF);
      button.control.enabled(isEnabled);
      sheet.add(std::string(isEnabled ? "enabled" : "disabled") + (hasOverlay ? ", overlay" : ""),
                button.shown());
    }
  }
  return sheet;
}

/// Overlays with alignments that are none: they lie where the one before them lies.
void addMisaligned(Button& button, const std::vector<Long>& alignments) {
  std::uint8_t blue = 100;
  for (const Long alignment : alignments) {
    button.control.AddBitmap(slope({static_cast<Long>(24 - blue / 10), 5}, blue), alignment, 0xFFFFFF);
    blue = static_cast<std::uint8_t>(blue + 50);
  }
}

Sheet alignmentOutOfRange() {
  Sheet sheet(3);
  const std::vector<std::vector<Long>> cases{{9}, {-1}, {8, 9}, {7, 100, -5}};
  for (const auto& alignments : cases) {
    std::string name = "alignment";
    for (const Long alignment : alignments) name = numbered(name, alignment);
    for (const bool scaled : {false, true}) {
      Button button({50, 41});
      button.control.withBorder(3);
      button.control.AutoResize(scaled);
      button.control.Picture(ring({20, 15}, 40));
      addMisaligned(button, alignments);
      sheet.add(name + (scaled ? ", scaled" : ", natural"), button.shown());
      if (scaled) sheet.add(name + ", flattened", button.control.resultPictureWithWidth(50, 41));
    }
  }
  return sheet;
}

/// All but the key itself is drawn, however near it lies.
Sheet masksOffByOne() {
  Sheet sheet(4);
  for (const OLE_COLOR key : {0x807F80, 0x010101, 0xFEFEFE, 0x102030}) {
    const auto columns = nearlyKey(key);
    Button button({10, 4});
    button.control.maskColor(key);
    button.control.Picture(columns);
    sheet.add(numbered("main picture,", key), button.shown());
    Button other({10, 4});
    other.control.Picture(plain({10, 4}, kYellow));
    other.control.AddBitmap(columns, 0, key);
    sheet.add(numbered("overlay,", key), other.shown());
  }
  return sheet;
}

/// Keys whose parts have no neighbour on one side: black, white, and the usual one.
Sheet masksAtTheEnds() {
  Sheet sheet(3);
  for (const OLE_COLOR key : {0x000000, 0xFFFFFF, kMagenta}) {
    Button button({30, 20});
    button.control.maskColor(key);
    button.control.Picture(ring({24, 16}, 255, key));
    sheet.add(numbered("key", key), button.shown());
  }
  return sheet;
}

PictureReference flattened(Long border, bool hasOverlays, Long width, Long height) {
  Button button({50, 41});
  button.control.withBorder(border);
  button.control.Picture(ring({20, 15}, 40));
  if (hasOverlays) {
    for (const Long alignment : {0, 5, 7})
      button.control.AddBitmap(ring(kOverlaySmall, 200), alignment, kMagenta);
  }
  return button.control.resultPictureWithWidth(width, height);
}

Sheet flattenedUp() {
  Sheet sheet(4);
  for (const bool hasOverlays : {false, true}) {
    const std::string end = hasOverlays ? ", overlays" : "";
    sheet.add("natural size" + end, flattened(0, hasOverlays, -1, -1));
    sheet.add("natural size, border 3" + end, flattened(3, hasOverlays, 0, 0));
    sheet.add("60 wide" + end, flattened(3, hasOverlays, 60, 0));
    sheet.add("50 high" + end, flattened(3, hasOverlays, -7, 50));
    sheet.add("60 by 50" + end, flattened(3, hasOverlays, 60, 50));
    sheet.add("40 by 30, which is twice" + end, flattened(3, hasOverlays, 40, 30));
  }
  return sheet;
}

Sheet flattenedDown() {
  Sheet sheet(4);
  for (const bool hasOverlays : {false, true}) {
    const std::string end = hasOverlays ? ", overlays" : "";
    sheet.add("10 wide" + end, flattened(3, hasOverlays, 10, 0));
    sheet.add("7 high" + end, flattened(3, hasOverlays, 0, 7));
    sheet.add("10 by 7" + end, flattened(3, hasOverlays, 10, 7));
    sheet.add("1 by 1" + end, flattened(3, hasOverlays, 1, 1));
  }
  return sheet;
}

/// A result leaves the control with a red background, which the next composition shows.
Sheet redAfterResult() {
  Sheet sheet(3);
  Button button({50, 41});
  button.control.Picture(ring({30, 25}, 40));
  sheet.add("before", button.shown());
  sheet.add("the result", button.control.resultPicture());
  sheet.add("before the next composition", button.shown());
  button.control.AddBitmap(slope(kOverlaySmall, 200), 0, 0xFFFFFF);
  sheet.add("after it", button.shown());
  sheet.add("the result again", button.control.resultPicture());
  button.control.backcolor(Button::kBackground);
  sheet.add("backcolor assigned", button.shown());
  return sheet;
}

/// Without a picture, and with one that has no image.
Sheet nothing() {
  Sheet sheet(2);
  Button empty({50, 41});
  sheet.add("no image", empty.shown());
  empty.control.AddBitmap(slope(kOverlaySmall, 200), 4, 0xFFFFFF);
  sheet.add("no image, overlay", empty.shown());
  Button none({50, 41});
  none.control.AddBitmap(slope(kOverlaySmall, 200), 4, 0xFFFFFF);
  none.control.Picture(nullptr);
  sheet.add("no picture, overlay", none.shown());
  none.control.Picture(ring({20, 15}, 40));
  sheet.add("a picture again", none.shown());
  return sheet;
}

PictureReference bordered(OLE_COLOR background, Long width, bool hovers, bool presses) {
  Button button({24, 16}, background);
  button.control.withBorder(width);
  if (hovers) button.form.movePointer({5, 5});
  if (presses) button.form.press();
  return button.shown();
}

Sheet borderColours() {
  Sheet sheet(9);
  for (const auto background : {0x000000, 0xC0C0C0, 0xFFFFFF, static_cast<OLE_COLOR>(0x8000000F), 0x60C060}) {
    for (const Long width : {1, 2, 3}) {
      const std::string name = std::to_string(background) + numbered(", width", width) + ", ";
      sheet.add(name + "hidden", bordered(background, width, false, false));
      sheet.add(name + "raised", bordered(background, width, true, false));
      sheet.add(name + "sunken", bordered(background, width, true, true));
    }
  }
  return sheet;
}

/// The border lies above the surface, and goes with the pointer.
Sheet borderAbovePictures() {
  Sheet sheet(4);
  Button button({50, 41});
  button.control.withBorder(3);
  button.control.Picture(ring({60, 50}, 40));
  button.control.AddBitmap(slope(kOverlaySmall, 200), 0, 0xFFFFFF);
  button.form.movePointer({60, 60});
  sheet.add("away", button.shown());
  button.form.movePointer({5, 5});
  sheet.add("hovering", button.shown());
  button.form.press();
  sheet.add("pressed", button.shown());
  button.control.enabled(False);
  sheet.add("disabled", button.shown());
  return sheet;
}

}  // namespace

const std::vector<GoldenSheet>& goldenSheets() {
  static const std::vector<GoldenSheet> sheets{
      {"anchors-small-border-0", anchors<kOverlaySmall, 0>},
      {"anchors-small-border-3", anchors<kOverlaySmall, 3>},
      {"anchors-odd-border-0", anchors<kOverlayOdd, 0>},
      {"anchors-odd-border-3", anchors<kOverlayOdd, 3>},
      {"anchors-large-border-0", anchors<kOverlayLarge, 0>},
      {"anchors-large-border-3", anchors<kOverlayLarge, 3>},
      {"scaled-up", scaledUp},
      {"scaled-down", scaledDown},
      {"sizes", sizes},
      {"disabled", disabled},
      {"alignment-out-of-range", alignmentOutOfRange},
      {"masks-off-by-one", masksOffByOne},
      {"masks-at-the-ends", masksAtTheEnds},
      {"flattened-up", flattenedUp},
      {"flattened-down", flattenedDown},
      {"red-after-result", redAfterResult},
      {"nothing-to-show", nothing},
      {"border-colours", borderColours},
      {"border-above-pictures", borderAbovePictures},
  };
  return sheets;
}

}  // namespace tessaly::tests
