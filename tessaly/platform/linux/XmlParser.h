#pragma once

#include <string_view>

#include "tessaly/platform/linux/XmlTree.h"

namespace tessaly::platform {

/// Parses a document in UTF-8 into an empty tree. False where it is not well-formed; the tree then holds a
/// part.
bool parseXml(std::string_view document, XmlTree& tree);

}  // namespace tessaly::platform
