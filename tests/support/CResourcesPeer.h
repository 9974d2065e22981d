#pragma once

#include <string>

#include "tessaly/base/Text.h"
#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/Xml.h"

namespace tessaly {

/// Sees of a CResources what its host does not.
class CResourcesPeer {
 public:
  static Boolean load(CResources& resources, std::u16string_view path, Boolean headerOnly) {
    return resources.LoadLanguageFile(path, headerOnly);
  }

  /// The header that was read last: version, GUID, name and number.
  static std::string header(const CResources& resources) {
    return std::to_string(resources.fileVersion_) + "," + toUtf8(resources.fileGUID_) + "," +
           toUtf8(resources.fileLang_) + "," + std::to_string(resources.fileLangID_);
  }

  static void appendLineBreak(CResources& resources, platform::XmlDocument& document,
                              platform::XmlNode& parent) {
    resources.AppendLineBreak(document, parent);
  }

  static void appendIndentation(CResources& resources, platform::XmlDocument& document,
                                platform::XmlNode& parent, Boolean newLineFirst, platform::XmlNode* node) {
    resources.AppendIndentation(document, parent, newLineFirst, node);
  }
};

}  // namespace tessaly
