#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>

#include "tessaly/platform/Drawing.h"

/// The surfaces and brushes that handles stand for. A handle tells for itself whether it is alive, so what
/// was deleted, or never was one, is refused.
namespace tessaly::platform {

struct FreeMemory {
  void operator()(void* memory) const { std::free(memory); }
};

struct MemorySurface {
  Long width = 0;
  Long height = 0;
  std::unique_ptr<std::uint32_t[], FreeMemory> pixels;
  DrawingObject brush = 0;
};

/// 0 where there are too many.
DeviceContext addSurface(std::unique_ptr<MemorySurface> surface);

/// The surface, whose owner the table is; none for what is no surface.
MemorySurface* surfaceOf(DeviceContext context);

void removeSurface(DeviceContext context);

/// A brush of this pixel; it takes no memory. 0 where there are too many.
DrawingObject addBrush(std::uint32_t pixel);

/// The white brush that every surface comes with.
DrawingObject stockBrush();

bool isBrush(DrawingObject object);

/// What the brush paints.
std::uint32_t pixelOf(DrawingObject brush);

/// A brush in use can't be removed.
void useBrush(DrawingObject brush);
void leaveBrush(DrawingObject brush);

/// False where it is no brush, or in use. The stock brush stays, whatever is told.
bool removeBrush(DrawingObject object);

}  // namespace tessaly::platform
