#pragma once

#include <cstdint>
#include <optional>

#include "examples/showcase/Host.h"

namespace showcase {

/// What the tool can be told to do, from its menu, its tool bar or a key. From `FirstLanguage` on it is a
/// language by its place in the list.
enum class Command : tessaly::Long {
  New = 1,
  Open,
  Save,
  SaveAs,
  Print,
  Mail,
  DeleteReport,
  Exit,
  Find,
  FindNext,
  GoToRow,
  Refresh,
  ZoomIn,
  ZoomOut,
  ActualSize,
  FirstPage,
  PreviousPage,
  NextPage,
  LastPage,
  SortAscending,
  SortDescending,
  Filter,
  RemoveFilter,
  ShowNumbers,
  Settings,
  HelpContents,
  HelpIndex,
  About,
  FirstLanguage = 1000,
};

/// The text of a command that is no language.
Text slotOf(Command command);

/// The key of a command, as the menu shows it, such as "Ctrl+O"; empty where it has none.
tessaly::String keyOf(Command command);

/// The command of a key, by its number and with the bits of Shift 1, Ctrl 2 and Alt 4.
std::optional<Command> commandOf(std::int16_t key, std::int16_t shift);

}  // namespace showcase
