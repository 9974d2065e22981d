#include "examples/showcase/Host.h"
#include "examples/showcase/Sections.h"
#include "examples/showcase/Table.h"
#include "examples/support/Print.h"

namespace showcase {

using tessaly::CResources;

namespace {

void addRow(Table& table, std::u16string_view call, std::u16string_view meaning,
            const CResources& resources) {
  table.addRow({styled(call), styled(meaning), styled(examples::textOf(resources.lang())),
                styled(resources.langName()), caption(resources.res(Cancel))});
}

}  // namespace

void showSettings(const Screen& screen) {
  CResources resources;
  start(resources);
  showHeading(screen, u"The language", u"by the user's locale, by his settings, and by a country's number");
  Table table({u"Call", u"What it goes by", u"lang()", u"langName()", u"res(0)"});
  resources.SetDefaultLang();
  addRow(table, u"SetDefaultLang", u"the user's locale", resources);
  resources.SetLangFromRegistries(kUserKey, kLanguageValue);
  addRow(table, u"SetLangFromRegistries", u"the user's settings, or his locale", resources);
  resources.SetLangOrCountry(3084);
  addRow(table, u"SetLangOrCountry(3084)", u"Canada's French, or any other", resources);
  table.print(screen);
}

}  // namespace showcase
