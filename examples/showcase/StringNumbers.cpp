#include "examples/showcase/Host.h"
#include "examples/showcase/Sections.h"
#include "examples/showcase/Table.h"
#include "examples/support/Print.h"

namespace showcase {

using tessaly::CResources;
using tessaly::Long;

void showStringNumbers(const Screen& screen, CResources& resources) {
  showHeading(screen, u"String numbers",
              u"a minus sign makes each text tell its number in the language file");
  Table table({u"Call", u"res(12)", u"res(28)", u"resWithArg(13, 3, 9)"});
  for (const Long id : {-1036, -1041, 1041}) {
    resources.SetLangOrCountry(id);
    table.addRow({styled(u"SetLangOrCountry(" + examples::textOf(id) + u")"), styled(resources.res(Open)),
                  caption(resources.res(OpenFile)), styled(resources.resWithArg(PageOf, 3, 9))});
  }
  table.print(screen);
}

}  // namespace showcase
