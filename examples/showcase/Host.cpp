#include "examples/showcase/Host.h"

#include "tessaly/settings/CRegistry.h"

namespace showcase {
namespace {

tessaly::CRegistry machineSettings() {
  constexpr tessaly::Long localMachine = 0;
  tessaly::CRegistry settings;
  settings.root(localMachine);
  settings.rootPath(kMachineKey);
  return settings;
}

}  // namespace

tessaly::String languagesFolder() { return machineSettings().GetString(kFolderValue, kLanguagesFolder); }

tessaly::String reportsFolder() {
  constexpr tessaly::Long currentUser = 2;
  tessaly::CRegistry settings;
  settings.root(currentUser);
  settings.rootPath(kUserKey);
  return settings.GetString(kReportsValue, kReportsFolder);
}

void start(tessaly::CResources& resources) {
  resources.applicationGUID(kApplicationGUID);
  if (machineSettings().StringKeyExists(kFolderValue)) {
    resources.SetResourcesPathFromRegistry(kMachineKey, kFolderValue);
  } else {
    resources.resourcesPath(kLanguagesFolder);
  }
}

std::vector<tessaly::Long> languages(tessaly::CResources& resources) {
  std::vector<tessaly::Long> numbers = {kBuiltInEnglish};
  for (tessaly::Long position = 1; position <= resources.numberOfLangs(); ++position) {
    numbers.push_back(resources.resLangID(position));
  }
  return numbers;
}

tessaly::String languageName(tessaly::CResources& resources, tessaly::Long place) {
  return place == 0 ? tessaly::String(u"English") : resources.resLang(place);
}

}  // namespace showcase
