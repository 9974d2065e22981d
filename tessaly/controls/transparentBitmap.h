#pragma once

#include <memory>
#include <vector>

#include "tessaly/controls/transparentBitmapEvents.h"
#include "tessaly/forms/Colour.h"
#include "tessaly/forms/Picture.h"
#include "tessaly/forms/UserControlEvents.h"
#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/Drawing.h"

namespace tessaly {

class PictureBox;
struct Container;
struct transparentBitmapChildren;

/// A flat picture button. It shows a picture in which one colour lets the background through, with further
/// pictures pinned above it, and frames itself while the pointer is on it. A container makes it, holds it and
/// brings it events; pictures are shared with the host. All is in pixels; colours have red in the low byte,
/// then green, then blue. No assignment checks its value. Each takes effect at once and then tells the
/// container of the change, and what the form engine raises comes out of it. The form's thread uses it.
class TESSALY_DESKTOP_API transparentBitmap {
 public:
  /// A control without properties: the container raises InitProperties or ReadProperties next.
  explicit transparentBitmap(Container& container);
  transparentBitmap(const transparentBitmap&) = delete;
  transparentBitmap& operator=(const transparentBitmap&) = delete;

  /// Whether a press clicks at once, and again and again while the button is held.
  virtual Boolean automaticClick() const;
  virtual void automaticClick(Boolean New_automaticClick);

  /// The main picture, and the one in its place while the control is not `enabled`. With none of them the
  /// control shows its background alone, also without what `AddBitmap` has added.
  virtual PictureReference Picture() const;
  virtual void Picture(const PictureReference& New_Picture);
  virtual PictureReference disabledPicture() const;
  virtual void disabledPicture(const PictureReference& New_disabledPicture);

  /// The very colour of the main picture that is not drawn.
  virtual OLE_COLOR maskColor() const;
  virtual void maskColor(OLE_COLOR New_maskColor);

  /// Milliseconds between a held button's later clicks. The timer takes 0, which ends them, to 65535.
  virtual Long automaticClickTiming() const;
  virtual void automaticClickTiming(Long New_automaticClickTiming);

  /// The background, of which the border's two colours are made.
  virtual OLE_COLOR backcolor() const;
  virtual void backcolor(OLE_COLOR New_BackColor);

  /// Lays a further picture above all others, unscaled: from 0 top left to 8 bottom right, row by row, and
  /// any other number where the one before it lies. Pixels of its `maskColor` are not drawn.
  virtual void AddBitmap(const PictureReference& source, Long alignment, OLE_COLOR maskColor);
  virtual void ClearBitmaps();

  /// The width of the border, which the main picture leaves free. Above 0 it also makes the control a button
  /// that the pointer selects. Error 6 where its double needs more than 32 bits, and above 32767 when the
  /// border comes or goes; it is assigned nevertheless.
  virtual Long withBorder() const;
  virtual void withBorder(Long New_withBorder);

  /// Whether the main picture is scaled to the control's inside, or else lies in the middle of it.
  virtual Boolean AutoResize() const;
  virtual void AutoResize(Boolean New_AutoResize);

  /// Whether the control shows its main picture and can be clicked. False ends a press.
  virtual Boolean enabled() const;
  virtual void enabled(Boolean New_enabled);

  /// Milliseconds between a press and the second click. The timer takes 0, for no further click, to 65535.
  virtual Long automaticClickFirstTiming() const;
  virtual void automaticClickFirstTiming(Long New_automaticClickFirstTiming);

  /// Whether the control takes the size of its main picture and border: at once, and with each resizing and
  /// change of the border. A new picture waits for that.
  virtual Boolean stretch() const;
  virtual void stretch(Boolean New_stretch);

  /// The control as a picture on `backcolor`, without a border, in the main picture's natural size. From then
  /// on the control's own background is red, until `backcolor` is assigned. Assigning raises error 383 while
  /// the form is being designed, and 382 where it runs.
  virtual PictureReference resultPicture();
  virtual void resultPicture(const PictureReference& New_resultPicture);

  /// The same in another size, to which the main picture is scaled; 0 or less stands for the natural one.
  virtual PictureReference resultPictureWithWidth(Long w, Long h);

 private:
  friend class transparentBitmapPeer;
  struct SurfaceEvents;
  struct Overlay {
    PictureReference source;
    Long alignment;
    OLE_COLOR maskColor;
  };

  virtual void composeImage(PictureBox* target, const Long& width, const Long& height);
  virtual void showBorder(Boolean visible, Boolean raised);
  virtual void isMouseInside(Boolean& inside);
  virtual void InitProperties();
  virtual void ReadProperties(const PropertyBag& bag);
  virtual void WriteProperties(PropertyBag& bag);
  virtual void Resize();
  virtual void Paint();
  virtual void MouseDown(MouseState button, MouseState shift, float x, float y);
  virtual void MouseMove(MouseState button, MouseState shift, float x, float y);
  virtual void MouseUp(MouseState button, MouseState shift, float x, float y);
  virtual void Timer1Tick();
  virtual void Timer2Tick();
  virtual void timerAutoClickTick();

 public:
  virtual ~transparentBitmap();

  /// What the host wants to hear of.
  transparentBitmapEvents events;

 private:
  /// Composes the control's own surface.
  void recompose();
  PixelSize loadMainPicture(const PictureReference& shown);
  void flatten(PictureBox& target, Long width, Long height, PixelSize source);
  void drawOnSurface(PixelSize area, Long offset, PixelSize source);
  void drawOverlays(platform::DeviceContext target, PixelSize area, PixelPoint place);
  bool takeSizeOfPicture();
  void placeBorder();

  Boolean stretch_;
  Long automaticClickFirstTiming_ = 0;
  Long automaticClickTiming_ = 0;
  Boolean automaticClick_;
  PictureReference disabledPicture_;
  Boolean autoResize_;
  OLE_COLOR backcolor_ = 0;
  OLE_COLOR maskColor_ = 0;
  PictureReference picture_;
  Long withBorder_ = 0;

  /// One list, since lists of their own for the three would have to be kept of one length.
  std::vector<Overlay> bitmapList_;
  Boolean isHovered_;
  Boolean isPressed_;
  Boolean isEnabled_;
  Long selectedDelay_ = 0;
  Boolean selectedRaised_;

  std::unique_ptr<UserControlEvents> surfaceEvents_;
  std::unique_ptr<transparentBitmapChildren> children_;
};

}  // namespace tessaly
