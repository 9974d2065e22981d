#pragma once

#include <cstdint>

namespace tessaly::tests {

/// Asks help and boxes for all that they do, before there is an application; what they answered, all in one.
void askWithoutApplication();
extern std::intptr_t answeredWithoutApplication;

}  // namespace tessaly::tests
