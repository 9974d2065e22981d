// The library's own words in the mouth of a host's translator.

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QTranslator>
#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "tests/hosts/qt/Stage.h"
#include "tests/hosts/qt/help/HelpStage.h"

namespace tessaly::tests {
namespace {

/// Puts the library's words between signs that are markup where they are not taken for text.
class Translator final : public QTranslator {
 public:
  Translator() { QCoreApplication::installTranslator(this); }

  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char* /*remark*/,
                    int /*count*/) const override {
    const bool isKnown = QLatin1String(context) == QLatin1String("Tessaly");
    return isKnown ? QStringLiteral("<%1>").arg(QString::fromUtf8(source)) : QString();
  }
};

/// All words of the window's own that it bears whatever it shows.
std::set<std::string> wordsOf(const QMainWindow& window) {
  std::set<std::string> words;
  for (const auto* const action : window.actions()) words.insert(action->text().toStdString());
  for (const auto* const bar : window.findChildren<QToolBar*>())
    words.insert(bar->windowTitle().toStdString());
  const auto& tabs = *window.findChild<QTabWidget*>();
  for (int i = 0; i < tabs.count(); ++i) words.insert(tabs.tabText(i).toStdString());
  for (const auto* const line : window.findChildren<QLineEdit*>())
    words.insert(line->placeholderText().toStdString());
  for (const auto* const part : window.findChildren<QWidget*>()) {
    const bool isQts = qobject_cast<QTabBar*>(part->parentWidget()) != nullptr;
    if (!isQts) words.insert(part->accessibleName().toStdString());
  }
  words.erase("");
  return words;
}

class QtWordsTest : public HelpOnStage {
 protected:
  void SetUp() override { showGuide("Overview.html"); }

  std::optional<Translator> translator_{std::in_place};
};

TEST_F(QtWordsTest, TheViewerHasThemFromATranslatorWhenItsWindowIsMade) {
  const std::set<std::string> translated{"<&Contents>",     "<&Index>",
                                         "<Back>",          "<Close>",
                                         "<Contents>",      "<Find>",
                                         "<Find in page>",  "<Find next>",
                                         "<Find previous>", "<Forward>",
                                         "<Home>",          "<Index>",
                                         "<Look for>",      "<Look for in the index>",
                                         "<Navigation>",    "<Page>"};
  EXPECT_EQ(wordsOf(window()), translated);
  translator_.reset();
  closeAll();
  showGuide("Overview.html");
  EXPECT_EQ(wordsOf(window()), translated);
  const qt::Dialogs anew;
  showGuide("Overview.html");
  EXPECT_EQ(wordsOf(window()).count("Back"), 1U);
}

TEST_F(QtWordsTest, FindingSaysThemAsItGoes) {
  press("<Find>");
  QTest::keyClicks(QApplication::focusWidget(), "zzz");
  const auto labels = window().findChildren<QLabel*>();
  EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [](auto* l) { return l->text() == "<Not found>"; }));
}

TEST_F(QtWordsTest, APageThatIsMissingSaysThemOfItsMomentAndAsText) {
  showGuide("Missing.html");
  EXPECT_TRUE(shows("<There is no such page>"));
  EXPECT_TRUE(shows("<The help file does not have the page that was looked for.>"));
  EXPECT_TRUE(shows("<Help file:>"));
  translator_.reset();
  showGuide("Missing.html");
  EXPECT_TRUE(shows("There is no such page"));
  EXPECT_FALSE(shows("<"));
}

TEST_F(QtWordsTest, BoxesHaveThemOnButtonsThatQtDoesNotHave) {
  std::set<std::string> words;
  QTimer::singleShot(0, qApp, [&] {
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    for (const auto* const button : box->findChildren<QPushButton*>())
      words.insert(button->text().toStdString());
    box->done(0);
  });
  platform::desktop().messageBoxes->MessageBoxW(0, u"Text", u"Caption", 0x4006);
  EXPECT_EQ(words, (std::set<std::string>{"<&Continue>", "<&Try Again>", "<Help>", "Cancel"}));
}

TEST_F(QtWordsTest, AnErrorIsToldInThem) {
  fakeShell_.raise(453);
  click("Outside");
  settle();
  auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->text(), QStringLiteral("<<Entry point not found> (error 453)>"));
  box->close();
  settle();
}

}  // namespace
}  // namespace tessaly::tests
