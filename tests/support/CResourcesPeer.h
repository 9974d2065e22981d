#pragma once

#include <string>
#include <vector>

#include "tessaly/base/Text.h"
#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/Xml.h"
#include "tests/support/Slots.h"

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

  /// Reads a text or a number below the root that a small number stands for.
  static String readString(CResources& resources, Long selector, std::u16string_view path,
                           std::u16string_view name, std::u16string_view defaultText) {
    select(resources, selector, path);
    return resources.ReadRegistryString(name, defaultText);
  }
  static Long readLong(CResources& resources, Long selector, std::u16string_view path,
                       std::u16string_view name, Long defaultValue) {
    select(resources, selector, path);
    return resources.ReadRegistryLong(name, defaultValue);
  }
  static void writeLong(CResources& resources, Long selector, std::u16string_view path,
                        std::u16string_view name, Long value) {
    select(resources, selector, path);
    resources.WriteRegistryLong(name, value);
  }

  static Boolean fileExists(const CResources& resources, std::u16string_view path) {
    return resources.FileExists(path);
  }

  /// The private operations' slots.
  static std::vector<std::size_t> privateSlots() {
    return {tests::slotOf(&CResources::FillBuiltInStrings), tests::slotOf(&CResources::LoadLanguageFile),
            tests::slotOf(&CResources::WalkLanguageNodes),  tests::slotOf(&CResources::AppendLineBreak),
            tests::slotOf(&CResources::AppendIndentation),  tests::slotOf(&CResources::ScanLanguageFiles),
            tests::slotOf(&CResources::SetRegistryPath),    tests::slotOf(&CResources::ReadRegistryString),
            tests::slotOf(&CResources::ReadRegistryLong),   tests::slotOf(&CResources::WriteRegistryLong),
            tests::slotOf(&CResources::SelectRegistryRoot), tests::slotOf(&CResources::FileExists)};
  }

 private:
  static void select(CResources& resources, Long selector, std::u16string_view path) {
    resources.SelectRegistryRoot(selector);
    resources.SetRegistryPath(path);
  }
};

}  // namespace tessaly
