#include "examples/showcase/Host.h"
#include "examples/showcase/Sections.h"
#include "examples/showcase/Table.h"
#include "examples/support/Print.h"

namespace showcase {

using tessaly::CResources;
using tessaly::Long;
using tessaly::String;

namespace {

/// A form's captions, a column each and a row for each language.
void showForm(const Screen& screen, CResources& resources, const std::vector<Long>& slots) {
  std::vector<String> headings = {u"Language"};
  for (const Long slot : slots) headings.push_back(u"res(" + examples::textOf(slot) + u")");
  Table table(headings);
  for (const Long id : languages(resources)) {
    resources.lang(id);
    std::vector<StyledText> row = {styled(resources.langName())};
    for (const Long slot : slots) row.push_back(caption(resources.res(slot)));
    table.addRow(std::move(row));
  }
  table.print(screen);
}

}  // namespace

void showMenu(const Screen& screen, CResources& resources) {
  showHeading(screen, u"The File menu", u"by the numbers of its texts, in each language that has a file");
  showForm(screen, resources, {FileMenu, OpenFile, PrintFile, PrintPreview, ExitProgram});
}

void showForms(const Screen& screen, CResources& resources) {
  showMenu(screen, resources);
  showHeading(screen, u"The Print dialog", u"its captions, and what its buttons say");
  showForm(screen, resources, {NumberOfCopies, AllPages, CurrentPage, OK, Cancel});
}

}  // namespace showcase
