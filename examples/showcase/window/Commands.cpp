#include "examples/showcase/window/Commands.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace showcase {
namespace {

constexpr std::int16_t kCtrl = 2;

struct Entry {
  Command command;
  Text slot;
  std::u16string_view keyName = {};
  std::int16_t key = 0;
  std::int16_t shift = 0;
};

// The help on F1 is the dialogs' too, so `CHelp` decides about that key.
constexpr auto kEntries = std::to_array<Entry>({
    {Command::New, NewReport, u"Ctrl+N", u'N', kCtrl},
    {Command::Open, OpenFile, u"Ctrl+O", u'O', kCtrl},
    {Command::Save, SaveFile, u"Ctrl+S", u'S', kCtrl},
    {Command::SaveAs, SaveFileAs},
    {Command::Print, PrintFile, u"Ctrl+P", u'P', kCtrl},
    {Command::Mail, SendByMail, u"Ctrl+M", u'M', kCtrl},
    {Command::DeleteReport, Delete},
    {Command::Exit, ExitProgram},
    {Command::Find, FindText, u"Ctrl+F", u'F', kCtrl},
    {Command::FindNext, FindAgain, u"F3", 114},
    {Command::GoToRow, GoToRowNumber, u"Ctrl+G", u'G', kCtrl},
    {Command::Refresh, RefreshView, u"F5", 116},
    {Command::ZoomIn, ZoomIn},
    {Command::ZoomOut, ZoomOut},
    {Command::ActualSize, ActualSize, u"Ctrl+0", u'0', kCtrl},
    {Command::FirstPage, FirstPage},
    {Command::PreviousPage, PreviousPage},
    {Command::NextPage, NextPage},
    {Command::LastPage, LastPage},
    {Command::SortAscending, SortAscending},
    {Command::SortDescending, SortDescending},
    {Command::Filter, FilterRows, u"Ctrl+L", u'L', kCtrl},
    {Command::RemoveFilter, RemoveFilter},
    {Command::ShowNumbers, ShowStringNumbers},
    {Command::Settings, SettingsDialog},
    {Command::HelpContents, HelpContents, u"F1"},
    {Command::HelpIndex, HelpIndex},
    {Command::About, AboutProgram},
});

const Entry& entryOf(Command command) {
  return *std::find_if(kEntries.begin(), kEntries.end(),
                       [command](const Entry& entry) { return entry.command == command; });
}

}  // namespace

Text slotOf(Command command) { return entryOf(command).slot; }

tessaly::String keyOf(Command command) { return tessaly::String(entryOf(command).keyName); }

std::optional<Command> commandOf(std::int16_t key, std::int16_t shift) {
  const auto* const entry = std::find_if(kEntries.begin(), kEntries.end(), [&](const Entry& each) {
    return each.key != 0 && each.key == key && each.shift == shift;
  });
  return entry == kEntries.end() ? std::nullopt : std::optional(entry->command);
}

}  // namespace showcase
