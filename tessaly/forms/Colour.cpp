#include "tessaly/forms/Colour.h"

#include "tessaly/forms/Container.h"

namespace tessaly {
namespace {

constexpr std::uint32_t kSystemFlag = 0x80000000;

}  // namespace

OLE_COLOR shownColour(OLE_COLOR colour, Container& container) {
  const auto bits = static_cast<std::uint32_t>(colour);
  if ((bits & kSystemFlag) == 0) return static_cast<OLE_COLOR>(bits & 0xFFFFFFU);
  return container.systemColour(static_cast<Long>(bits & 0xFFU));
}

}  // namespace tessaly
