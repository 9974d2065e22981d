#pragma once

#include <cstdint>
#include <string_view>

/// FNV-1a: any one changed byte changes it, and it costs little for short texts. A sum is carried on by
/// giving the one so far.
namespace tessaly {

inline constexpr std::uint32_t kFnv32 = 0x811C9DC5U;
inline constexpr std::uint64_t kFnv64 = 0xCBF29CE484222325U;

inline std::uint32_t fnv32(std::string_view bytes, std::uint32_t soFar = kFnv32) {
  for (const char byte : bytes) soFar = (soFar ^ static_cast<unsigned char>(byte)) * 0x01000193U;
  return soFar;
}

inline std::uint64_t fnv64(std::string_view bytes, std::uint64_t soFar = kFnv64) {
  for (const char byte : bytes) soFar = (soFar ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
  return soFar;
}

}  // namespace tessaly
