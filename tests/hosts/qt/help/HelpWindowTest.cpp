// The viewer's window in its user's hands, and among the windows of its host.

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QToolButton>
#include <QWindow>
#include <algorithm>

#include "tests/hosts/qt/Stage.h"
#include "tests/hosts/qt/help/HelpStage.h"

namespace tessaly::tests {
namespace {

class QtHelpWindowTest : public HelpOnStage {
 protected:
  QtHelpWindowTest() { showGuide("Overview.html"); }

  void chooseLine(QTreeWidget& tree, const QString& text) {
    const auto lines = tree.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(lines.size(), 1) << text.toStdString();
    tree.scrollToItem(lines.front());
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(lines.front()).center());
    settle();
  }

  QLineEdit& findText() const {
    for (auto* const line : window().findChildren<QLineEdit*>()) {
      if (line->accessibleName() == QStringLiteral("Find in page")) return *line;
    }
    throw std::runtime_error("There is no line to type into.");
  }
};

TEST_F(QtHelpWindowTest, LinksLeadFromPageToPageAndBack) {
  EXPECT_FALSE(isEnabled("Back"));
  click("Settings");
  EXPECT_TRUE(shows("Reports are looked for"));
  press("Back");
  EXPECT_TRUE(shows("Where to read on"));
  press("Forward");
  EXPECT_TRUE(shows("Reports are looked for"));
  press("Home");
  EXPECT_TRUE(shows("Where to read on"));
}

TEST_F(QtHelpWindowTest, LinksLeadIntoFoldersAndOut) {
  click("A page in a folder");
  EXPECT_TRUE(shows("Up to the overview"));
  click("from the root");
  EXPECT_TRUE(shows("Reports are looked for"));
  press("Back");
  click("beside it");
  EXPECT_TRUE(shows("This page's name has a blank."));
  press("Home");
  click("one with a blank");
  EXPECT_TRUE(shows("This page's name has a blank."));
}

TEST_F(QtHelpWindowTest, ALinkToAnAnchorGoesThere) {
  click("settings");
  EXPECT_GT(page().verticalScrollBar()->value(), 0);
  EXPECT_EQ(page().source().fragment(), QStringLiteral("language"));
}

TEST_F(QtHelpWindowTest, ALinkToNothingGivesAPageThatTellsWhatWasLookedFor) {
  click("A page that is not there");
  EXPECT_TRUE(shows("There is no such page"));
  EXPECT_TRUE(shows("Missing.html"));
  press("Back");
  EXPECT_TRUE(shows("Where to read on"));
}

TEST_F(QtHelpWindowTest, ALinkIntoAnotherFileLooksForItBeside) {
  click("A page of another help file");
  EXPECT_TRUE(shows("The help file is missing"));
  EXPECT_TRUE(shows("tests/hosts/qt/help/other.chm"));
  EXPECT_TRUE(shows("Page.html"));
  emit page().anchorClicked(QUrl("ms-its:C:\\Help\\GUIDE.chm::/Settings.html"));
  EXPECT_TRUE(shows("Reports are looked for"));
  emit page().anchorClicked(QUrl("Guide.CHM::/Russian.html"));
  EXPECT_TRUE(shows("Обзор"));
}

TEST_F(QtHelpWindowTest, LinksToTheOutsideGoToTheShell) {
  click("Outside");
  click("by mail");
  ASSERT_EQ(fakeShell_.opened().size(), 2U);
  EXPECT_EQ(fakeShell_.opened().front().operation, "open");
  EXPECT_EQ(fakeShell_.opened().front().file, "http://www.example.com/a?b=1&c=2");
  EXPECT_EQ(fakeShell_.opened().back().file, "mailto:help@example.com");
  EXPECT_TRUE(shows("Where to read on"));
}

TEST_F(QtHelpWindowTest, ALinkToTheOutsideIsNeverTakenForAnArchive) {
  const std::string address = "https://www.example.com/a.chm::/b.html?x=1::2&y=%20#c::d";
  emit page().anchorClicked(QUrl(QString::fromStdString(address)));
  ASSERT_EQ(fakeShell_.opened().size(), 1U);
  EXPECT_EQ(fakeShell_.opened().front().file, address);
  EXPECT_TRUE(shows("Where to read on"));
}

TEST_F(QtHelpWindowTest, LinksToFilesAndProgramsAreNotOpened) {
  for (const char* const link : {"file:///etc/passwd", "x-program:run?a=1&b=2#c"}) {
    emit page().anchorClicked(QUrl(link));
    EXPECT_TRUE(shows("The link was not opened")) << link;
    EXPECT_TRUE(shows(link)) << link;
  }
  press("Home");
  emit page().anchorClicked(QUrl("javascript:alert(1)"));
  EXPECT_TRUE(shows("Where to read on"));
  EXPECT_TRUE(fakeShell_.opened().empty());
}

TEST_F(QtHelpWindowTest, AShellThatIsMissingTellsItsUser) {
  fakeShell_.raise(453);
  click("Outside");
  settle();
  QWidget* const box = QApplication::activeModalWidget();
  ASSERT_NE(box, nullptr);
  box->close();
  settle();
}

TEST_F(QtHelpWindowTest, ContentsAndIndexLeadToTheirPages) {
  chooseLine(tree("Contents"), "The language");
  EXPECT_EQ(page().source().fragment(), QStringLiteral("language"));
  show(kGuide, platform::help_command::kDisplayIndex);
  chooseLine(tree("Index"), "Russian");
  EXPECT_TRUE(shows("Обзор"));
  tree("Index").setFocus();
  QTest::keyClick(&tree("Index"), Qt::Key_Down);
  QTest::keyClick(&tree("Index"), Qt::Key_Return);
  settle();
  EXPECT_TRUE(shows("Reports are looked for"));
}

TEST_F(QtHelpWindowTest, TheContentsFollowThePage) {
  click("in Japanese");
  ASSERT_NE(tree("Contents").currentItem(), nullptr);
  EXPECT_EQ(tree("Contents").currentItem()->text(0), QStringLiteral("概要"));
}

TEST_F(QtHelpWindowTest, TheIndexShowsWhatHoldsTheText) {
  show(kGuide, platform::help_command::kDisplayIndex);
  auto* const sought = tree("Index").parentWidget()->findChild<QLineEdit*>();
  ASSERT_NE(sought, nullptr);
  QTest::keyClicks(sought, "RUSS");
  const auto isHidden = [&](const char* text) {
    return tree("Index").findItems(text, Qt::MatchExactly | Qt::MatchRecursive).front()->isHidden();
  };
  EXPECT_FALSE(isHidden("Russian"));
  EXPECT_FALSE(isHidden("language"));
  EXPECT_TRUE(isHidden("Japanese"));
  EXPECT_TRUE(isHidden("settings"));
}

TEST_F(QtHelpWindowTest, FindGoesFromPlaceToPlaceAndRoundTheEnd) {
  press("Find");
  EXPECT_TRUE(findText().isVisible());
  QTest::keyClicks(&findText(), "report");
  const auto place = [&] { return page().textCursor().selectionStart(); };
  const int first = place();
  EXPECT_EQ(page().textCursor().selectedText(), QStringLiteral("report"));
  QTest::keyClick(&findText(), Qt::Key_Return);
  EXPECT_GT(place(), first);
  QTest::keyClick(&findText(), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(place(), first);
  for (int i = 0; i < 100 && place() >= first; ++i) QTest::keyClick(&findText(), Qt::Key_Return);
  EXPECT_EQ(place(), first);
  QTest::keyClicks(&findText(), "zzz");
  const auto labels = findText().parentWidget()->findChildren<QLabel*>();
  EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](auto* l) { return l->text() == "Not found"; }));
  QTest::keyClick(&findText(), Qt::Key_Escape);
  EXPECT_FALSE(findText().isVisible());
  EXPECT_TRUE(window().isVisible());
}

