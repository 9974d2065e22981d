#include "examples/showcase/window/Menu.h"

#include <initializer_list>

namespace showcase {
namespace {

using tessaly::CResources;
using tessaly::Long;
using tessaly::String;

bool canDo(Command command, const Report& report) {
  const bool hasRows = report.seenCount() > 0;
  switch (command) {
    case Command::Save:
      return report.isChanged();
    case Command::DeleteReport:
    case Command::Refresh:
      return !report.name().empty();
    case Command::Find:
    case Command::FindNext:
    case Command::GoToRow:
    case Command::SortAscending:
    case Command::SortDescending:
    case Command::Filter:
      return hasRows;
    case Command::RemoveFilter:
      return report.isFiltered();
    case Command::FirstPage:
    case Command::PreviousPage:
      return report.page() > 1;
    case Command::NextPage:
    case Command::LastPage:
      return report.page() < report.pages();
    case Command::ZoomIn:
      return report.canZoomIn();
    case Command::ZoomOut:
      return report.canZoomOut();
    default:
      return true;
  }
}

/// A language's name stands in the menu as it is.
String escaped(const String& name) {
  String text;
  for (const char16_t c : name) text.append(c == u'&' ? 2 : 1, c);
  return text;
}

class Builder {
 public:
  Builder(const Report& report, CResources& resources) : report_(report), resources_(resources) {}

  MenuItem item(Command command) const {
    const String key = keyOf(command);
    String text = resources_.res(slotOf(command));
    if (!key.empty()) text += u'\t' + key;
    return {.text = text, .id = static_cast<Long>(command), .isEnabled = canDo(command, report_)};
  }

  /// A menu's items in groups, with a line between them.
  MenuItem menu(Text slot, std::initializer_list<std::initializer_list<Command>> groups) const {
    MenuItem result{.text = resources_.res(slot)};
    for (const auto& group : groups) {
      if (!result.items.empty()) result.items.emplace_back();
      for (const Command command : group) result.items.push_back(item(command));
    }
    return result;
  }

  MenuItem tools(bool showsStringNumbers) const {
    MenuItem result{.text = resources_.res(ToolsMenu)};
    const auto numbers = languages(resources_);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const auto place = static_cast<Long>(i);
      result.items.push_back({.text = escaped(languageName(resources_, place)),
                              .id = static_cast<Long>(Command::FirstLanguage) + place,
                              .isChecked = numbers[i] == resources_.lang()});
    }
    result.items.emplace_back();
    result.items.push_back(item(Command::ShowNumbers));
    result.items.back().isChecked = showsStringNumbers;
    result.items.emplace_back();
    result.items.push_back(item(Command::Settings));
    return result;
  }

 private:
  const Report& report_;
  CResources& resources_;
};

}  // namespace

std::vector<MenuItem> menusFor(const Report& report, CResources& resources, bool showsStringNumbers) {
  using enum Command;
  const Builder builder(report, resources);
  return {
      builder.menu(FileMenu, {{New, Open, Save, SaveAs}, {Print, Mail}, {DeleteReport}, {Exit}}),
      builder.menu(EditMenu, {{Find, FindNext, GoToRow}}),
      builder.menu(ViewMenu,
                   {{ZoomIn, ZoomOut, ActualSize}, {FirstPage, PreviousPage, NextPage, LastPage}, {Refresh}}),
      builder.menu(ReportMenu, {{SortAscending, SortDescending}, {Filter, RemoveFilter}}),
      builder.tools(showsStringNumbers),
      builder.menu(HelpMenu, {{HelpContents, HelpIndex}, {About}})};
}

}  // namespace showcase
