#pragma once

#include <memory>

#include "examples/showcase/window/Window.h"

namespace showcase {

/// The platform's window, which is shown with the first `run`. One that nobody is to look at needs no
/// display. The arguments of `main` must outlive it.
std::shared_ptr<Window> openWindow(int& argc, char** argv, bool isToBeSeen);

/// Whether help is shown by this program itself, so that it needs no display either.
bool drawsHelp();

}  // namespace showcase
