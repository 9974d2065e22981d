#include "examples/showcase/window/Reports.h"

#include <algorithm>
#include <utility>

#include "examples/showcase/Tracing.h"
#include "examples/showcase/window/Dialogs.h"
#include "examples/showcase/window/Menu.h"
#include "examples/showcase/window/Names.h"
#include "tessaly/base/RuntimeError.h"
#include "tessaly/base/Text.h"
#include "tessaly/dialogs/CHelp.h"

namespace showcase {

using tessaly::Long;
using tessaly::String;

namespace {

constexpr Long kUsualPoints = 10;

/// The page of help on the window itself.
constexpr std::u16string_view kPage = u"reports";
constexpr std::u16string_view kFirstReport = u"Sales.rep";

Grid::Heading heading(const tessaly::CResources& resources, Text slot) {
  return {resources.res(slot), slot == AmountHeading};
}

}  // namespace

Reports::Reports(Window& window, tessaly::CResources& resources, Preferences preferences, String folder,
                 std::function<String()> clock)
    : window_(window),
      resources_(resources),
      shelf_(std::move(folder)),
      clock_(std::move(clock)),
      preferences_(std::move(preferences)),
      toolBar_(window),
      desk_(window, resources,
            [this](std::u16string_view event, const Saying& comment) { tell(under_, event, comment); }) {
  for (Long place = 0; place < kTools; ++place) listenTo(static_cast<Tool>(place));
  listenToWindow();
  openFirst();
  speak();
}

Reports::~Reports() {
  window_.handlers = {};
  for (Long place = 0; place < kTools; ++place) button(static_cast<Tool>(place)).events = {};
}

void Reports::listenToWindow() {
  window_.handlers.onCommand = [this](Long id) { perform(static_cast<Command>(id), u"OnCommand"); };
  window_.handlers.onHeading = [this](Long column) {
    const bool isAgain = report_.sortedColumn() == static_cast<Column>(column);
    takeSelection();
    message_ = sortBy(column, isAgain && !report_.isDescending());
    tell(message_, u"OnHeading", std::nullopt);
    show();
  };
  window_.handlers.onKey = [this](std::int16_t key, std::int16_t shift) {
    under_ = HelpMenu;
    if (desk_.helpKey(key, shift, window_.handle(), kPage)) return true;
    const auto command = commandOf(key, shift);
    if (command) perform(*command, u"OnKey");
    return command.has_value();
  };
  window_.handlers.onClose = [this] { return close(); };
}

void Reports::listenTo(Tool tool) {
  auto& events = toolBar_.button(tool).events;
  const Text name = slotOf(commandOf(tool));
  events.OnButtonSelected = [this, name] { tell(name, u"OnButtonSelected", std::nullopt); };
  events.OnButtonSelectedTiming = [this, name] { tell(name, u"OnButtonSelectedTiming", std::nullopt); };
  events.OnButtonClick = [this, tool] { perform(commandOf(tool), u"OnButtonClick"); };
}

void Reports::openFirst() {
  const auto names = shelf_.names();
  const auto isThere = [&](std::u16string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
  };
  if (isThere(preferences_.report) && open(preferences_.report)) return;
  if (names.empty() || !open(isThere(kFirstReport) ? String(kFirstReport) : names[0])) report_.beginNew();
}

void Reports::perform(Command command, std::u16string_view event) try {
  const bool isLanguage = command >= Command::FirstLanguage;
  under_ = isLanguage ? Saying(ToolsMenu) : Saying(slotOf(command));
  const Saying name = under_;
  takeSelection();
  message_ = act(command);
  tell(name, event, message_);
  show();
} catch (const tessaly::RuntimeError& error) {
  desk_.show(Desk::kError, {UnexpectedError, error.number(), tessaly::fromUtf8(error.what())});
}

Saying Reports::chooseLanguage(Long place) {
  preferences_.language = languages(resources_).at(static_cast<std::size_t>(place));
  keepAndSpeak(preferences_.language);
  return Saying(resources_.langName());
}

void Reports::takeSelection() {
  const Long row = window_.selectedRow();
  if (row >= 0) report_.selectOnPage(row);
}

void Reports::keepAndSpeak(Long language) {
  storePreferences(preferences_, resources_);
  speakAs(resources_, language, preferences_.showsStringNumbers);
  speak();
}

bool Reports::close() {
  if (!isSettled()) return false;
  // Another window of the tool may have changed the others.
  Preferences kept = loadPreferences();
  kept.report = report_.name();
  storePreferences(kept, resources_);
  tessaly::CHelp().CloseHelp();
  return true;
}

String Reports::nameShown() const {
  return report_.name().empty() ? resources_.res(Untitled) : report_.name();
}

Saying Reports::rowsShown() const {
  if (report_.isFiltered()) return {RowsSelectedOf, report_.seenCount(), report_.rowCount()};
  return {RowsOf, report_.rowCount()};
}

void Reports::speak() {
  toolBar_.speak(resources_);
  window_.setBoxWords({.ok = resources_.res(OK),
                       .cancel = resources_.res(Cancel),
                       .yes = resources_.res(YesButton),
                       .no = resources_.res(NoButton)});
  window_.setEventHeadings({resources_.res(TimeHeading), resources_.res(NameHeading),
                            resources_.res(TypeHeading), resources_.res(CommentHeading)});
  std::vector<Event> events;
  for (const Happening& happening : events_) events.push_back(eventOf(happening));
  window_.setEvents(events);
  show();
}

void Reports::show() {
  toolBar_.show(report_, timesSent_);
  auto menus = menusFor(report_, resources_, preferences_.showsStringNumbers);
  if (menus != menus_) window_.setMenu(menus_ = std::move(menus));
  window_.setTitle(nameShown() + (report_.isChanged() ? u"* - " : u" - ") + String(kProgram));
  window_.setStatus({message_.in(resources_), resources_.resWithArg(PageOf, report_.page(), report_.pages()),
                     resources_.resWithArg(ZoomOf, report_.zoom(), u"")});
  showRows();
}

void Reports::showRows() {
  const Long points = preferences_.gridFontSize > 0   ? preferences_.gridFontSize
                      : resources_.gridFontSize() > 0 ? resources_.gridFontSize()
                                                      : kUsualPoints;
  window_.setGridFont(preferences_.gridFont.empty() ? resources_.gridFontName() : preferences_.gridFont,
                      points * report_.zoom() / 100);
  Grid grid;
  for (const Text slot : {DateHeading, OwnerHeading, TypeHeading, AmountHeading, CommentHeading}) {
    grid.headings.push_back(heading(resources_, slot));
  }
  for (const ReportRow& row : report_.pageRows()) {
    grid.rows.emplace_back(row.cells.begin(), row.cells.end());
  }
  grid.selected = report_.selectedOnPage();
  grid.isDescending = report_.isDescending();
  if (const auto column = report_.sortedColumn()) grid.sortedColumn = static_cast<Long>(*column);
  window_.setGrid(grid);
}

Event Reports::eventOf(const Happening& happening) const {
  const String comment = happening.comment ? happening.comment->in(resources_) : String();
  return {{happening.time, nameOf(happening.name.in(resources_)), happening.event, comment},
          !happening.comment};
}

void Reports::tell(const Saying& name, std::u16string_view event, std::optional<Saying> comment) {
  events_.push_back({clock_(), name, String(event), std::move(comment)});
  const Event line = eventOf(events_.back());
  traceStep(line.cells[1] + u": " + line.cells[2] + (line.isMinor ? u"" : u": ") + line.cells[3]);
  window_.addEvent(line);
}

}  // namespace showcase
