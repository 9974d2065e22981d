#include "examples/showcase/window/Dialogs.h"
#include "examples/showcase/window/Names.h"
#include "tessaly/controls/URLLink.h"

namespace showcase {
namespace {

using tessaly::Boolean;
using tessaly::String;

constexpr std::u16string_view kWebSite = u"https://www.example.com/reports/";

// The side that texts begin at.
constexpr tessaly::Long kLeft = 0;
constexpr tessaly::Long kRight = 1;

Field webSite(const Desk& desk) {
  const auto prepare = [&desk](tessaly::URLLink& link) {
    link.alignment(isWrittenFromRight(desk.resources().lang()) ? kRight : kLeft);
    link.text(desk.resources().res(VisitTheWebSite));
    link.URL(kWebSite);
    link.ShowToolTip(true);
    link.events.GoToURL = [&desk](String& URL, Boolean& /*Cancel*/) { desk.tellLink(URL); };
  };
  return {.kind = Field::Kind::Link, .label = desk.resources().res(VisitTheWebSite), .onLink = prepare};
}

}  // namespace

void showAbout(const Desk& desk) {
  const auto& resources = desk.resources();
  Dialog dialog{.title = resources.res(AboutTitle)};
  dialog.fields = {
      {.kind = Field::Kind::Heading, .text = String(kProgram)},
      {.kind = Field::Kind::Words, .text = resources.resWithArg(VersionOf, SHOWCASE_VERSION, u"")},
      {.kind = Field::Kind::Words, .text = resources.res(WhatTheProgramDoes)},
      webSite(desk)};
  dialog.buttons = {{Dialog::kCancel, resources.res(OK)}};
  desk.run(dialog, u"about", [](tessaly::Long) { return true; });
}

}  // namespace showcase
