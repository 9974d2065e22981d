// What a settings dialog offers: the languages that a folder has for this application.

#include "examples/support/Print.h"
#include "tessaly/localisation/CResources.h"

using examples::printLine;
using tessaly::Long;

int main() {
  tessaly::CResources resources;

  // Both come first: the folder is looked through once, at the first question about it.
  resources.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");
  resources.resourcesPath(u"examples/showcase/languages");

  const Long count = resources.numberOfLangs();
  printLine(count, u" languages, in the order of their files' names:");
  for (Long position = 1; position <= count; ++position) {
    printLine(u"  ", resources.resLangID(position), u"  ", resources.resLang(position));
  }

  printLine(u"Behind the last: number ", resources.resLangID(count + 1), u", name \"",
            resources.resLang(count + 1), u"\"");

  // Too late to change the list.
  resources.resourcesPath(u"examples/showcase/samples");
  printLine(u"After another folder was set: ", resources.numberOfLangs());
}
