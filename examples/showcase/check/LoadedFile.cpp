#include "examples/showcase/check/LoadedFile.h"

#include "examples/showcase/Host.h"
#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Files.h"

namespace showcase {

using tessaly::CResources;
using tessaly::Long;

namespace {

constexpr std::u16string_view kOnlyFile = u"languages/file.xml";

/// A built-in table of empty texts: since a language file can't give an empty one, the texts that are not
/// empty are the file's.
constexpr tessaly::BuiltInStrings kNoTexts = {};

void takeListEntry(LoadedFile& file, CResources& resources) {
  file.listed = resources.numberOfLangs() == 1;
  file.name = resources.resLang(1);
  file.number = resources.resLangID(1);
}

void takeContent(LoadedFile& file, CResources& resources) {
  resources.LoadXMLFile(kOnlyFile);
  for (Long n = 0; n < tessaly::kStringCount; ++n) file.texts[static_cast<std::size_t>(n)] = resources.res(n);
  file.reportFontName = resources.reportFontName();
  file.gridFontName = resources.gridFontName();
  file.gridFontSize = resources.gridFontSize();
  file.mailFontName = resources.mailFontName();
}

}  // namespace

LoadedFile loadAlone(std::u16string_view path) {
  LoadedFile file;
  auto bytes = tessaly::platform::core().files->read(path);
  if (!bytes) return file;
  file.readable = true;
  tessaly::platform::fake::Files folder;
  folder.put(kOnlyFile, std::move(*bytes));
  const tessaly::platform::Override onlyThisFile(folder);
  CResources resources(kNoTexts);
  resources.applicationGUID(kApplicationGUID);
  resources.resourcesPath(u"languages");
  takeListEntry(file, resources);
  takeContent(file, resources);
  return file;
}

}  // namespace showcase
