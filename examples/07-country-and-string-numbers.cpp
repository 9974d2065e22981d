// A number from a command line or an administrator: it may name another country's variety of a language,
// and with a minus sign it makes each text tell its number in the language files.

#include "examples/support/Print.h"
#include "tessaly/localisation/CResources.h"

using examples::printLine;
using tessaly::CResources;
using tessaly::Long;

namespace {

void choose(CResources& resources, Long id) {
  resources.SetLangOrCountry(id);
  printLine(u"SetLangOrCountry(", id, u"): ", resources.langName(), u", \"", resources.res(12), u"\", \"",
            resources.resWithArg(13, 3, 9), u"\"");
}

}  // namespace

int main() {
  CResources resources;
  resources.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");
  resources.resourcesPath(u"examples/showcase/languages");

  // French of Canada: there is French of France.
  choose(resources, 3084);

  // Dutch: there is none, and the language in force stays.
  choose(resources, 1043);

  // A translator who sees a wrong text on the screen sees here which one to look for in the file.
  choose(resources, -1031);
  choose(resources, 1031);
}
