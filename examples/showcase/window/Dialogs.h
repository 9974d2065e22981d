#pragma once

#include <optional>
#include <vector>

#include "examples/showcase/window/Desk.h"
#include "examples/showcase/window/Preferences.h"

/// The tool's dialogs, each a function that gives what the user has entered, or nothing where he cancels.
namespace showcase {

std::optional<tessaly::String> chooseReport(const Desk& desk, const std::vector<tessaly::String>& names);

/// A name for a report, which begins as told.
std::optional<tessaly::String> nameReport(const Desk& desk, std::u16string_view name);

/// A text to find or to filter by, which begins as told.
std::optional<tessaly::String> askForText(const Desk& desk, Text title, std::u16string_view text);

/// A row's number from 1 on.
std::optional<tessaly::Long> askForRow(const Desk& desk, tessaly::Long rows);

struct PrintOrder {
  tessaly::Long copies = 1;
  bool isOfAllPages = true;
};

std::optional<PrintOrder> askHowToPrint(const Desk& desk);

/// The address that a report is to be mailed to.
std::optional<tessaly::String> writeMail(const Desk& desk, std::u16string_view subject);

/// Changes preferences; false where they stay. The trace is switched for the next start.
bool editPreferences(const Desk& desk, Preferences& preferences);

void showAbout(const Desk& desk);

}  // namespace showcase
