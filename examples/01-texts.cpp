// A host asks its catalogue for a text by slot number.

#include "examples/support/Print.h"
#include "tessaly/localisation/CResources.h"

using examples::printLine;

int main() {
  tessaly::CResources resources;
  resources.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");
  resources.resourcesPath(u"examples/showcase/languages");

  printLine(u"Before a language is chosen, slot 12 is \"", resources.res(12), u"\".");

  resources.lang(1036);
  printLine(u"In French it is \"", resources.res(12), u"\".");

  // The mark for the accelerator key comes as it stands; the form makes something of it.
  printLine(u"The caption of a button: \"", resources.res(0), u"\"");
}
