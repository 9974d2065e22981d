#include "examples/showcase/window/ToolBar.h"

#include <algorithm>
#include <array>

#include "examples/showcase/Host.h"
#include "examples/showcase/window/Names.h"

namespace showcase {
namespace {

using tessaly::Long;

constexpr Long kBorder = 1;
constexpr Long kBottomLeft = 6;
constexpr Long kBottomRight = 8;

/// Behind a button that is on.
constexpr tessaly::OLE_COLOR kOnColour = 0xF6DFC8;

/// A held button waits a little, and then goes on at a pace that one can follow.
constexpr Long kFirstTiming = 400;
constexpr Long kTiming = 120;

constexpr std::array<Command, kTools> kCommands = {Command::New,     Command::Open,         Command::Save,
                                                   Command::Print,   Command::Mail,         Command::Find,
                                                   Command::Filter,  Command::PreviousPage, Command::NextPage,
                                                   Command::ZoomOut, Command::ZoomIn};

bool beginsGroup(Tool tool) {
  return tool == Tool::Print || tool == Tool::Find || tool == Tool::Back || tool == Tool::Smaller;
}

bool repeats(Tool tool) { return tool >= Tool::Back; }

Tool mirrored(Tool tool) {
  if (tool == Tool::Back) return Tool::On;
  return tool == Tool::On ? Tool::Back : tool;
}

/// An assignment draws the button anew, so what is so already is left.
void setEnabled(tessaly::transparentBitmap& button, bool isEnabled) {
  if ((button.enabled() != 0) != isEnabled) button.enabled(isEnabled);
}

}  // namespace

Command commandOf(Tool tool) { return kCommands[static_cast<std::size_t>(tool)]; }

ToolBar::ToolBar(Window& window) : window_(window) {
  for (Long place = 0; place < kTools; ++place) addButton(static_cast<Tool>(place));
}

void ToolBar::addButton(Tool tool) {
  if (beginsGroup(tool)) window_.addGap();
  tessaly::transparentBitmap& button = window_.addButton();
  buttons_.push_back(&button);
  button.backcolor(kToolBarColour);
  button.maskColor(kToolBarColour);
  button.withBorder(kBorder);
  button.automaticClick(repeats(tool));
  button.automaticClickFirstTiming(kFirstTiming);
  button.automaticClickTiming(kTiming);
  setPictures(tool, tool);
}

void ToolBar::setPictures(Tool tool, Tool shown) {
  const auto place = static_cast<Long>(shown);
  button(tool).Picture(pictures_.tool(place));
  button(tool).disabledPicture(pictures_.disabledTool(place));
}

void ToolBar::speak(const tessaly::CResources& resources) {
  isFromRight_ = isWrittenFromRight(resources.lang());
  window_.setRightToLeft(isFromRight_);
  for (const Tool tool : {Tool::Back, Tool::On}) setPictures(tool, isFromRight_ ? mirrored(tool) : tool);
  for (Long place = 0; place < kTools; ++place) {
    const Tool tool = static_cast<Tool>(place);
    window_.nameButton(button(tool), nameOf(resources.res(slotOf(commandOf(tool)))));
  }
}

void ToolBar::pin(Tool tool, Long overlay) {
  const Long corner = isFromRight_ ? kBottomLeft : kBottomRight;
  button(tool).AddBitmap(pictures_.overlay(overlay), corner, kToolBarColour);
}

void ToolBar::show(const Report& report, Long timesSent) {
  setEnabled(button(Tool::Save), report.isChanged());
  setEnabled(button(Tool::Find), report.seenCount() > 0);
  setEnabled(button(Tool::Filter), report.seenCount() > 0);
  setEnabled(button(Tool::Back), report.page() > 1);
  setEnabled(button(Tool::On), report.page() < report.pages());
  setEnabled(button(Tool::Smaller), report.canZoomOut());
  setEnabled(button(Tool::Larger), report.canZoomIn());
  for (const Tool tool : {Tool::Save, Tool::Mail, Tool::Filter}) button(tool).ClearBitmaps();
  if (report.isChanged()) pin(Tool::Save, ToolPictures::Changed);
  if (timesSent > 0) pin(Tool::Mail, ToolPictures::Number + std::min(timesSent, 9) - 1);
  if (report.isFiltered()) pin(Tool::Filter, ToolPictures::On);
  button(Tool::Filter).backcolor(report.isFiltered() ? kOnColour : kToolBarColour);
}

}  // namespace showcase
