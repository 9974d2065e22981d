#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tessaly::reg {

/// Larger .reg files are refused.
inline constexpr std::size_t kLargestRegFile = std::size_t{16} << 20U;

/// Reads a file, "-" being the standard input. Gives what failed, or an empty text.
std::string readFile(const std::filesystem::path& path, std::string& bytes);

/// Puts bytes into a file by way of another one in its folder, so that the file is whole at any moment; on
/// disk when this returns. Only a normal file is replaced, and only where `mayReplace`. Gives what failed, or
/// an empty text.
std::string writeFile(const std::filesystem::path& path, std::string_view bytes, bool mayReplace);

}  // namespace tessaly::reg
