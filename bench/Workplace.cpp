#include "bench/Workplace.h"

#include "tessaly/base/Text.h"
#include "tessaly/localisation/CResources.h"

namespace tessaly::bench {
namespace {

std::vector<String> readFrenchTexts() {
  CResources resources;
  resources.applicationGUID(kShowcase);
  resources.LoadXMLFile(languageFile("french.xml").u16string());
  std::vector<String> texts;
  texts.reserve(kStringCount);
  for (Long n = 0; n < kStringCount; ++n) texts.push_back(resources.res(n));
  if (texts.front() != u"&Annuler") fail("french.xml could not be read");
  return texts;
}

}  // namespace

std::filesystem::path languageFile(std::string_view name) {
  return std::filesystem::path(TESSALY_LANGUAGES) / name;
}

const std::vector<String>& frenchTexts() {
  static const std::vector<String> texts = readFrenchTexts();
  return texts;
}

const std::vector<String>& englishTexts() {
  static const std::vector<String> texts(showcaseStrings.begin(), showcaseStrings.end());
  return texts;
}

std::vector<std::string> inUtf8(const std::vector<String>& texts) {
  std::vector<std::string> result;
  result.reserve(texts.size());
  for (const String& text : texts) result.push_back(toUtf8(text));
  return result;
}

}  // namespace tessaly::bench
