// The language that the user has the system in, without a question asked.

#include "examples/support/Print.h"
#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"

using examples::printLine;
using tessaly::CResources;
using tessaly::Long;

namespace {

void printLanguage(const CResources& resources) {
  const Long user = tessaly::platform::core().locale->GetUserDefaultLCID();
  printLine(u"A user of ", user, u" gets ", resources.lang(), u", ", resources.langName(), u": ",
            resources.res(20));
}

void asUserOf(Long lcid, CResources& resources) {
  tessaly::platform::fake::Locale locale(lcid, u".");
  const tessaly::platform::Override asThisUser(locale);
  resources.AutomaticTranslation();
  printLanguage(resources);
}

}  // namespace

int main() {
  CResources resources;
  resources.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");
  resources.resourcesPath(u"examples/showcase/languages");

  // What a host calls when it starts. Who has French of Canada gets the French that there is.
  resources.SetDefaultLang();
  printLanguage(resources);

  // A host that runs on while its user changes the system's language asks anew, as here for some others.
  asUserOf(1041, resources);
  asUserOf(3079, resources);
  asUserOf(1043, resources);
}
