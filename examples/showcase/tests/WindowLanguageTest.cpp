// The window speaks one language at a time, whatever it has spoken before.

#include <algorithm>

#include "examples/showcase/tests/WindowStage.h"
#include "examples/showcase/window/Names.h"

namespace showcase::tests {
namespace {

using tessaly::CResources;
using tessaly::Long;
using tessaly::String;

constexpr Long kTexts = 175;

/// Whether a text is one of the catalogue's with some values in the places for them.
bool isPattern(const String& text, const CResources& resources, Long slot) {
  const String mark = u"\u0001";
  const String pattern = resources.resWithArg(slot, mark, mark);
  std::size_t from = 0;
  std::size_t place = 0;
  for (bool isFirst = true;; isFirst = false) {
    const std::size_t end = pattern.find(mark, from);
    const String piece = pattern.substr(from, end - from);
    if (end == String::npos) return !isFirst && text.size() >= place + piece.size() && text.ends_with(piece);
    place = isFirst ? (text.starts_with(piece) ? 0 : String::npos) : text.find(piece, place);
    if (place == String::npos) return false;
    place += piece.size();
    from = end + 1;
  }
}

/// Whether a text is the catalogue's, in the language in force.
bool isSaid(const String& text, CResources& resources) {
  for (Long slot = 0; slot < kTexts; ++slot) {
    if (text == resources.res(slot) || text == nameOf(resources.res(slot))) return true;
    if (isPattern(text, resources, slot)) return true;
  }
  // Languages have the same names everywhere, and so has the program.
  const auto numbers = languages(resources);
  for (Long place = 0; place < static_cast<Long>(numbers.size()); ++place) {
    if (text == languageName(resources, place)) return true;
  }
  return text.empty() || text == kProgram;
}

void addMenuTexts(const std::vector<MenuItem>& items, std::vector<String>& texts) {
  for (const MenuItem& item : items) {
    texts.push_back(item.text.substr(0, item.text.find(u'\t')));
    addMenuTexts(item.items, texts);
  }
}

/// Every text that the window shows, but for the data of reports and the names of events.
std::vector<String> allTexts(const FakeWindow& window) {
  std::vector<String> texts(window.status.begin(), window.status.end());
  addMenuTexts(window.menus, texts);
  for (const auto& [button, name] : window.names) texts.push_back(name);
  for (const auto& heading : window.grid.headings) texts.push_back(heading.text);
  const BoxWords& words = window.boxWords;
  texts.insert(texts.end(), {words.ok, words.cancel, words.yes, words.no});
  texts.insert(texts.end(), window.headings.begin(), window.headings.end());
  for (const Event& event : window.events) {
    texts.push_back(event.cells[1]);
    texts.push_back(event.cells[3]);
  }
  return texts;
}

class WindowLanguageTest : public WindowStage {
 protected:
  void expectAllSaid(const std::vector<String>& texts) {
    for (const String& text : texts) {
      EXPECT_TRUE(isSaid(text, catalogue.resources)) << tessaly::toUtf8(text);
    }
  }

  void makeEvents() {
    press(Tool::On);
    write(u"Hansen");
    press(Tool::Filter);
    write(u"nobody");
    press(Tool::Find);
    window->clickHeading(2);
    choose(Command::DeleteReport);
    write(u"a@example.com");
    press(Tool::Mail);
  }
};

TEST_F(WindowLanguageTest, NoTextOfTheFormerLanguageStaysInAnyPlace) {
  makeEvents();
  ASSERT_GT(window->events.size(), 12U);
  expectAllSaid(allTexts(*window));
  for (const Long number : languages(catalogue.resources)) {
    chooseLanguage(number);
    ASSERT_EQ(catalogue.resources.lang(), number);
    SCOPED_TRACE(number);
    expectAllSaid(allTexts(*window));
    EXPECT_EQ(window->isRightToLeft, number == kArabic);
    EXPECT_EQ(window->gridFont, catalogue.resources.gridFontName());
  }
}

TEST_F(WindowLanguageTest, TheDialogsSpeakTheLanguageToo) {
  chooseLanguage(kRussian);
  for (const Command command : {Command::Open, Command::SaveAs, Command::Print, Command::Mail, Command::Find,
                                Command::Filter, Command::GoToRow, Command::Settings, Command::About}) {
    choose(command);
  }
  ASSERT_EQ(window->dialogs.size(), 9U);
  for (const Dialog& dialog : window->dialogs) expectAllSaid(FakeWindow::textsOf(dialog));
  expectAllSaid({window->linkText});
  EXPECT_EQ(window->linkText, catalogue.resources.res(VisitTheWebSite));
}

TEST_F(WindowLanguageTest, StringNumbersComeAndGoInEveryText) {
  makeEvents();
  choose(Command::ShowNumbers);
  EXPECT_EQ(window->menus[0].text, u"&File[21]");
  EXPECT_EQ(window->status[1], u"Page 1 of 1[14]");
  EXPECT_TRUE(window->find(static_cast<Long>(Command::ShowNumbers))->isChecked);
  expectAllSaid(allTexts(*window));
  chooseLanguage(kRussian);
  EXPECT_TRUE(window->menus[0].text.ends_with(u"[21]"));
  choose(Command::ShowNumbers);
  expectAllSaid(allTexts(*window));
  for (const String& text : allTexts(*window))
    EXPECT_EQ(text.find(u'['), String::npos) << tessaly::toUtf8(text);
}

TEST_F(WindowLanguageTest, TheLanguageInForceIsTheCheckedOne) {
  chooseLanguage(kRussian);
  std::vector<String> checked;
  for (const MenuItem& item : window->menus[4].items) {
    if (item.isChecked) checked.push_back(item.text);
  }
  EXPECT_EQ(checked, std::vector<String>{catalogue.resources.langName()});
}

TEST_F(WindowLanguageTest, ALanguageThatWasChosenIsThereAtTheNextStart) {
  chooseLanguage(kRussian);
  choose(Command::ShowNumbers);
  open();
  EXPECT_EQ(catalogue.resources.lang(), kRussian);
  EXPECT_TRUE(window->menus[0].text.ends_with(u"[21]"));
}

class ArabicAtTheStart : public WindowStage {
 protected:
  ArabicAtTheStart() : WindowStage(kArabic) {}
};

TEST_F(ArabicAtTheStart, ALanguageOfTheStartIsNotKept) {
  choose(Command::ShowNumbers);
  EXPECT_EQ(catalogue.resources.lang(), kArabic);
  window->visitNextDialog([](DialogUser& user) { user.press(Dialog::kOk); });
  choose(Command::Settings);
  EXPECT_EQ(catalogue.resources.lang(), kArabic);
  EXPECT_TRUE(loadPreferences().showsStringNumbers);
  EXPECT_EQ(loadPreferences().language, 0);
}

}  // namespace
}  // namespace showcase::tests
