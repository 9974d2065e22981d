#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/Drawing.h"

namespace tessaly::platform::fake {

/// Drawing pixel by pixel in plain memory, with failures by a test's choice and a record of what was asked. A
/// surface's pixels start as black, and a surface without brush has a white one. Not for several threads at
/// once.
class TESSALY_DESKTOP_API Drawing final : public platform::Drawing {
 public:
  /// From now on the calls of this name do nothing and fail; with "createSurface" there is no memory.
  void fail(const std::string& call) { failing_.insert(call); }

  /// From now on the calls of this name do their work again.
  void mend(const std::string& call) { failing_.erase(call); }

  /// The names of the calls in their order, such as "FillRect", without those of `pixels`.
  const std::vector<std::string>& calls() const { return calls_; }
  void forgetCalls() { calls_.clear(); }

  /// How many surfaces, and brushes that somebody has made, are not deleted yet.
  std::size_t surfaces() const { return surfaces_.size(); }
  std::size_t brushes() const { return brushes_.size(); }

  DeviceContext createSurface(Long width, Long height) override;
  void deleteSurface(DeviceContext surface) override;
  PixelView pixels(DeviceContext surface) override;
  bool TransparentBlt(DeviceContext target, Long x, Long y, Long width, Long height, DeviceContext source,
                      Long sourceX, Long sourceY, Long sourceWidth, Long sourceHeight, Long key) override;
  DrawingObject CreateSolidBrush(Long colour) override;
  DrawingObject SelectObject(DeviceContext surface, DrawingObject object) override;
  Long FillRect(DeviceContext surface, const PixelArea& area, DrawingObject brush) override;
  bool DeleteObject(DrawingObject object) override;

 private:
  struct Surface {
    Long width;
    Long height;
    std::vector<std::uint32_t> pixels;
    DrawingObject brush;

    bool holds(std::int64_t x, std::int64_t y) const { return x >= 0 && y >= 0 && x < width && y < height; }
    std::uint32_t& at(std::int64_t x, std::int64_t y) {
      return pixels[static_cast<std::size_t>(y * width + x)];
    }
  };

  bool fails(const char* call);
  Surface* find(DeviceContext surface);
  bool isBrush(DrawingObject object) const;
  bool isSelected(DrawingObject object) const;

  std::map<DeviceContext, Surface> surfaces_;
  std::map<DrawingObject, std::uint32_t> brushes_;
  std::set<std::string> failing_;
  std::vector<std::string> calls_;
  std::intptr_t last_ = 1;
};

}  // namespace tessaly::platform::fake
