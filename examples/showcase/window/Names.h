#pragma once

#include <string_view>

#include "tessaly/base/Types.h"

namespace showcase {

/// A menu's text as a name: "Print" of "&Print...", with no mark of an accelerator key, nor a key that stands
/// in brackets behind the text.
tessaly::String nameOf(std::u16string_view menuText);

/// Whether a language is written from right to left, by the number of its primary language.
bool isWrittenFromRight(tessaly::Long language);

}  // namespace showcase
