#pragma once

#include <string>
#include <string_view>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Files.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/Xml.h"

namespace tessaly::tests {

/// A header as a language file of the tests has it.
inline std::string general(std::string_view lang, Long langId, std::string_view guid = "G") {
  return "<GENERAL><VERSION>3</VERSION><GUID>" + std::string(guid) + "</GUID><LANG>" + std::string(lang) +
         "</LANG><LANGID>" + std::to_string(langId) + "</LANGID></GENERAL>";
}

inline std::string text(int number, std::string_view value) {
  return "<STRING><ID>" + std::to_string(number) + "</ID><VALUE>" + std::string(value) + "</VALUE></STRING>";
}

inline std::string document(std::string_view content) {
  return "<LANGUAGE>" + std::string(content) + "</LANGUAGE>";
}

/// Language files in memory, a user whose locale the test chooses, and the platform's own XML behind a
/// record.
struct LanguageFolder {
  explicit LanguageFolder(Long userLcid = 1033, String separator = u".")
      : locale(userLcid, std::move(separator)) {}

  void put(std::u16string_view name, std::string content) { files.put(pathOf(name), std::move(content)); }
  static String pathOf(std::u16string_view name) { return u"/texts/" + String(name); }

  platform::fake::Files files;
  platform::fake::Locale locale;
  platform::fake::Xml xml;
  platform::Override filesInForce{files};
  platform::Override localeInForce{locale};
  platform::Override xmlInForce{xml};
};

}  // namespace tessaly::tests
