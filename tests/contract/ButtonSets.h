#pragma once

#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly::tests {

/// A set of buttons of a message box, by its number in the type, and their numbers in their order.
struct ButtonSet {
  Long type;
  std::vector<Long> buttons;
};

/// All that there are.
inline const std::vector<ButtonSet>& buttonSets() {
  static const std::vector<ButtonSet> sets = {{0, {1}},    {1, {1, 2}}, {2, {3, 4, 5}},  {3, {6, 7, 2}},
                                              {4, {6, 7}}, {5, {4, 2}}, {6, {2, 10, 11}}};
  return sets;
}

/// The bits of a type that name an icon, and those that name the place of the default button.
inline constexpr Long kIcons[] = {0, 0x10, 0x20, 0x30, 0x40};
inline constexpr Long kPlaceOfDefault = 0x100;

}  // namespace tessaly::tests
