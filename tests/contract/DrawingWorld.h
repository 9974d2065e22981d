#pragma once

#include <initializer_list>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Drawing.h"
#include "tests/support/World.h"

namespace tessaly::tests {

/// The body of the area Drawing that a contract runs on, in force as long as the world lives.
class DrawingWorld {
 public:
  explicit DrawingWorld(Body body) {
    if (body == Body::Fake) inForce_.emplace(fake_);
  }

 private:
  platform::fake::Drawing fake_;
  std::optional<platform::Override> inForce_;
};

inline platform::Drawing& drawing() { return *platform::desktop().drawing; }

/// Magenta as a colour; as a pixel it is a '-'.
inline constexpr Long kKey = 0xFF00FF;

/// A pixel for each letter of a drawn picture: '.' is black, '-' the key, '#' white, and letters are colours
/// of their own.
std::uint32_t pixelOf(char letter);

/// The colour that a letter's pixel has for calls that take colours.
Long colourOf(char letter);

/// A surface that goes with its owner, written and read as rows of letters.
class Canvas {
 public:
  Canvas(Long width, Long height);
  Canvas(std::initializer_list<std::string_view> lines);
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  ~Canvas() { drawing().deleteSurface(surface_); }

  platform::DeviceContext surface() const { return surface_; }
  platform::PixelView view() const { return drawing().pixels(surface_); }
  std::uint32_t& at(Long x, Long y) const;

  /// All rows, each with a line's end; a pixel that no letter has stands as a number.
  std::string text() const;

 private:
  platform::DeviceContext surface_;
};

/// The rows as `Canvas::text` gives them.
std::string rows(std::initializer_list<std::string_view> lines);

/// A brush that goes with its owner.
class Brush {
 public:
  explicit Brush(Long colour) : brush_(drawing().CreateSolidBrush(colour)) {}
  Brush(const Brush&) = delete;
  Brush& operator=(const Brush&) = delete;
  ~Brush() { drawing().DeleteObject(brush_); }

  platform::DrawingObject get() const { return brush_; }

 private:
  platform::DrawingObject brush_;
};

struct Area {
  Long x, y, width, height;
};

inline std::ostream& operator<<(std::ostream& out, const Area& area) {
  return out << area.x << ' ' << area.y << ' ' << area.width << ' ' << area.height;
}

inline bool copy(const Canvas& target, Area to, const Canvas& source, Area from, Long key = kKey) {
  return drawing().TransparentBlt(target.surface(), to.x, to.y, to.width, to.height, source.surface(), from.x,
                                  from.y, from.width, from.height, key);
}

}  // namespace tessaly::tests
