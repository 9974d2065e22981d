// A language is chosen by its number, and the catalogue tells what is in force.

#include "examples/support/Print.h"
#include "tessaly/localisation/CResources.h"

using examples::printLine;
using tessaly::CResources;
using tessaly::Long;

namespace {

void choose(CResources& resources, Long id) {
  resources.lang(id);
  printLine(u"lang(", id, u"): number ", resources.lang(), u", ", resources.langName(), u", \"",
            resources.res(14), u"\"");
}

}  // namespace

int main() {
  CResources resources;
  resources.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");
  resources.resourcesPath(u"examples/showcase/languages");

  printLine(u"At first: number ", resources.lang(), u", name \"", resources.langName(), u"\"");
  choose(resources, 1036);
  choose(resources, 1049);

  // No file has 1043, and none is for 2057, the number that stands in: so it is the built-in English.
  choose(resources, 1043);
}
