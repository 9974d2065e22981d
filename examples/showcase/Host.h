#pragma once

#include <string_view>
#include <vector>

#include "tessaly/localisation/CResources.h"

/// What the showcase is as a host: its identity, its folder, and names for the slots that it shows.
namespace showcase {

inline constexpr std::u16string_view kApplicationGUID = u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3";
inline constexpr std::u16string_view kLanguagesFolder = u"examples/showcase/languages";
inline constexpr std::u16string_view kSamplesFolder = u"examples/showcase/samples";
inline constexpr tessaly::Long kBuiltInEnglish = 2057;

enum Text : tessaly::Long {
  Cancel = 0,
  OK = 1,
  Open = 12,
  PageOf = 13,
  Ready = 14,
  Done = 18,
  Untitled = 19,
  FileMenu = 20,
  NewReport = 27,
  OpenFile = 28,
  SaveFile = 29,
  PrintFile = 31,
  PrintPreview = 32,
  SendByMail = 35,
  ExitProgram = 37,
  FindText = 45,
  ZoomIn = 52,
  ZoomOut = 53,
  FilterRows = 59,
  NameHeading = 71,
  TypeHeading = 72,
  CommentHeading = 78,
  TimeHeading = 87,
  RowsOf = 93,
  RowsSelectedOf = 94,
  PreviousPage = 104,
  NextPage = 105,
  ZoomOf = 107,
  NumberOfCopies = 117,
  AllPages = 118,
  CurrentPage = 119,
  PrintingPageOf = 122,
  MessageSentTo = 132,
  SaveChanges = 154,
  TextNotFound = 165,
};

/// Where the settings are: the folder of the language files for the machine, the language for the user.
inline constexpr std::u16string_view kMachineKey = u"SOFTWARE\\BRAMWELD SYSTEM\\Tessaly";
inline constexpr std::u16string_view kFolderValue = u"Resources";
inline constexpr std::u16string_view kUserKey = u"Software\\BRAMWELD SYSTEM\\Tessaly Reports";
inline constexpr std::u16string_view kLanguageValue = u"Language";

/// The folder of the language files by the machine's settings, or the showcase's own where they tell none.
tessaly::String languagesFolder();

/// Gives a catalogue the showcase's identity and folder.
void start(tessaly::CResources& resources);

/// The numbers to choose from: the built-in English, then what the folder has.
std::vector<tessaly::Long> languages(tessaly::CResources& resources);

}  // namespace showcase
