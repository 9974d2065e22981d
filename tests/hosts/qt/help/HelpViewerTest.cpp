// What the viewer shows for each command, and for what is not there.

#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <thread>

#include "tests/hosts/qt/Stage.h"
#include "tests/hosts/qt/help/HelpStage.h"

namespace tessaly::tests {
namespace {

namespace command_of = platform::help_command;

class QtHelpTest : public HelpOnStage {};

TEST_F(QtHelpTest, ATopicShowsItsPageUnderTheTitleOfTheFile) {
  ASSERT_NE(showGuide("Settings.html"), nullptr);
  EXPECT_TRUE(window().isVisible());
  EXPECT_EQ(window().windowTitle(), QStringLiteral("Report Browser Guide"));
  EXPECT_TRUE(shows("Reports are looked for in one folder"));
  EXPECT_EQ(page().documentTitle(), QStringLiteral("Settings"));
}

TEST_F(QtHelpTest, AnAnchorComesIntoView) {
  showGuide("Settings.html#language");
  const QTextCursor heading = page().document()->find(QStringLiteral("The language"));
  ASSERT_FALSE(heading.isNull());
  EXPECT_TRUE(page().viewport()->rect().contains(page().cursorRect(heading)));
  EXPECT_GT(page().verticalScrollBar()->value(), 0);
}

TEST_F(QtHelpTest, EachCommandTurnsToItsPart) {
  show(std::string(kGuide) + "::/Settings.html", command_of::kDisplayContents);
  EXPECT_TRUE(tree("Contents").isVisible());
  EXPECT_TRUE(shows("Reports are looked for"));
  show(kGuide, command_of::kDisplayIndex);
  EXPECT_TRUE(tree("Index").isVisible());
  EXPECT_FALSE(tree("Contents").isVisible());
  EXPECT_TRUE(shows("Where to read on"));
  show(kGuide, command_of::kShowMapNumber, 200);
  EXPECT_TRUE(shows("Reports are looked for"));
}

TEST_F(QtHelpTest, AFileAloneShowsWhereItBegins) {
  show(kGuide);
  EXPECT_TRUE(shows("Where to read on"));
}

TEST_F(QtHelpTest, OneWindowServesAllCalls) {
  QMainWindow* const first = showGuide("Overview.html");
  EXPECT_EQ(showGuide("Settings.html"), first);
  EXPECT_EQ(show("missing.chm::/a.html"), first);
}

TEST_F(QtHelpTest, AllIsClosedAndComesAgain) {
  closeAll();
  QMainWindow* const first = showGuide("Overview.html");
  closeAll();
  EXPECT_FALSE(first->isVisible());
  EXPECT_EQ(showGuide("Settings.html"), first);
  EXPECT_TRUE(first->isVisible());
}

TEST_F(QtHelpTest, AnotherCommandDoesNothing) {
  EXPECT_EQ(show(kGuide, 3), nullptr);
  EXPECT_EQ(show(kGuide, -1), nullptr);
}

TEST_F(QtHelpTest, AMissingFileGivesAPageThatTellsWhatWasLookedFor) {
  ASSERT_NE(show("no/such/Tessaly.chm::/Overview.html#top"), nullptr);
  EXPECT_TRUE(shows("The help file is missing"));
  EXPECT_TRUE(shows("no/such/Tessaly.chm"));
  EXPECT_TRUE(shows("Overview.html"));
  EXPECT_EQ(window().windowTitle(), QStringLiteral("Tessaly.chm"));
  show("no/such/Tessaly.chm", command_of::kShowMapNumber, 7);
  EXPECT_TRUE(shows("7"));
}

TEST_F(QtHelpTest, AMissingPageGivesAPageThatTellsWhatWasLookedFor) {
  showGuide("No <b>such</b>.html");
  EXPECT_TRUE(shows("There is no such page"));
  EXPECT_TRUE(shows("No <b>such</b>.html"));
  EXPECT_TRUE(shows("guide.chm"));
  showGuide(".html");
  EXPECT_TRUE(shows("There is no such page"));
  show(kGuide, command_of::kShowMapNumber, 12345);
  EXPECT_TRUE(shows("12345"));
}

TEST_F(QtHelpTest, ATopicOfAnyTextHarmsNothing) {
  for (const std::string& topic : {std::string(30'000, 'x'), std::string(30'000, '%'), std::string(3000, '/'),
                                   std::string("..\\..\\etc/passwd"), std::string("\"'%00%0A#?&::/>"),
                                   std::string("http://www.example.com/"), std::string("\xFF\xFE\x01")}) {
    ASSERT_NE(showGuide(topic + ".html"), nullptr);
    EXPECT_TRUE(shows("There is no such page")) << topic.substr(0, 40);
  }
  EXPECT_TRUE(fakeShell_.opened().empty());
}

TEST_F(QtHelpTest, ADamagedFileGivesAPageThatSaysSo) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("damaged.chm");
  ASSERT_TRUE(QFile::copy(kGuide, path));
  QFile file(path);
  ASSERT_TRUE(file.open(QFile::ReadWrite));
  ASSERT_TRUE(file.resize(90));
  file.close();
  show(path.toStdString() + "::/Overview.html");
  EXPECT_TRUE(shows("The help file is damaged"));
  EXPECT_TRUE(shows("damaged.chm"));
}

TEST_F(QtHelpTest, ADamagedPageSaysSoAndTheFileIsReadAnewAtTheNextCall) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("cut.chm");
  ASSERT_TRUE(QFile::copy(kGuide, path));
  QFile file(path);
  ASSERT_TRUE(file.open(QFile::ReadWrite));
  ASSERT_TRUE(file.resize(5500));
  file.close();
  show(path.toStdString() + "::/Settings.html");
  EXPECT_TRUE(shows("The page is damaged"));
  ASSERT_TRUE(file.remove());
  ASSERT_TRUE(QFile::copy(kGuide, path));
  show(path.toStdString() + "::/Settings.html");
  EXPECT_TRUE(shows("Reports are looked for"));
}

