#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tools/zplogger/Listener.h"

namespace tessaly::tests {

/// A number of 32 bits as records have it.
inline std::string number(std::uint32_t value) {
  std::string bytes;
  for (unsigned shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(value >> shift);
  return bytes;
}

/// A text of one-byte characters as records have it.
inline std::string text(std::string_view bytes) {
  return number(static_cast<std::uint32_t>(bytes.size())) + std::string(bytes);
}

inline std::string clientBytes(std::string_view name, std::string_view logFile, std::string_view backupFile) {
  return text(name) + text(logFile) + text(backupFile);
}

inline std::string traceBytes(std::string_view line, std::uint8_t level = 0, std::uint32_t foreColor = 0,
                              std::uint32_t backColor = 0xFFFFFF) {
  return number(foreColor) + number(backColor) + '\x01' + static_cast<char>(level) + text(line);
}

/// Bytes at the front of a whole block.
inline std::string block(std::string bytes, char rest = '\xEE') {
  bytes.resize(zplogger::kBlockSize, rest);
  return bytes;
}

}  // namespace tessaly::tests
