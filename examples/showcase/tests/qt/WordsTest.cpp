// What Qt's message boxes say in the window's language.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include "examples/showcase/window/qt/Words.h"
#include "tessaly/dialogs/modMsgBoxW.h"
#include "tessaly/hosts/qt/Dialogs.h"
#include "tessaly/hosts/qt/Text.h"

namespace showcase::tests {
namespace {

using tessaly::Long;
using tessaly::String;

constexpr Long kOkAndCancel = 1;
constexpr Long kYesNoAndCancel = 3;

class WordsTest : public testing::Test {
 protected:
  /// What the buttons of a box say, from the first on.
  std::vector<String> shown(Long flags) {
    std::vector<String> words;
    QTimer::singleShot(0, &application_, [&] {
      auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      for (const auto button : {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
        if (box->button(button) != nullptr)
          words.push_back(tessaly::qt::fromQString(box->button(button)->text()));
      }
      box->button(QMessageBox::Cancel)->click();
    });
    tessaly::MsgBoxW(u"?", flags, u"");
    return words;
  }

 private:
  /// Before the application.
  const bool isOffscreen_ = qputenv("QT_QPA_PLATFORM", "offscreen");
  int count_ = 0;
  QApplication application_{count_, nullptr};
  tessaly::qt::Dialogs dialogs_;
};

TEST_F(WordsTest, BoxesSpeakTheLanguageThatWasChosenLast) {
  Words words;
  words.speak({.ok = u"ОК", .cancel = u"О&тмена", .yes = u"&Да", .no = u"&Нет"});
  EXPECT_EQ(shown(kOkAndCancel), (std::vector<String>{u"ОК", u"О&тмена"}));
  EXPECT_EQ(shown(kYesNoAndCancel), (std::vector<String>{u"&Да", u"&Нет", u"О&тмена"}));
  words.speak({.ok = u"OK", .cancel = u"&Abbrechen", .yes = u"&Ja", .no = u"&Nein"});
  EXPECT_EQ(shown(kYesNoAndCancel), (std::vector<String>{u"&Ja", u"&Nein", u"&Abbrechen"}));
}

TEST_F(WordsTest, BoxesSayWhatQtSaysBeforeALanguageIsChosen) {
  const Words words;
  EXPECT_EQ(shown(kYesNoAndCancel), (std::vector<String>{u"&Yes", u"&No", u"Cancel"}));
}

TEST_F(WordsTest, TheThemesOfDesktopsAreTranslatedToo) {
  Words words;
  words.speak({.ok = u"Gut", .cancel = u"Weg", .yes = u"Ja", .no = u"Nein"});
  EXPECT_EQ(QCoreApplication::translate("QGnomeTheme", "&Cancel"), QString("Weg"));
  EXPECT_EQ(QCoreApplication::translate("QGnomeTheme", "&OK"), QString("Gut"));
  EXPECT_EQ(QCoreApplication::translate("QFileDialog", "OK"), QString("OK"));
}

}  // namespace
}  // namespace showcase::tests
