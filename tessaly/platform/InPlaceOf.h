#pragma once

#include <functional>
#include <utility>

namespace tessaly::platform {

/// Puts another body into an area's place; gives what puts back the one that was there.
template <class Area>
std::function<void()> inPlaceOf(Area*& place, Area& body) {
  return [&place, before = std::exchange(place, &body)] { place = before; };
}

}  // namespace tessaly::platform
