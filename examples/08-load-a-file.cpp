// One language file read by its path, as a translator's preview does. It need not stand in the folder of
// the languages, and nothing tells whether it was of use: what it does not give stays in English.

#include "examples/support/Print.h"
#include "tessaly/localisation/CResources.h"

using examples::printLine;
using tessaly::CResources;

namespace {

void load(CResources& resources, std::u16string_view file) {
  resources.LoadXMLFile(u"examples/showcase/samples/" + tessaly::String(file));
  printLine(file, u": \"", resources.res(0), u"\", \"", resources.res(12), u"\"");
}

}  // namespace

int main() {
  CResources resources;
  resources.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");
  resources.resourcesPath(u"examples/showcase/languages");
  resources.lang(1031);
  printLine(u"In force: \"", resources.res(0), u"\", \"", resources.res(12), u"\"");

  load(resources, u"unfinished.xml");
  load(resources, u"bad-number.xml");
  load(resources, u"not-well-formed.xml");
  load(resources, u"other-application.xml");
  load(resources, u"no-such-file.xml");

  // The choice is another matter, and a host that is done with the preview goes back to it.
  printLine(u"Still chosen: ", resources.lang(), u", ", resources.langName());
  resources.lang(resources.lang());
  printLine(u"In force: \"", resources.res(0), u"\", \"", resources.res(12), u"\"");
}