TEST_F(QtHelpWindowTest, OnTopIsKeptUntilItIsClosed) {
  const auto handle = static_cast<platform::WindowHandle>(window().winId());
  EXPECT_TRUE(platform::desktop().htmlHelp->SetWindowPos(handle, platform::kTopMost, 0, 0, 0, 0, 11));
  EXPECT_TRUE(window().isVisible());
  EXPECT_TRUE(window().windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_EQ(static_cast<platform::WindowHandle>(window().winId()), handle);
  closeAll();
  showGuide("Overview.html");
  EXPECT_FALSE(window().windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(QtHelpWindowTest, ItIsPlacedAndSizedUnlessTheFlagsKeepIt) {
  const auto handle = static_cast<platform::WindowHandle>(window().winId());
  const QRect before = window().geometry();
  platform::desktop().htmlHelp->SetWindowPos(handle, 0, 10, 20, 700, 500, 11);
  EXPECT_EQ(window().geometry(), before);
  platform::desktop().htmlHelp->SetWindowPos(handle, 0, 10, 20, 700, 500, 0);
  EXPECT_EQ(window().size(), QSize(700, 500));
  EXPECT_FALSE(platform::desktop().htmlHelp->SetWindowPos(12345, platform::kTopMost, 0, 0, 0, 0, 11));
}

TEST_F(QtHelpWindowTest, ItOutlivesTheDialogThatAskedForIt) {
  auto dialog = std::make_unique<QDialog>();
  dialog->setModal(true);
  dialog->show();
  settle();
  show(std::string(kGuide) + "::/Settings.html", 0, 0, static_cast<platform::WindowHandle>(dialog->winId()));
  EXPECT_EQ(window().windowHandle()->transientParent(), dialog->windowHandle());
  press("Home");
  click("Settings");
  EXPECT_TRUE(shows("Reports are looked for"));
  dialog.reset();
  settle();
  EXPECT_TRUE(window().isVisible());
  EXPECT_EQ(window().windowHandle()->transientParent(), nullptr);
  press("Home");
  EXPECT_TRUE(shows("Where to read on"));
}

TEST_F(QtHelpWindowTest, ItStaysUsableWhileADialogBlocksItsHost) {
  QDialog dialog;
  dialog.setModal(true);
  dialog.show();
  settle();
  click("Settings");
  EXPECT_TRUE(shows("Reports are looked for"));
}

// Qt looked for the first of two windows that stood before each other, and never came back.
TEST_F(QtHelpWindowTest, ItStandsBeforeNoWindowThatStandsBeforeIt) {
  QDialog first(&window());
  first.setModal(true);
  first.show();
  settle();
  EXPECT_EQ(first.windowHandle()->transientParent(), window().windowHandle());
  EXPECT_EQ(window().windowHandle()->transientParent(), nullptr);
  QDialog second(&first);
  second.setModal(true);
  second.show();
  settle();
  show(kGuide, 0, 0, static_cast<platform::WindowHandle>(first.winId()));
  show(kGuide, 0, 0, static_cast<platform::WindowHandle>(second.winId()));
  EXPECT_EQ(window().windowHandle()->transientParent(), nullptr);
}

TEST_F(QtHelpWindowTest, ItStandsBeforeTheWindowThatAsksLast) {
  QWidget form;
  QWidget other;
  for (QWidget* const owner : {&form, &other, &form}) {
    owner->show();
    show(kGuide, 0, 0, static_cast<platform::WindowHandle>(owner->winId()));
    EXPECT_EQ(window().windowHandle()->transientParent(), owner->windowHandle());
  }
  show(kGuide, 0, 0, static_cast<platform::WindowHandle>(window().winId()));
  EXPECT_EQ(window().windowHandle()->transientParent(), form.windowHandle());
  QDialog before(&window());
  before.setModal(true);
  before.show();
  settle();
  show(kGuide, 0, 0, static_cast<platform::WindowHandle>(before.winId()));
  EXPECT_EQ(window().windowHandle()->transientParent(), form.windowHandle());
}

TEST_F(QtHelpWindowTest, ItIsNoReasonForTheProgramToGoOn) {
  EXPECT_FALSE(window().testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(QtHelpWindowTest, KeysReachEachPartAndEachHasAName) {
  window().activateWindow();
  page().setFocus();
  QTest::keyClick(&window(), Qt::Key_F6);
  EXPECT_TRUE(tree("Contents").hasFocus());
  QTest::keyClick(&window(), Qt::Key_F6);
  EXPECT_TRUE(page().hasFocus());
  click("Settings");
  QTest::keyClick(&window(), Qt::Key_Left, Qt::AltModifier);
  EXPECT_TRUE(shows("Where to read on"));
  QTest::keyClick(&window(), Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(findText().hasFocus());
  const auto buttons =
      findText().parentWidget()->findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly);
  EXPECT_EQ(buttons.size(), 3);
  for (const auto* const button : buttons) EXPECT_FALSE(button->accessibleName().isEmpty());
  EXPECT_EQ(page().accessibleName(), QStringLiteral("Page"));
}

}  // namespace
}  // namespace tessaly::tests
