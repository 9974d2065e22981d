#pragma once

#include <vector>

#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/controls/transparentBitmapChildren.h"
#include "tests/support/Slots.h"

namespace tessaly {

/// Sees and moves of a control what its host does not.
class transparentBitmapPeer {
 public:
  static std::vector<std::size_t> slots();

  static void composeImage(transparentBitmap& control) { control.composeImage(nullptr, -1, -1); }
  static void showBorder(transparentBitmap& control, Boolean visible, Boolean raised) {
    control.showBorder(visible, raised);
  }
  static bool isMouseInside(transparentBitmap& control) {
    Boolean inside;
    control.isMouseInside(inside);
    return inside != 0;
  }
  static void Paint(transparentBitmap& control) { control.Paint(); }
  static void Resize(transparentBitmap& control) { control.Resize(); }
  static void Timer2Tick(transparentBitmap& control) { control.Timer2Tick(); }
  static void timerAutoClickTick(transparentBitmap& control) { control.timerAutoClickTick(); }
  static void InitProperties(transparentBitmap& control) { control.InitProperties(); }

  static Boolean isHovered(const transparentBitmap& control) { return control.isHovered_; }
  static Boolean isPressed(const transparentBitmap& control) { return control.isPressed_; }
  static Boolean selectedRaised(const transparentBitmap& control) { return control.selectedRaised_; }
  static Long selectedDelay(const transparentBitmap& control) { return control.selectedDelay_; }
  static std::size_t bitmapCount(const transparentBitmap& control) { return control.bitmapList_.size(); }

  static transparentBitmapChildren& children(transparentBitmap& control) { return *control.children_; }

  static void setHovered(transparentBitmap& control, Boolean hovered) { control.isHovered_ = hovered; }
  static void setPressed(transparentBitmap& control, Boolean pressed) { control.isPressed_ = pressed; }
};

inline std::vector<std::size_t> transparentBitmapPeer::slots() {
  using Control = transparentBitmap;
  using tests::slotOf;
  return {slotOf<Boolean (Control::*)() const>(&Control::automaticClick),
          slotOf<void (Control::*)(Boolean)>(&Control::automaticClick),
          slotOf<PictureReference (Control::*)() const>(&Control::Picture),
          slotOf<void (Control::*)(const PictureReference&)>(&Control::Picture),
          slotOf<PictureReference (Control::*)() const>(&Control::disabledPicture),
          slotOf<void (Control::*)(const PictureReference&)>(&Control::disabledPicture),
          slotOf<OLE_COLOR (Control::*)() const>(&Control::maskColor),
          slotOf<void (Control::*)(OLE_COLOR)>(&Control::maskColor),
          slotOf<Long (Control::*)() const>(&Control::automaticClickTiming),
          slotOf<void (Control::*)(Long)>(&Control::automaticClickTiming),
          slotOf<OLE_COLOR (Control::*)() const>(&Control::backcolor),
          slotOf<void (Control::*)(OLE_COLOR)>(&Control::backcolor),
          slotOf(&Control::AddBitmap),
          slotOf(&Control::ClearBitmaps),
          slotOf<Long (Control::*)() const>(&Control::withBorder),
          slotOf<void (Control::*)(Long)>(&Control::withBorder),
          slotOf<Boolean (Control::*)() const>(&Control::AutoResize),
          slotOf<void (Control::*)(Boolean)>(&Control::AutoResize),
          slotOf<Boolean (Control::*)() const>(&Control::enabled),
          slotOf<void (Control::*)(Boolean)>(&Control::enabled),
          slotOf<Long (Control::*)() const>(&Control::automaticClickFirstTiming),
          slotOf<void (Control::*)(Long)>(&Control::automaticClickFirstTiming),
          slotOf<Boolean (Control::*)() const>(&Control::stretch),
          slotOf<void (Control::*)(Boolean)>(&Control::stretch),
          slotOf<PictureReference (Control::*)()>(&Control::resultPicture),
          slotOf<void (Control::*)(const PictureReference&)>(&Control::resultPicture),
          slotOf(&Control::resultPictureWithWidth),
          slotOf(&Control::composeImage),
          slotOf(&Control::showBorder),
          slotOf(&Control::isMouseInside)};
}

}  // namespace tessaly