TEST_F(QtHelpTest, PagesOfEachEncodingAndScriptAreShown) {
  showGuide("Russian.html");
  EXPECT_TRUE(shows("Программа показывает список отчётов"));
  showGuide("Japanese.html");
  EXPECT_TRUE(shows("レポートブラウザー"));
  showGuide("Arabic.html");
  EXPECT_TRUE(shows("نظرة عامة"));
  EXPECT_EQ(page().document()->firstBlock().textDirection(), Qt::RightToLeft);
  showGuide("Overview.html");
  EXPECT_EQ(page().document()->firstBlock().textDirection(), Qt::LeftToRight);
}

TEST_F(QtHelpTest, PlainTextIsShownAsItStands) {
  showGuide("Notes.txt");
  EXPECT_TRUE(shows("<b>This is no markup.</b>"));
}

TEST_F(QtHelpTest, PicturesComeFromTheFileAlone) {
  showGuide("Overview.html");
  const auto own =
      page().loadResource(QTextDocument::ImageResource, QUrl("pictures\\diagram.png")).value<QImage>();
  EXPECT_EQ(own.size(), QSize(240, 120));
  for (const char* const name :
       {"file:///usr/share/pixmaps/debian-logo.png", "/tests/pictures/baseline.jpg",
        "tests/pictures/baseline.jpg", "http://www.example.com/a.png", "nothing.png"}) {
    const auto other = page().loadResource(QTextDocument::ImageResource, QUrl(name)).value<QImage>();
    EXPECT_EQ(other.size(), QSize(24, 24)) << name;
  }
}

TEST_F(QtHelpTest, StylesComeFromTheFileAlone) {
  showGuide("Overview.html");
  const auto load = [&](const char* name) {
    return page().loadResource(QTextDocument::StyleSheetResource, QUrl(name)).toString();
  };
  EXPECT_TRUE(load("style.css").contains(QStringLiteral("#1f4e79")));
  EXPECT_EQ(load("file:///etc/hostname"), QString());
  EXPECT_EQ(page().document()->firstBlock().begin().fragment().charFormat().foreground().color(),
            QColor(0x1F, 0x4E, 0x79));
}

TEST_F(QtHelpTest, PagesThatQtWouldNotFinishSayThatTheyAreDamaged) {
  for (const char* const name : {"tables.html", "tags.html", "empty.html"}) {
    show("tests/hosts/qt/help/hostile.chm::/" + std::string(name));
    EXPECT_TRUE(shows("The page is damaged")) << name;
    EXPECT_TRUE(shows(name));
  }
}

TEST_F(QtHelpTest, PicturesThatAreNoneLeaveThePageAsItIs) {
  show("tests/hosts/qt/help/hostile.chm::/pictures.html");
  EXPECT_TRUE(shows("Pictures"));
  EXPECT_FALSE(window().grab().isNull());
}

TEST_F(QtHelpTest, AnotherThreadGetsNothing) {
  platform::WindowHandle handle = 1;
  bool isPlaced = true;
  std::thread([&] {
    handle = platform::desktop().htmlHelp->HtmlHelpA(0, kGuide, 0, 0);
    isPlaced = platform::desktop().htmlHelp->SetWindowPos(handle, platform::kTopMost, 0, 0, 0, 0, 11);
  }).join();
  EXPECT_EQ(handle, 0);
  EXPECT_FALSE(isPlaced);
}

}  // namespace
}  // namespace tessaly::tests
