#pragma once

#include <string_view>
#include <vector>

#include "tessaly/localisation/CResources.h"

/// What the showcase is as a host: its identity, its folder, and names for the slots that it shows.
namespace showcase {

inline constexpr std::u16string_view kApplicationGUID = u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3";
inline constexpr std::u16string_view kProgram = u"Tessaly Reports";
inline constexpr std::u16string_view kReportsFolder = u"examples/showcase/reports";
inline constexpr std::u16string_view kLanguagesFolder = u"examples/showcase/languages";
inline constexpr std::u16string_view kSamplesFolder = u"examples/showcase/samples";
inline constexpr tessaly::Long kBuiltInEnglish = 2057;

enum Text : tessaly::Long {
  Cancel = 0,
  OK = 1,
  YesButton = 2,
  NoButton = 3,
  HelpButton = 4,
  Open = 12,
  PageOf = 13,
  Ready = 14,
  Done = 18,
  Untitled = 19,
  FileMenu = 20,
  EditMenu = 21,
  ViewMenu = 22,
  ReportMenu = 23,
  ToolsMenu = 24,
  HelpMenu = 26,
  NewReport = 27,
  OpenFile = 28,
  SaveFile = 29,
  SaveFileAs = 30,
  PrintFile = 31,
  PrintPreview = 32,
  SendByMail = 35,
  ExitProgram = 37,
  Delete = 43,
  FindText = 45,
  FindAgain = 46,
  GoToRowNumber = 47,
  RefreshView = 48,
  ZoomIn = 52,
  ZoomOut = 53,
  ActualSize = 54,
  SortAscending = 57,
  SortDescending = 58,
  FilterRows = 59,
  RemoveFilter = 60,
  SettingsDialog = 62,
  HelpContents = 63,
  HelpIndex = 64,
  AboutProgram = 65,
  OpenReport = 66,
  SaveReportAs = 67,
  ReportFiles = 68,
  NameHeading = 71,
  TypeHeading = 72,
  OwnerHeading = 74,
  CommentHeading = 78,
  AmountHeading = 79,
  Total = 80,
  DateHeading = 86,
  TimeHeading = 87,
  NumberHeading = 88,
  TextToFind = 89,
  RowsOf = 93,
  RowsSelectedOf = 94,
  RowAndColumn = 95,
  NoRowsMatch = 96,
  FirstPage = 103,
  PreviousPage = 104,
  NextPage = 105,
  LastPage = 106,
  ZoomOf = 107,
  NumberOfCopies = 117,
  AllPages = 118,
  CurrentPage = 119,
  PrintingPageOf = 122,
  SendReportByMail = 125,
  MailTo = 126,
  MailSubject = 127,
  MailMessage = 128,
  AttachReport = 129,
  Send = 130,
  ReportOf = 131,
  MessageSentTo = 132,
  AddressNotValid = 134,
  SettingsTitle = 135,
  LanguageOfProgram = 141,
  AsTheSystem = 142,
  ShowStringNumbers = 143,
  GridFont = 145,
  FontSize = 147,
  WriteATrace = 150,
  RestoreDefaults = 151,
  ChangeAtNextStart = 152,
  SaveChanges = 154,
  ReplaceFile = 155,
  FileNotFound = 156,
  FileNotOpened = 157,
  FileNotSaved = 158,
  ReportDamaged = 159,
  DeleteThisReport = 160,
  ReportsDeleted = 161,
  NoPermission = 164,
  TextNotFound = 165,
  EndReached = 166,
  NotANumber = 167,
  NumberFromTo = 169,
  UnexpectedError = 170,
  AboutTitle = 171,
  VersionOf = 172,
  VisitTheWebSite = 173,
  WhatTheProgramDoes = 174,
};

/// Where the settings are: the folder of the language files for the machine, the language for the user.
inline constexpr std::u16string_view kMachineKey = u"SOFTWARE\\BRAMWELD SYSTEM\\Tessaly";
inline constexpr std::u16string_view kFolderValue = u"Resources";
inline constexpr std::u16string_view kUserKey = u"Software\\BRAMWELD SYSTEM\\Tessaly Reports";
inline constexpr std::u16string_view kLanguageValue = u"Language";
inline constexpr std::u16string_view kReportsValue = u"Reports";

/// The folder of the language files by the machine's settings, or the showcase's own where they tell none.
tessaly::String languagesFolder();

/// The folder of the reports by the user's settings, or the showcase's own where they tell none.
tessaly::String reportsFolder();

/// Gives a catalogue the showcase's identity and folder.
void start(tessaly::CResources& resources);

/// The numbers to choose from: the built-in English, then what the folder has.
std::vector<tessaly::Long> languages(tessaly::CResources& resources);

/// The name of one of them by its place from 0, in its own language.
tessaly::String languageName(tessaly::CResources& resources, tessaly::Long place);

}  // namespace showcase
