#pragma once

#include <filesystem>

#include "tessaly/platform/keys/HiveFile.h"

/// What hives need of the file system.
namespace tessaly::platform {

/// Makes a folder with its parents where it is missing, on disk when this returns.
Long makeFolder(const std::filesystem::path& folder, HiveReaders readers);

/// Makes an empty file of exactly this mode where none is, on disk when this returns.
Long makeFile(const std::filesystem::path& path, unsigned mode);

/// Makes sure that names given or taken in a folder are on disk.
Long syncFolder(const std::filesystem::path& folder);

/// Whether the user may write a file, or make it and its folders where they are missing.
bool mayWriteFile(const std::filesystem::path& path);

/// The registry's result for an error number of the system.
Long resultOfErrno(int error);

}  // namespace tessaly::platform
