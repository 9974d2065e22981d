#pragma once

#include <cstddef>
#include <string>

namespace tessaly::reg {

/// What is wrong with a .reg file, and in which line, from 1 on.
struct LineError {
  std::size_t line = 0;
  std::string message;
};

/// So many errors of a file are told.
inline constexpr std::size_t kMostErrors = 20;

}  // namespace tessaly::reg
