// The tool's dialogs, message boxes, help and link, answered as a user would.

#include <algorithm>
#include <fstream>

#include "examples/showcase/tests/WindowStage.h"

namespace showcase::tests {
namespace {

using tessaly::Long;
using tessaly::String;

constexpr Long kYes = 6;
constexpr std::int16_t kF1 = 112;

class WindowDialogTest : public WindowStage {
 protected:
  /// Chooses a report in the dialog of all of them.
  void openReport(std::u16string_view name) {
    window->visitNextDialog([name = String(name)](DialogUser& user) {
      constexpr std::array<std::u16string_view, 4> names = {u"Licences.rep", u"Old budget.rep", u"Sales.rep",
                                                            u"Travel.rep"};
      user.choose(0, static_cast<Long>(std::find(names.begin(), names.end(), name) - names.begin()));
      user.press(Dialog::kOk);
    });
    choose(Command::Open);
  }

  std::string helpAskedFor() const {
    if (help.shown().empty()) return {};
    return help.shown().back().file.substr(1);
  }

  /// Fields of the settings.
  enum Place { Language, Numbers, Font, Size, Trace };

  void changeSettings(const DialogVisit& visit) {
    window->visitNextDialog(visit);
    choose(Command::Settings);
  }
};

class ArabicDialogTest : public WindowDialogTest {
 protected:
  ArabicDialogTest() { chooseLanguage(kArabic); }
};

TEST_F(WindowDialogTest, AnotherReportIsChosenFromAList) {
  openReport(u"Licences.rep");
  EXPECT_EQ(window->title, u"Licences.rep - Tessaly Reports");
  EXPECT_EQ(window->status[0], u"16 rows");
  EXPECT_EQ(window->dialogs[0].fields[0].choices.size(), 4U);
  EXPECT_TRUE(boxes.boxes().empty());
}

TEST_F(WindowDialogTest, ADamagedReportIsToldAndTheOpenOneStays) {
  openReport(u"Old budget.rep");
  EXPECT_EQ(lastBox().text, u"The report Old budget.rep is damaged and can't be shown.");
  EXPECT_EQ(lastBox().caption, u"Tessaly");
  EXPECT_EQ(lastBox().type, 0x10);
  EXPECT_EQ(window->title, u"Sales.rep - Tessaly Reports");
}

TEST_F(WindowDialogTest, AReportThatIsGoneIsTold) {
  std::filesystem::remove(folder.path() / "Sales.rep");
  choose(Command::Refresh);
  EXPECT_EQ(lastBox().text, u"The file Sales.rep was not found.");
  EXPECT_EQ(lastBox().type, 0x10);
}

TEST_F(WindowDialogTest, WhatIsNoFileIsToldAsSuch) {
  std::filesystem::remove(folder.path() / "Sales.rep");
  std::filesystem::create_directory(folder.path() / "Sales.rep");
  choose(Command::Refresh);
  EXPECT_EQ(lastBox().text,
            u"The file Sales.rep could not be opened: You have no permission to change Sales.rep.");
}

TEST_F(WindowDialogTest, AReportThatCantBeSavedIsTold) {
  window->clickHeading(0);
  std::filesystem::remove(folder.path() / "Sales.rep");
  std::filesystem::create_directory(folder.path() / "Sales.rep");
  choose(Command::Save);
  EXPECT_EQ(lastBox().text,
            u"The file Sales.rep could not be saved: You have no permission to change Sales.rep.");
  EXPECT_EQ(lastBox().type, 0x10);
  EXPECT_EQ(window->title, u"Sales.rep* - Tessaly Reports");
}

TEST_F(WindowDialogTest, AReportIsDeletedOnlyWhenTheUserSaysYes) {
  choose(Command::DeleteReport);
  EXPECT_EQ(lastBox().text, u"Delete the report Sales.rep? This can't be undone.");
  EXPECT_EQ(lastBox().type, 0x104);
  EXPECT_TRUE(std::filesystem::exists(folder.path() / "Sales.rep"));
  boxes.press(kYes);
  choose(Command::DeleteReport);
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "Sales.rep"));
  EXPECT_EQ(window->title, u"Untitled* - Tessaly Reports");
  EXPECT_EQ(window->status[0], u"1 reports were deleted.");
  EXPECT_FALSE(canChoose(Command::DeleteReport));
}

TEST_F(WindowDialogTest, ChangesAreSavedBeforeTheWindowClosesWhereTheUserSaysSo) {
  window->clickHeading(1);
  boxes.press(kYes);
  window->close();
  EXPECT_TRUE(window->isClosed);
  EXPECT_EQ(lastBox().text, u"Save the changes to Sales.rep?");
  EXPECT_EQ(lastBox().type, 0x124);
  EXPECT_EQ(Shelf(folder.text()).read(u"Sales.rep").rows[0].cell(Column::Owner), u"Björk");
  EXPECT_EQ(help.calls().back(), "HtmlHelpA");
  EXPECT_EQ(help.shown().back().command, tessaly::platform::help_command::kCloseAll);
}

