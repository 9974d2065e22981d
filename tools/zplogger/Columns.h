#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "tessaly/base/Types.h"

/// How much room text takes in a terminal.
namespace tessaly::zplogger {

/// The columns of a text without hidden characters: Chinese, Japanese and Korean ones and pictures take two,
/// marks that stand on the one before take none.
std::size_t columnsOf(std::u16string_view text);

/// A text that takes no more than so many columns; one that would is cut, with … at its end.
String fitting(std::u16string_view text, std::size_t columns);

}  // namespace tessaly::zplogger
