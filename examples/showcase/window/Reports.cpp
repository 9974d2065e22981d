#include "examples/showcase/window/Reports.h"

#include <array>
#include <utility>

#include "examples/showcase/Host.h"
#include "examples/showcase/Tracing.h"
#include "examples/showcase/window/Names.h"

namespace showcase {
namespace {

using tessaly::Long;
using tessaly::String;

using Act = String (Report::*)();

constexpr std::array<Act, kTools> kActs = {
    &Report::beginNew, &Report::open,     &Report::save,   &Report::print,   &Report::send,  &Report::find,
    &Report::filter,   &Report::turnBack, &Report::turnOn, &Report::zoomOut, &Report::zoomIn};

}  // namespace

Reports::Reports(Window& window, const tessaly::CResources& resources, std::function<String()> clock)
    : window_(window), resources_(resources), clock_(std::move(clock)), report_(resources), toolBar_(window) {
  for (Long place = 0; place < kTools; ++place) listenTo(static_cast<Tool>(place));
  speak();
}

void Reports::speak() {
  window_.setListFont(resources_.gridFontName(), resources_.gridFontSize());
  window_.setColumns({resources_.res(TimeHeading), resources_.res(NameHeading), resources_.res(TypeHeading),
                      resources_.res(CommentHeading)});
  toolBar_.speak(resources_);
  showState(resources_.res(Ready));
}

void Reports::listenTo(Tool tool) {
  auto& events = toolBar_.button(tool).events;
  events.OnButtonSelected = [this, tool] { tell(tool, u"OnButtonSelected", u""); };
  events.OnButtonSelectedTiming = [this, tool] { tell(tool, u"OnButtonSelectedTiming", u""); };
  events.OnButtonClick = [this, tool] { click(tool); };
}

void Reports::click(Tool tool) {
  const String answer = (report_.*kActs[static_cast<std::size_t>(tool)])();
  showState(answer);
  tell(tool, u"OnButtonClick", answer);
}

void Reports::tell(Tool tool, std::u16string_view event, String comment) {
  const String name = nameOf(resources_.res(slotOf(tool)));
  traceStep(name + u": " + String(event));
  const bool isMinor = comment.empty();
  events_.push_back({{clock_(), name, String(event), std::move(comment)}, isMinor});
  window_.addEvent(events_.back());
}

void Reports::showState(const String& message) {
  toolBar_.show(report_);
  window_.setTitle(report_.name() + (report_.isChanged() ? u"* - " : u" - ") + u"Tessaly Reports");
  window_.setStatus({message, report_.page(), report_.zoom()});
}

}  // namespace showcase