TEST_F(WindowDialogTest, AWindowWhoseChangesCantBeSavedStays) {
  window->clickHeading(1);
  std::filesystem::remove(folder.path() / "Sales.rep");
  std::filesystem::create_directory(folder.path() / "Sales.rep");
  boxes.press(kYes);
  choose(Command::Exit);
  EXPECT_FALSE(window->isClosed);
  boxes.press(7);
  choose(Command::Exit);
  EXPECT_TRUE(window->isClosed);
}

TEST_F(WindowDialogTest, TheRowsThatAreSeenAreSavedUnderAnotherName) {
  write(u"hansen");
  choose(Command::Filter);
  write(u"Han/sen: all.rep");
  choose(Command::SaveAs);
  EXPECT_EQ(window->title, u"Han_sen_ all.rep - Tessaly Reports");
  EXPECT_EQ(Shelf(folder.text()).read(u"Han_sen_ all.rep").rows.size(), 12U);
  write(u"Sales");
  choose(Command::SaveAs);
  EXPECT_EQ(lastBox().text, u"The file Sales.rep already exists. Replace Sales.rep?");
  EXPECT_EQ(lastBox().type, 0x124);
  EXPECT_EQ(Shelf(folder.text()).read(u"Sales.rep").rows.size(), 96U);
}

TEST_F(WindowDialogTest, TheSearchGoesOnFromTheTopWhereTheUserSaysSo) {
  boxes.press(kYes);
  write(u"BONUS");
  choose(Command::Find);
  EXPECT_EQ(window->status[0], u"Row 6, column 5");
  choose(Command::FindNext);
  EXPECT_EQ(window->status[0], u"Row 91, column 5");
  EXPECT_TRUE(boxes.boxes().empty());
  choose(Command::FindNext);
  EXPECT_EQ(lastBox().text, u"The search reached the end of the report. Go on from the top?");
  EXPECT_EQ(lastBox().type, 0x124);
  EXPECT_EQ(window->status[0], u"Row 6, column 5");
  write(u"nobody");
  choose(Command::Find);
  EXPECT_EQ(lastBox().text, u"The text \"nobody\" was not found.");
  EXPECT_EQ(lastBox().type, 0x30);
}

TEST_F(WindowDialogTest, AFilterThatLeavesNoRowIsToldAndNotUsed) {
  write(u"nobody");
  choose(Command::Filter);
  EXPECT_EQ(lastBox().text, u"No rows match the filter.");
  EXPECT_EQ(lastBox().type, 0x30);
  EXPECT_EQ(window->status[0], u"96 rows");
}

TEST_F(WindowDialogTest, ARowsNumberIsAskedForUntilItIsOne) {
  window->visitNextDialog([](DialogUser& user) {
    for (const char16_t* const text : {u"x", u"", u"0", u"97", u"-1", u"96"}) {
      user.write(0, text);
      user.press(Dialog::kOk);
    }
  });
  choose(Command::GoToRow);
  ASSERT_EQ(boxes.boxes().size(), 5U);
  EXPECT_EQ(boxes.boxes()[0].text, u"\"x\" is not a number.");
  EXPECT_EQ(boxes.boxes()[2].text, u"Enter a number from 1 to 96.");
  EXPECT_EQ(boxes.boxes()[4].type, 0x30);
  EXPECT_EQ(window->status[0], u"Row 96, column 1");
}

TEST_F(WindowDialogTest, AMailIsSentToAnAddressAlone) {
  window->visitNextDialog([](DialogUser& user) {
    for (const char16_t* const text :
         {u"", u"x", u"@example.com", u"a@", u"a b@example.com", u"a@b@c", u"a@b"}) {
      user.write(0, text);
      user.press(Dialog::kOk);
    }
  });
  choose(Command::Mail);
  ASSERT_EQ(boxes.boxes().size(), 7U);
  EXPECT_EQ(boxes.boxes()[1].text, u"The address x is not valid.");
  EXPECT_EQ(boxes.boxes()[1].type, 0x30);
  EXPECT_EQ(lastBox().text, u"The message was sent to a@b.");
  EXPECT_EQ(lastBox().type, 0);
}

TEST_F(WindowDialogTest, SettingsAreThereAtTheNextStart) {
  changeSettings([](DialogUser& user) {
    user.choose(Language, 2);  // behind the system's and English: Arabic
    user.write(Font, u"DejaVu Sans");
    user.write(Size, u"14");
    user.press(Dialog::kOk);
  });
  EXPECT_TRUE(window->isRightToLeft);
  open();
  EXPECT_EQ(catalogue.resources.lang(), kArabic);
  EXPECT_EQ(window->gridFont, u"DejaVu Sans");
  EXPECT_EQ(window->gridFontSize, 14);
}

TEST_F(WindowDialogTest, CancelledSettingsChangeNothing) {
  changeSettings([](DialogUser& user) {
    user.choose(Language, 2);
    user.write(Size, u"14");
    user.press(Dialog::kCancel);
  });
  EXPECT_EQ(loadPreferences(), Preferences());
  EXPECT_EQ(catalogue.resources.lang(), kBuiltInEnglish);
}

