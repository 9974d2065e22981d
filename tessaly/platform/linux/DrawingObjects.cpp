#include "tessaly/platform/linux/DrawingObjects.h"

#include <array>
#include <atomic>
#include <mutex>

namespace tessaly::platform {
namespace {

using Handle = std::intptr_t;
static_assert(sizeof(Handle) == 8, "a handle holds a brush whole");

/// A handle's parts, from the low end: its place in the table, a brush's pixel, how often the place was taken
/// before, and what it is.
constexpr unsigned kPixelShift = 16;
constexpr unsigned kTurnShift = 40;
constexpr unsigned kKindShift = 56;
constexpr std::size_t kPlaces = std::size_t{1} << kPixelShift;
constexpr std::uint32_t kPixelBits = 0xFFFFFF;

enum class Kind : std::uint8_t { Surface = 1, Brush = 2 };

struct Place {
  std::atomic<Handle> handle;
  std::atomic<Long> uses;
  MemorySurface* surface;
  std::uint16_t turn;
  std::uint16_t nextFree;
};

/// Never destroyed, since objects of the host may outlive what is. The place 0 is the stock brush's.
constinit std::array<Place, kPlaces> places{};
constinit std::mutex mutex;
constinit std::uint16_t firstFree = 0;
constinit std::size_t taken = 1;

constexpr Handle handleOf(Kind kind, std::uint16_t turn, std::uint32_t pixel, std::size_t place) {
  return static_cast<Handle>(std::uint64_t{static_cast<std::uint8_t>(kind)} << kKindShift |
                             std::uint64_t{turn} << kTurnShift | std::uint64_t{pixel} << kPixelShift | place);
}

constexpr Handle kStockBrush = handleOf(Kind::Brush, 0, kPixelBits, 0);

Place& placeOf(Handle handle) { return places[static_cast<std::uint64_t>(handle) % kPlaces]; }

/// Whether the table holds just this handle as that kind of object.
bool isAlive(Handle handle, Kind kind) {
  return static_cast<std::uint64_t>(handle) >> kKindShift == static_cast<std::uint8_t>(kind) &&
         placeOf(handle).handle.load(std::memory_order_acquire) == handle;
}

/// 0 where all are taken.
std::size_t freePlace() {
  if (firstFree == 0) return taken < kPlaces ? taken++ : 0;
  const std::size_t place = firstFree;
  firstFree = places[place].nextFree;
  return place;
}

Handle add(Kind kind, std::uint32_t pixel, MemorySurface* surface) {
  const std::lock_guard lock(mutex);
  const std::size_t index = freePlace();
  if (index == 0) return 0;
  Place& place = places[index];
  const Handle handle = handleOf(kind, ++place.turn, pixel, index);
  place.surface = surface;
  place.uses.store(0, std::memory_order_relaxed);
  place.handle.store(handle, std::memory_order_release);
  return handle;
}

/// Whoever comes first removes it; gives its place, or none.
Place* remove(Handle handle) {
  Place& place = placeOf(handle);
  const std::lock_guard lock(mutex);
  Handle expected = handle;
  if (!place.handle.compare_exchange_strong(expected, 0)) return nullptr;
  place.nextFree = firstFree;
  firstFree = static_cast<std::uint16_t>(&place - places.data());
  return &place;
}

}  // namespace

DeviceContext addSurface(std::unique_ptr<MemorySurface> surface) {
  const DeviceContext context = add(Kind::Surface, 0, surface.get());
  // The table owns it from here on.
  if (context != 0) static_cast<void>(surface.release());
  return context;
}

MemorySurface* surfaceOf(DeviceContext context) {
  return isAlive(context, Kind::Surface) ? placeOf(context).surface : nullptr;
}

void removeSurface(DeviceContext context) {
  const std::unique_ptr<MemorySurface> surface(surfaceOf(context));
  if (!surface) return;
  leaveBrush(surface->brush);
  remove(context);
}

DrawingObject addBrush(std::uint32_t pixel) { return add(Kind::Brush, pixel & kPixelBits, nullptr); }
DrawingObject stockBrush() { return kStockBrush; }

bool isBrush(DrawingObject object) { return object == kStockBrush || isAlive(object, Kind::Brush); }

std::uint32_t pixelOf(DrawingObject brush) {
  return static_cast<std::uint32_t>(static_cast<std::uint64_t>(brush) >> kPixelShift) & kPixelBits;
}

void useBrush(DrawingObject brush) { ++placeOf(brush).uses; }
void leaveBrush(DrawingObject brush) { --placeOf(brush).uses; }

bool removeBrush(DrawingObject object) {
  if (object == kStockBrush) return true;
  return isAlive(object, Kind::Brush) && placeOf(object).uses == 0 && remove(object) != nullptr;
}

}  // namespace tessaly::platform
