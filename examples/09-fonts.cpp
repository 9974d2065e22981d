// A language file names fonts that have its letters. A host takes a name that is not empty, and otherwise
// keeps the font that its form was designed with.

#include "examples/support/Print.h"
#include "tessaly/localisation/CResources.h"

using examples::printLine;
using tessaly::CResources;
using tessaly::Long;
using tessaly::String;

namespace {

struct Grid {
  String fontName = u"MS Sans Serif";
  Long fontSize = 8;
};

Grid gridIn(const CResources& resources) {
  Grid grid;
  if (!resources.gridFontName().empty()) {
    grid.fontName = resources.gridFontName();
    grid.fontSize = resources.gridFontSize();
  }
  return grid;
}

void printFonts(const CResources& resources) {
  const Grid grid = gridIn(resources);
  printLine(resources.langName());
  printLine(u"  report: \"", resources.reportFontName(), u"\"");
  printLine(u"  mail:   \"", resources.mailFontName(), u"\"");
  printLine(u"  grid:   \"", resources.gridFontName(), u"\", ", resources.gridFontSize(),
            u"; the form takes ", grid.fontName, u", ", grid.fontSize);
}

}  // namespace

int main() {
  CResources resources;
  resources.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");
  resources.resourcesPath(u"examples/showcase/languages");

  resources.lang(2057);
  printFonts(resources);
  resources.lang(1041);
  printFonts(resources);

  // The built-in English is no file and leaves the fonts of the last one; they have its letters too.
  resources.lang(2057);
  printFonts(resources);
}
