#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// Files and folders of a benchmark, and the tools that make them.
namespace tessaly::bench {

/// Ends the program with a message.
[[noreturn]] void fail(const std::string& what);

/// A folder that goes when the program ends. It lies in the build folder, on a disk that a write has to
/// reach.
const std::filesystem::path& temporaryFolder();

/// From now on the temporary folder is another program's. For helper programs, at their start.
void useTemporaryFolder(const std::filesystem::path& folder);

/// A folder within the temporary one, made where it is missing.
std::filesystem::path newFolder(std::string_view name);

void writeFile(const std::filesystem::path& path, std::string_view bytes);

/// Runs a peer's own compiler; ends the program with a message where it fails.
void runTool(const std::string& command);

/// All bytes of a file by the shortest way there is.
std::string readFile(const std::filesystem::path& path);

/// The kind of the file system that a file lies on, such as "ext4".
std::string fileSystemOf(const std::filesystem::path& path);

}  // namespace tessaly::bench
