// What the tool in the window does, without a window: by its menus, and by the buttons of a form without a
// display.

#include <algorithm>

#include "examples/showcase/tests/WindowStage.h"
#include "examples/showcase/window/Road.h"

namespace showcase::tests {
namespace {

using tessaly::Long;
using tessaly::String;

class WindowTest : public WindowStage {
 protected:
  using WindowStage::WindowStage;

  bool isEnabled(Tool tool) const { return reports->button(tool).enabled() != 0; }
  tessaly::PictureReference shown(Tool tool) { return window->form.placeOf(reports->button(tool)).picture(); }
  bool looksAs(Tool tool, const tessaly::PictureReference& before) {
    return std::ranges::equal(shown(tool)->pixels(), before->pixels());
  }

  /// Which events came, each with its button's name and what it brought.
  std::string happened() const {
    std::string lines;
    for (const Event& event : window->events) {
      lines += tessaly::toUtf8(event.cells[1] + u" " + event.cells[2]);
      if (!event.isMinor) lines += tessaly::toUtf8(u": " + event.cells[3]);
      lines += '\n';
    }
    return lines;
  }
};

class ArabicWindowTest : public WindowTest {
 protected:
  ArabicWindowTest() : WindowTest(kArabic) {}
};

TEST_F(WindowTest, TheFirstSightIsAReportWithNothingToSave) {
  EXPECT_EQ(window->title, u"Sales.rep - Tessaly Reports");
  EXPECT_EQ(window->status, (std::array<String, 3>{u"Ready", u"Page 1 of 6", u"Zoom: 100%"}));
  EXPECT_EQ(window->headings, (std::array<String, 4>{u"Time", u"Name", u"Type", u"Comment"}));
  ASSERT_EQ(window->grid.rows.size(), 16U);
  EXPECT_EQ(window->grid.rows[0], (std::vector<String>{u"2025-01", u"Hansen", u"Support", u"4195.63", u""}));
  EXPECT_EQ(window->grid.headings[3].text, u"Amount");
  EXPECT_TRUE(window->grid.headings[3].isOfNumbers);
  EXPECT_FALSE(window->isRightToLeft);
  EXPECT_EQ(window->gaps, 4);
  EXPECT_FALSE(isEnabled(Tool::Save));
  EXPECT_FALSE(isEnabled(Tool::Back));
  EXPECT_TRUE(isEnabled(Tool::On));
  EXPECT_TRUE(window->events.empty());
}

TEST_F(WindowTest, AClickIsListedWithItsTimeAndWhatCameOfIt) {
  press(Tool::On);
  ASSERT_EQ(window->events.size(), 2U);
  EXPECT_TRUE(window->events[0].isMinor);
  EXPECT_EQ(window->events[0].cells,
            (std::array<String, 4>{u"12:34:56", u"Next page", u"OnButtonSelected", u""}));
  EXPECT_FALSE(window->events[1].isMinor);
  EXPECT_EQ(window->events[1].cells,
            (std::array<String, 4>{u"12:34:56", u"Next page", u"OnButtonClick", u"Page 2 of 6"}));
  EXPECT_EQ(window->status[0], u"Page 2 of 6");
}

TEST_F(WindowTest, APointerThatRestsIsListed) {
  window->point(reports->button(Tool::Print));
  window->form.advance(1000);
  EXPECT_EQ(happened(), "Print OnButtonSelected\nPrint OnButtonSelectedTiming\n");
}

TEST_F(WindowTest, EveryButtonDoesWhatItsNameSays) {
  write(u"bonus");
  press(Tool::Filter);
  press(Tool::On);
  press(Tool::Smaller);
  press(Tool::Larger);
  write(u"2");
  press(Tool::Print);
  write(u"paid");
  press(Tool::Find);
  write(u"sales@example.com");
  press(Tool::Mail);
  press(Tool::New);
  EXPECT_EQ(
      happened(),
      "Filter OnButtonSelected\nFilter OnButtonClick: 2 of 96 rows selected\n"
      "Zoom out OnButtonSelected\nZoom out OnButtonClick: Zoom: 90%\n"
      "Zoom in OnButtonSelected\nZoom in OnButtonClick: Zoom: 100%\n"
      "Print OnButtonSelected\nPrint OnButtonClick: Printing page 1 of 1\n"
      "Find OnButtonSelected\nFind MsgBoxW: The search reached the end of the report. Go on from the top?\n"
      "Find OnButtonClick: Ready\n"
      "Send by mail OnButtonSelected\nSend by mail MsgBoxW: The message was sent to sales@example.com.\n"
      "Send by mail OnButtonClick: The message was sent to sales@example.com.\n"
      "New report OnButtonSelected\nNew report OnButtonClick: Untitled\n");
  EXPECT_TRUE(window->form.errors().empty());
}

TEST_F(WindowTest, SavingIsThereAsLongAsThereIsSomethingToSave) {
  const auto before = shown(Tool::Save);
  window->clickHeading(1);
  EXPECT_TRUE(isEnabled(Tool::Save));
  EXPECT_FALSE(looksAs(Tool::Save, before));
  EXPECT_EQ(window->title, u"Sales.rep* - Tessaly Reports");
  press(Tool::Save);
  EXPECT_FALSE(isEnabled(Tool::Save));
  EXPECT_EQ(window->title, u"Sales.rep - Tessaly Reports");
  EXPECT_EQ(Shelf(folder.text()).read(u"Sales.rep").rows[0].cell(Column::Owner), u"Björk");
  window->point(reports->button(Tool::Print));
  window->form.advance(50);
  EXPECT_TRUE(looksAs(Tool::Save, before));
}

TEST_F(WindowTest, TheMailButtonCountsUpToNine) {
  std::vector<tessaly::PictureReference> seen = {shown(Tool::Mail)};
  for (int times = 1; times <= 10; ++times) {
    write(u"a@example.com");
    press(Tool::Mail);
    window->point(reports->button(Tool::Print));
    window->form.advance(50);
    EXPECT_EQ(looksAs(Tool::Mail, seen.back()), times == 10) << times;
    seen.push_back(shown(Tool::Mail));
  }
}

TEST_F(WindowTest, AFilterThatIsOnIsSeen) {
  write(u"hansen");
  press(Tool::Filter);
  EXPECT_NE(reports->button(Tool::Filter).backcolor(), kToolBarColour);
  EXPECT_EQ(window->grid.rows.size(), 12U);
  choose(Command::RemoveFilter);
  EXPECT_EQ(reports->button(Tool::Filter).backcolor(), kToolBarColour);
  EXPECT_FALSE(canChoose(Command::RemoveFilter));
}

TEST_F(WindowTest, AHeldButtonTurnsThePagesUntilTheLast) {
  window->hold(reports->button(Tool::On));
  window->form.advance(10000);
  window->release(reports->button(Tool::On));
  EXPECT_EQ(window->status[1], u"Page 6 of 6");
  EXPECT_FALSE(isEnabled(Tool::On));
  EXPECT_TRUE(isEnabled(Tool::Back));
  EXPECT_EQ(window->events.size(), 1U + 5U + 1U);  // selected, five pages, and a second of rest between them
}

TEST_F(WindowTest, ThePictureIsHeldBetweenItsLeastAndItsMostSize) {
  window->hold(reports->button(Tool::Smaller));
  window->form.advance(10000);
  window->release(reports->button(Tool::Smaller));
  EXPECT_EQ(window->status[2], u"Zoom: 50%");
  EXPECT_EQ(window->gridFontSize, 5);
  EXPECT_FALSE(isEnabled(Tool::Smaller));
  window->hold(reports->button(Tool::Larger));
  window->form.advance(10000);
  window->release(reports->button(Tool::Larger));
  EXPECT_EQ(window->status[2], u"Zoom: 200%");
  EXPECT_FALSE(isEnabled(Tool::Larger));
  EXPECT_TRUE(isEnabled(Tool::Smaller));
  choose(Command::ActualSize);
  EXPECT_EQ(window->status[2], u"Zoom: 100%");
}

TEST_F(WindowTest, AColumnsHeadSortsAndSortsTheOtherWayWhenItIsClickedAgain) {
  window->clickHeading(3);
  EXPECT_EQ(window->grid.rows[0][3], u"1193.17");
  EXPECT_EQ(window->grid.sortedColumn, 3);
  EXPECT_FALSE(window->grid.isDescending);
  window->clickHeading(3);
  EXPECT_EQ(window->grid.rows[0][3], u"9801.69");
  EXPECT_TRUE(window->grid.isDescending);
  choose(Command::SortAscending);
  EXPECT_EQ(window->grid.rows[0][3], u"1193.17");
}

TEST_F(WindowTest, AKeyDoesWhatTheMenuShowsBesideIt) {
  const MenuItem* const item = window->find(static_cast<Long>(Command::GoToRow));
  ASSERT_NE(item, nullptr);
  EXPECT_EQ(item->text, u"&Go to row...\tCtrl+G");
  write(u"40");
  EXPECT_TRUE(window->handlers.onKey(u'G', 2));
  EXPECT_EQ(window->status, (std::array<String, 3>{u"Row 40, column 1", u"Page 3 of 6", u"Zoom: 100%"}));
  EXPECT_EQ(window->grid.selected, 7);
  EXPECT_FALSE(window->handlers.onKey(u'G', 0));
  EXPECT_FALSE(window->handlers.onKey(u'G', 3));
}

TEST_F(WindowTest, TheRoadLeavesSettingsAndFilesAsTheyWere) {
  const Unseen unseen(false);
  const auto before = Shelf(folder.text()).read(u"Sales.rep").rows;
  std::string said;
  walk(*window, *reports, catalogue.resources, unseen, [&](std::u16string_view step, const String& outcome) {
    said += tessaly::toUtf8(String(step) + u": " + outcome + u"\n");
  });
  EXPECT_NE(said.find("link: https://www.example.com/reports/\n"), std::string::npos) << said;
  EXPECT_NE(said.find("help: Tessaly.chm::/settings.html\n"), std::string::npos) << said;
  EXPECT_EQ(loadPreferences(), Preferences());
  EXPECT_EQ(Shelf(folder.text()).read(u"Sales.rep").rows, before);
  EXPECT_EQ(window->events.size(), reports->events());
}

TEST_F(ArabicWindowTest, AllBeginsAtTheRightAndArrowsPointTheOtherWay) {
  EXPECT_TRUE(window->isRightToLeft);
  const ToolPictures pictures;
  const auto isPicture = [&](Tool tool, Tool picture) {
    return std::ranges::equal(reports->button(tool).Picture()->pixels(),
                              pictures.tool(static_cast<Long>(picture))->pixels());
  };
  EXPECT_TRUE(isPicture(Tool::Back, Tool::On));
  EXPECT_TRUE(isPicture(Tool::On, Tool::Back));
  EXPECT_TRUE(isPicture(Tool::Print, Tool::Print));
}

}  // namespace
}  // namespace showcase::tests
