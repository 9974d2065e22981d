#pragma once

#include "examples/showcase/Screen.h"
#include "tessaly/localisation/CResources.h"

/// The parts of the demonstration, one source each.
namespace showcase {

void showSettings(const Screen& screen);
void showLanguages(const Screen& screen, tessaly::CResources& resources);
void showMenu(const Screen& screen, tessaly::CResources& resources);
void showForms(const Screen& screen, tessaly::CResources& resources);
void showValues(const Screen& screen, tessaly::CResources& resources);
void showStringNumbers(const Screen& screen, tessaly::CResources& resources);
void showSampleFiles(const Screen& screen);

/// The line above a part, set off from what comes before.
void showHeading(const Screen& screen, std::u16string_view heading, std::u16string_view explanation);

}  // namespace showcase
