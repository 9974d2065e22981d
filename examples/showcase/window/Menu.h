#pragma once

#include <vector>

#include "examples/showcase/window/Commands.h"
#include "examples/showcase/window/MenuItem.h"
#include "examples/showcase/window/Report.h"

namespace showcase {

/// The tool's menus in the language in force, with what there is to do for a report as it is.
std::vector<MenuItem> menusFor(const Report& report, tessaly::CResources& resources, bool showsStringNumbers);

}  // namespace showcase
