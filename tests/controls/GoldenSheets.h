#pragma once

#include "tests/controls/Sheet.h"

namespace tessaly::tests {

/// One golden picture: the control in some of its states.
struct GoldenSheet {
  std::string name;
  Sheet (*draw)();
};

const std::vector<GoldenSheet>& goldenSheets();

}  // namespace tessaly::tests
