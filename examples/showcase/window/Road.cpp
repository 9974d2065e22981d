#include "examples/showcase/window/Road.h"

namespace showcase {
namespace {

constexpr std::size_t kTurnedPages = 4;

void holdUntil(Window& window, Reports& reports, Tool tool, std::size_t events) {
  const auto& button = reports.button(tool);
  while (reports.events().size() < events) {
    // Another window that takes the keyboard ends a press; one that goes on is not begun again.
    window.hold(button);
    window.handleNext();
  }
  window.release(button);
}

}  // namespace

void walk(Window& window, Reports& reports) {
  // Nobody rests here, however long the computer takes.
  for (tessaly::Long place = 0; place < kTools; ++place) {
    reports.button(static_cast<Tool>(place)).events.OnButtonSelectedTiming = nullptr;
  }
  for (const Tool tool :
       {Tool::New, Tool::Save, Tool::Open, Tool::Mail, Tool::Mail, Tool::Larger, Tool::Filter}) {
    window.press(reports.button(tool));
  }
  // One for the pointer that comes, and one for each page.
  holdUntil(window, reports, Tool::On, reports.events().size() + 1 + kTurnedPages);
}

}  // namespace showcase
