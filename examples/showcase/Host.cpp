#include "examples/showcase/Host.h"

namespace showcase {

void start(tessaly::CResources& resources) {
  resources.applicationGUID(kApplicationGUID);
  resources.resourcesPath(kLanguagesFolder);
}

std::vector<tessaly::Long> languages(tessaly::CResources& resources) {
  std::vector<tessaly::Long> numbers = {kBuiltInEnglish};
  for (tessaly::Long position = 1; position <= resources.numberOfLangs(); ++position) {
    numbers.push_back(resources.resLangID(position));
  }
  return numbers;
}

}  // namespace showcase
