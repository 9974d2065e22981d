#pragma once

#include <memory>
#include <string_view>

#include "tessaly/controls/URLLinkEvents.h"
#include "tessaly/forms/UserControlEvents.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

class PropertyBag;
class Screen;
struct Container;
struct URLLinkChildren;

/// A hyperlink: blue underlined text with a hand as pointer, whose click hands a URL to the shell. A URL may
/// also be a data file that some application opens. A container makes it, holds it and brings it events. No
/// assignment checks its value. What the form engine raises comes out of it. The form's thread uses it.
class TESSALY_DESKTOP_API URLLink {
 public:
  /// A control without properties: the container raises InitProperties or ReadProperties next.
  explicit URLLink(Container& container);
  URLLink(const URLLink&) = delete;
  URLLink& operator=(const URLLink&) = delete;

  /// What is shown.
  virtual String text() const;
  virtual void text(std::u16string_view sText);

  /// What a click opens. It passes through the system's 8-bit code page.
  virtual String URL() const;
  virtual void URL(std::u16string_view sURL);

  /// Whether the URL is shown where the pointer rests on the text.
  virtual Boolean ShowToolTip() const;
  virtual void ShowToolTip(Boolean bShowToolTip);

  /// Where the text stands: 0 left, 1 right, 2 in the middle. The container is not told of a change, and
  /// keeps it at the next save.
  virtual void alignment(Long alignment);
  virtual Long alignment() const;

 private:
  friend class URLLinkPeer;
  struct SurfaceEvents;

  virtual void updateToolTip();
  virtual void InitProperties();
  virtual void ReadProperties(const PropertyBag& bag);
  virtual void WriteProperties(PropertyBag& bag);
  virtual void Resize();
  virtual void lblURLMouseDown(MouseState button, MouseState shift, float x, float y);

 public:
  virtual ~URLLink();

  /// What the host wants to hear of.
  URLLinkEvents events;

 private:
  void readKept(const PropertyBag& bag);
  bool isWanted(String& address) const;
  void open(const String& address, Screen& screen);

  String url_;
  Long alignment_ = 0;
  Boolean showToolTip_;

  std::unique_ptr<UserControlEvents> surfaceEvents_;
  std::unique_ptr<URLLinkChildren> children_;
};

}  // namespace tessaly
