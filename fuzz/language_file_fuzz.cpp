// Any bytes as a language file: the catalogue stands, and holds a text or the built-in one in every slot.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Files.h"
#include "tessaly/platform/fake/Locale.h"

namespace {

using tessaly::CResources;
using tessaly::kStringCount;
using tessaly::Long;

void require(bool condition) {
  if (!condition) std::abort();
}

void requireTexts(const CResources& resources) {
  for (Long n = 0; n < kStringCount; ++n) require(!resources.res(n).empty());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tessaly::platform::fake::Files files(u'/');
  tessaly::platform::fake::Locale locale(1036, u",");
  files.put(u"/fuzz/file.xml", std::string(data, data + size));
  const tessaly::platform::Override filesInForce(files);
  const tessaly::platform::Override localeInForce(locale);

  CResources resources;
  resources.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");
  resources.resourcesPath(u"/fuzz");
  resources.LoadXMLFile(u"/fuzz/file.xml");
  requireTexts(resources);
  require(resources.lang() == 0);

  // A foreign file is left out of the list, any other stands in it.
  require(resources.numberOfLangs() <= 1);
  resources.SetDefaultLang();
  requireTexts(resources);
  if (resources.resLangID(1) != 0) {
    resources.lang(resources.resLangID(1));
    require(resources.lang() == resources.resLangID(1));
    require(resources.langName() == resources.resLang(1));
  }
  return 0;
}