TEST_F(WindowDialogTest, SettingsTakeNoSizeThatIsNone) {
  changeSettings([](DialogUser& user) {
    for (const char16_t* const text : {u"big", u"5", u"73", u""}) {
      user.write(Size, text);
      user.press(Dialog::kOk);
    }
  });
  ASSERT_EQ(boxes.boxes().size(), 3U);
  EXPECT_EQ(boxes.boxes()[0].text, u"\"big\" is not a number.");
  EXPECT_EQ(boxes.boxes()[1].text, u"Enter a number from 6 to 72.");
  EXPECT_EQ(window->status[0], u"Done");
}

TEST_F(WindowDialogTest, DefaultsAreRestoredInTheDialog) {
  chooseLanguage(kRussian);
  changeSettings([](DialogUser& user) {
    user.choose(Numbers, 1);
    user.press(Dialog::kOther);
    user.press(Dialog::kOk);
  });
  EXPECT_EQ(loadPreferences(), Preferences());
}

TEST_F(WindowDialogTest, TheTraceIsSwitchedInTheMachinesSettings) {
  const auto switchOn = [](DialogUser& user) {
    user.choose(Trace, 1);
    user.press(Dialog::kOk);
  };
  changeSettings(switchOn);
  EXPECT_TRUE(writesTrace());
  EXPECT_EQ(lastBox().text, u"The change takes effect when the program starts again.");
  changeSettings(switchOn);
  EXPECT_EQ(boxes.boxes().size(), 1U);
}

TEST_F(WindowDialogTest, ATraceThatTheUserMayNotSwitchIsTold) {
  registry.protectMachine();
  changeSettings([](DialogUser& user) {
    user.choose(Trace, 1);
    user.press(Dialog::kOk);
    user.press(Dialog::kOk);
  });
  ASSERT_EQ(boxes.boxes().size(), 1U);
  EXPECT_EQ(lastBox().text,
            u"You have no permission to change HKEY_LOCAL_MACHINE\\SOFTWARE\\BRAMWELD SYSTEM\\Tessaly.");
  EXPECT_EQ(lastBox().type, 0x30);
  EXPECT_EQ(window->status[0], u"Done");
}

TEST_F(WindowDialogTest, EachDialogHasAPageOfHelpForItsButtonAndForF1) {
  const std::array<std::pair<Command, std::string>, 9> pages = {{{Command::Open, "open"},
                                                                 {Command::SaveAs, "open"},
                                                                 {Command::Print, "open"},
                                                                 {Command::Mail, "mail"},
                                                                 {Command::Find, "grid"},
                                                                 {Command::Filter, "grid"},
                                                                 {Command::GoToRow, "grid"},
                                                                 {Command::Settings, "settings"},
                                                                 {Command::About, "about"}}};
  for (const auto& [command, page] : pages) {
    const std::size_t before = help.shown().size();
    window->visitNextDialog([](DialogUser& user) {
      user.key(kF1, 1);
      user.key(113, 0);
      user.key(kF1, 0);
      user.press(Dialog::kHelp);
    });
    choose(command);
    ASSERT_EQ(help.shown().size(), before + 2) << page;
    EXPECT_EQ(helpAskedFor(), "Tessaly.chm::/" + page + ".html");
    EXPECT_EQ(help.shown().back().owner, FakeWindow::kDialogHandle);
    EXPECT_EQ(help.placed().back().after, tessaly::platform::kTopMost);
    EXPECT_TRUE(std::filesystem::exists("examples/showcase/help/" + page + ".html"));
  }
}

TEST_F(WindowDialogTest, TheWindowHasAPageOfHelpAndTheIndex) {
  EXPECT_TRUE(window->handlers.onKey(kF1, 0));
  EXPECT_EQ(helpAskedFor(), "Tessaly.chm::/reports.html");
  EXPECT_EQ(help.shown().back().owner, FakeWindow::kHandle);
  choose(Command::HelpIndex);
  EXPECT_EQ(help.shown().back().command, tessaly::platform::help_command::kDisplayIndex);
}

TEST_F(WindowDialogTest, TheLinkOfTheProgramIsOpenedAndListed) {
  window->visitNextDialog([](DialogUser& user) { user.click(3); });
  choose(Command::About);
  ASSERT_EQ(shell.opened().size(), 1U);
  EXPECT_EQ(shell.opened()[0].file, "https://www.example.com/reports/");
  EXPECT_EQ(window->events[0].cells[2], u"GoToURL");
  EXPECT_EQ(window->events[0].cells[3], u"https://www.example.com/reports/");
}

TEST_F(ArabicDialogTest, MessageBoxesAreWrittenFromTheRight) {
  choose(Command::DeleteReport);
  EXPECT_EQ(lastBox().type, 0x104 | 0x180000);
}

}  // namespace
}  // namespace showcase::tests
