#pragma once

#include <cstdint>
#include <optional>

#include "tessaly/forms/Colour.h"
#include "tessaly/forms/Picture.h"
#include "tessaly/forms/Scale.h"
#include "tessaly/forms/Surface.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

class UserControl;

/// A hidden picture box of a control, without a border: a memory surface to work on. It begins at 0 by 0. A
/// surface is made anew when the size changes: its BackColor, and the picture on it. One thread uses it.
class TESSALY_DESKTOP_API PictureBox {
 public:
  /// The control must outlive it. It begins in twips, with the system's button face as BackColor.
  explicit PictureBox(UserControl& parent);
  PictureBox(const PictureBox&) = delete;
  PictureBox& operator=(const PictureBox&) = delete;
  virtual ~PictureBox();

  /// Whether there is a persistent surface; without one there is no hDC and `Image` is empty. Error 7 where
  /// there is no memory for it.
  virtual Boolean AutoRedraw() const;
  virtual void AutoRedraw(Boolean on);

  /// The unit of ScaleWidth and ScaleHeight: 1 twips, 3 pixels; error 380 for any other.
  virtual std::int16_t ScaleMode() const;
  virtual void ScaleMode(std::int16_t mode);
  virtual double ScaleWidth() const;
  virtual double ScaleHeight() const;

  /// The size in the parent's scale. Error 380 below 0 or above 32767 pixels, and error 7 where there is no
  /// memory for the surface; the size then stays.
  virtual double Width() const;
  virtual void Width(double width);
  virtual double Height() const;
  virtual void Height(double height);

  /// Whether the box takes the size of its picture, now and with each other one that has an image.
  virtual Boolean AutoSize() const;
  virtual void AutoSize(Boolean on);

  /// Clears the surface and paints the picture at its top left corner, over BackColor where it does not
  /// cover. None, and one without an image, leave the size and clear the surface.
  virtual PictureReference Picture() const;
  virtual void Picture(const PictureReference& picture);

  /// Takes effect when the surface is cleared next.
  virtual OLE_COLOR BackColor() const;
  virtual void BackColor(OLE_COLOR colour);

  /// The surface for platform calls; 0 where there is none or it has no pixels. By that of a const box the
  /// surface is only read.
  virtual platform::DeviceContext hDC();
  virtual platform::DeviceContext hDC() const;

  /// A picture of the surface as it is now, which keeps its pixels.
  virtual PictureReference Image() const;

 private:
  Scale parentScale() const;
  void setSize(PixelSize size);
  void resize(PixelSize size);
  bool resizeSurface(PixelSize size);
  void clear();

  UserControl* parent_;
  PictureReference picture_;
  PixelSize size_;
  Surface surface_;

  /// The background that the surface was cleared to last; none where the picture is not on it yet. Unless
  /// somebody may draw on the surface, what is there already is not painted again, as each composition of a
  /// control asks for it.
  std::optional<std::uint32_t> clearedTo_;
  bool isLent_ = false;
  Scale scale_{Scale::kTwips};
  OLE_COLOR backColor_ = kButtonFace;
  Boolean autoRedraw_;
  Boolean autoSize_;
};

}  // namespace tessaly
