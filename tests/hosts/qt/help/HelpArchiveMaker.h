#pragma once

#include <map>
#include <string>

namespace tessaly::tests {

/// The bytes of a .chm archive with these files, by names without a slash before them; nothing is packed. For
/// names and pages that a compiler of help files would not make.
std::string helpArchive(const std::map<std::string, std::string>& files);

}  // namespace tessaly::tests
