#include "examples/showcase/Host.h"
#include "examples/showcase/Sections.h"
#include "examples/showcase/Table.h"
#include "examples/showcase/Tracing.h"
#include "examples/support/Print.h"

namespace showcase {

using examples::textOf;
using tessaly::CResources;
using tessaly::Long;
using tessaly::String;

namespace {

StyledText fontName(const String& name) { return name.empty() ? styled(u"-", Style::Faint) : styled(name); }

StyledText gridFont(const CResources& resources) {
  const String name = resources.gridFontName();
  return name.empty() ? fontName(name) : styled(name + u", " + textOf(resources.gridFontSize()));
}

}  // namespace

void showLanguages(const Screen& screen, CResources& resources) {
  showHeading(screen, u"Languages",
              u"each a file of its own but the built-in English, with fonts that suit it");
  Table table({u"Number", u"Language", u"Report font", u"Grid font", u"Mail font"});
  for (const Long id : languages(resources)) {
    resources.lang(id);
    traceStep(u"Language " + textOf(resources.lang()) + u" is in force");
    table.addRow({styled(textOf(id)), styled(resources.langName()), fontName(resources.reportFontName()),
                  gridFont(resources), fontName(resources.mailFontName())});
  }
  table.print(screen);
}

}  // namespace showcase
