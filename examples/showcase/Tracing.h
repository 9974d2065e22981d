#pragma once

#include <string_view>

/// What the showcase tells the logger, where the settings switch tracing on.
namespace showcase {

/// A part of the demonstration begins; white on blue.
void tracePart(std::u16string_view heading);

/// An ordinary line.
void traceStep(std::u16string_view text);

/// Something did not go well: level 2, dark red.
void traceFault(std::u16string_view text);

}  // namespace showcase
