#include "examples/showcase/Host.h"
#include "examples/showcase/Sections.h"
#include "examples/showcase/Table.h"

namespace showcase {

using tessaly::CResources;
using tessaly::Long;

void showValues(const Screen& screen, CResources& resources) {
  showHeading(screen, u"Texts with values", u"which each language puts where it wants them");
  Table table({u"Language", u"resWithArg(13, 3, 9)", u"resWithArg(154, \"Sales 2026\", \"\")"});
  for (const Long id : languages(resources)) {
    resources.lang(id);
    table.addRow({styled(resources.langName()), styled(resources.resWithArg(PageOf, 3, 9)),
                  styled(resources.resWithArg(SaveChanges, u"Sales 2026", u""))});
  }
  table.print(screen);
}

}  // namespace showcase
