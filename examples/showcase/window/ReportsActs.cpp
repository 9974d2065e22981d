// What the commands of the tool do; each gives what there is to say of it.

#include "examples/showcase/Tracing.h"
#include "examples/showcase/window/Dialogs.h"
#include "examples/showcase/window/Names.h"
#include "examples/showcase/window/Reports.h"
#include "tessaly/dialogs/CHelp.h"

namespace showcase {

using tessaly::Long;
using tessaly::String;

namespace {

constexpr Long kZoomStep = 10;
constexpr Long kWhole = 100;

Saying faultOf(FileFault fault, const String& name, const tessaly::CResources& resources) {
  if (fault == FileFault::NotFound) return {FileNotFound, name};
  if (fault == FileFault::Damaged) return {ReportDamaged, name};
  return {FileNotOpened, name, resources.resWithArg(NoPermission, name, u"")};
}

}  // namespace

Saying Reports::act(Command command) {
  if (command >= Command::FirstLanguage) {
    return chooseLanguage(static_cast<Long>(command) - static_cast<Long>(Command::FirstLanguage));
  }
  switch (command) {
    case Command::New:
      return beginNew();
    case Command::Open:
      return openChosen();
    case Command::Save:
      return save();
    case Command::SaveAs:
      return saveAs();
    case Command::Print:
      return print();
    case Command::Mail:
      return mail();
    case Command::DeleteReport:
      return deleteReport();
    case Command::Exit:
      window_.close();
      return Ready;
    case Command::Find:
      return find();
    case Command::FindNext:
      return findNext();
    case Command::GoToRow:
      return goToRow();
    case Command::Refresh:
      return refresh();
    case Command::ZoomIn:
      return zoomTo(report_.zoom() + kZoomStep);
    case Command::ZoomOut:
      return zoomTo(report_.zoom() - kZoomStep);
    case Command::ActualSize:
      return zoomTo(kWhole);
    case Command::FirstPage:
      return turnTo(1);
    case Command::PreviousPage:
      return turnTo(report_.page() - 1);
    case Command::NextPage:
      return turnTo(report_.page() + 1);
    case Command::LastPage:
      return turnTo(report_.pages());
    case Command::SortAscending:
      return sortSelected(false);
    case Command::SortDescending:
      return sortSelected(true);
    case Command::Filter:
      return filter();
    case Command::RemoveFilter:
      return removeFilter();
    case Command::ShowNumbers:
      return toggleNumbers();
    case Command::Settings:
      return changeSettings();
    case Command::HelpContents:
      desk_.showHelp(window_.handle(), u"reports");
      return Ready;
    case Command::HelpIndex:
      tessaly::CHelp().DisplayIndex(window_.handle());
      return Ready;
    default:
      showAbout(desk_);
      return Ready;
  }
}

bool Reports::isSettled() {
  if (!report_.isChanged()) return true;
  // One without a name is empty, and no loss.
  if (report_.name().empty() || !desk_.ask(Desk::kQuestion, {SaveChanges, nameShown()})) return true;
  return write(report_.name(), report_.rows());
}

bool Reports::open(const String& name) {
  ReadReport read = shelf_.read(name);
  if (read.fault == FileFault::None) {
    report_.take(name, std::move(read.rows));
    timesSent_ = 0;
    return true;
  }
  const Saying fault = faultOf(read.fault, name, resources_);
  traceFault(fault.in(resources_));
  desk_.show(Desk::kError, fault);
  return false;
}

bool Reports::write(const String& name, const std::vector<ReportRow>& rows) {
  if (shelf_.write(name, rows)) {
    report_.markSaved(name);
    return true;
  }
  const Saying fault(FileNotSaved, name, resources_.resWithArg(NoPermission, name, u""));
  traceFault(fault.in(resources_));
  desk_.show(Desk::kError, fault);
  return false;
}

Saying Reports::beginNew() {
  if (!isSettled()) return Ready;
  report_.beginNew();
  timesSent_ = 0;
  return Untitled;
}

Saying Reports::openChosen() {
  if (!isSettled()) return Ready;
  const auto name = chooseReport(desk_, shelf_.names());
  return name && open(*name) ? rowsShown() : Saying(Ready);
}

Saying Reports::save() {
  if (report_.name().empty()) return saveAs();
  return write(report_.name(), report_.rows()) ? Done : Ready;
}

Saying Reports::saveAs() {
  const auto written = nameReport(desk_, nameShown());
  const String name = written ? Shelf::fileName(*written) : String();
  if (name.empty()) return Ready;
  if (shelf_.has(name) && !desk_.ask(Desk::kQuestion, {ReplaceFile, name})) return Ready;
  if (!write(name, report_.seenRows())) return Ready;
  report_.take(name, report_.seenRows());
  return Done;
}

Saying Reports::print() {
  const auto order = askHowToPrint(desk_);
  if (!order) return Ready;
  const Long first = order->isOfAllPages ? 1 : report_.page();
  const Long last = order->isOfAllPages ? report_.pages() : report_.page();
  for (Long copy = 0; copy < order->copies; ++copy) {
    for (Long page = first; page <= last; ++page) {
      traceStep(resources_.resWithArg(PrintingPageOf, page, report_.pages()));
    }
  }
  return {PrintingPageOf, last, report_.pages()};
}

Saying Reports::mail() {
  const auto address = writeMail(desk_, resources_.resWithArg(ReportOf, nameShown(), clock_()));
  if (!address) return Ready;
  ++timesSent_;
  Saying sent(MessageSentTo, *address);
  desk_.show(Desk::kTell, sent);
  return sent;
}

Saying Reports::deleteReport() {
  const String name = report_.name();
  if (!desk_.ask(Desk::kConfirm, {DeleteThisReport, name})) return Ready;
  if (!shelf_.remove(name)) {
    desk_.show(Desk::kError, {NoPermission, name});
    return Ready;
  }
  report_.beginNew();
  return {ReportsDeleted, 1};
}

Saying Reports::refresh() {
  const String name = report_.name();
  return isSettled() && open(name) ? rowsShown() : Saying(Ready);
}

Saying Reports::find() {
  const auto text = askForText(desk_, FindText, sought_);
  if (!text) return Ready;
  sought_ = *text;
  return findNext();
}

Saying Reports::findNext() {
  if (sought_.empty()) return find();
  const Long from = report_.selected() + 1;
  auto place = report_.find(sought_, from);
  if (!place && !report_.find(sought_, 0)) {
    desk_.show(Desk::kWarning, {TextNotFound, sought_});
    return {TextNotFound, sought_};
  }
  if (!place && desk_.ask(Desk::kQuestion, EndReached)) place = report_.find(sought_, 0);
  if (!place) return Ready;
  report_.select(place->row);
  return {RowAndColumn, place->row + 1, place->column + 1};
}

Saying Reports::goToRow() {
  const auto row = askForRow(desk_, report_.seenCount());
  if (!row) return Ready;
  report_.select(*row - 1);
  return {RowAndColumn, *row, 1};
}

Saying Reports::filter() {
  const auto text = askForText(desk_, FilterRows, report_.filterText());
  if (!text) return Ready;
  if (!report_.filter(*text)) desk_.show(Desk::kWarning, NoRowsMatch);
  return rowsShown();
}

Saying Reports::removeFilter() {
  report_.filter(u"");
  return rowsShown();
}

Saying Reports::sortBy(Long column, bool isDescending) {
  report_.sort(static_cast<Column>(column), isDescending);
  return Saying::named(isDescending ? SortDescending : SortAscending);
}

Saying Reports::sortSelected(bool isDescending) {
  return sortBy(static_cast<Long>(report_.sortedColumn().value_or(Column::Month)), isDescending);
}

Saying Reports::turnTo(Long page) {
  report_.turnTo(page);
  return {PageOf, report_.page(), report_.pages()};
}

Saying Reports::zoomTo(Long percent) {
  report_.zoomTo(percent);
  return {ZoomOf, report_.zoom()};
}

Saying Reports::toggleNumbers() {
  preferences_.showsStringNumbers = !preferences_.showsStringNumbers;
  // The language may be one of this time alone.
  keepAndSpeak(resources_.lang());
  return Saying::named(ShowStringNumbers);
}

Saying Reports::changeSettings() {
  const Long before = preferences_.language;
  if (!editPreferences(desk_, preferences_)) return Ready;
  keepAndSpeak(preferences_.language == before ? resources_.lang() : preferences_.language);
  return Done;
}

}  // namespace showcase
