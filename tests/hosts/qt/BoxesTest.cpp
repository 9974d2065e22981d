// Message boxes, answered as a user would answer them.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <functional>
#include <thread>

#include "tessaly/hosts/qt/Dialogs.h"
#include "tessaly/platform/Desktop.h"
#include "tests/hosts/qt/Stage.h"
#include "tests/hosts/qt/WithoutApplication.h"

namespace tessaly::tests {

std::intptr_t answeredWithoutApplication = -1;

void askWithoutApplication() {
  const qt::Dialogs dialogs;
  const platform::Desktop& desktop = platform::desktop();
  const bool isPlaced = desktop.htmlHelp->SetWindowPos(1, platform::kTopMost, 0, 0, 0, 0, 11);
  answeredWithoutApplication = desktop.htmlHelp->HtmlHelpA(0, "a.chm", 0, 0) |
                               desktop.messageBoxes->MessageBoxW(0, u"a", u"b", 0) |
                               desktop.messageBoxes->GetActiveWindow() | (isPlaced ? 1 : 0);
}

namespace {

class QtBoxesTest : public testing::Test {
 protected:
  using Look = std::function<void(QMessageBox&)>;

  static QMessageBox* openBox() { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }

  /// Shows a box; its loop lets the look answer it.
  Long show(Long type, const Look& look, const String& text = u"Text", const String& caption = u"Caption",
            platform::WindowHandle owner = 0) {
    QTimer::singleShot(0, qApp, [&] {
      ASSERT_NE(openBox(), nullptr);
      look(*openBox());
    });
    return platform::desktop().messageBoxes->MessageBoxW(owner, text.c_str(), caption.c_str(), type);
  }

  static void press(QMessageBox& box, const QString& text) {
    for (QAbstractButton* const button : box.buttons()) {
      if (button->text().remove(u'&') == text) return button->click();
    }
    ADD_FAILURE() << "There is no button " << text.toStdString();
    box.done(0);
  }

  Long answer(Long type, const QString& button) {
    return show(type, [&](QMessageBox& box) { press(box, button); });
  }

  /// The texts of the buttons, sorted.
  std::vector<std::string> buttons(Long type) {
    std::vector<std::string> texts;
    show(type, [&](QMessageBox& box) {
      for (auto* const button : box.buttons()) texts.push_back(button->text().remove(u'&').toStdString());
      box.done(0);
    });
    std::sort(texts.begin(), texts.end());
    return texts;
  }

  qt::Dialogs dialogs_;
};

TEST_F(QtBoxesTest, EachSetHasItsButtons) {
  using Texts = std::vector<std::string>;
  EXPECT_EQ(buttons(0), (Texts{"OK"}));
  EXPECT_EQ(buttons(1), (Texts{"Cancel", "OK"}));
  EXPECT_EQ(buttons(2), (Texts{"Abort", "Ignore", "Retry"}));
  EXPECT_EQ(buttons(3), (Texts{"Cancel", "No", "Yes"}));
  EXPECT_EQ(buttons(4), (Texts{"No", "Yes"}));
  EXPECT_EQ(buttons(5), (Texts{"Cancel", "Retry"}));
  EXPECT_EQ(buttons(6), (Texts{"Cancel", "Continue", "Try Again"}));
}

TEST_F(QtBoxesTest, EachButtonAnswersItsNumber) {
  EXPECT_EQ(answer(0, "OK"), 1);
  EXPECT_EQ(answer(1, "OK"), 1);
  EXPECT_EQ(answer(1, "Cancel"), 2);
  EXPECT_EQ(answer(2, "Abort"), 3);
  EXPECT_EQ(answer(2, "Retry"), 4);
  EXPECT_EQ(answer(2, "Ignore"), 5);
  EXPECT_EQ(answer(3, "Yes"), 6);
  EXPECT_EQ(answer(3, "No"), 7);
  EXPECT_EQ(answer(3, "Cancel"), 2);
  EXPECT_EQ(answer(4, "Yes"), 6);
  EXPECT_EQ(answer(4, "No"), 7);
  EXPECT_EQ(answer(5, "Retry"), 4);
  EXPECT_EQ(answer(6, "Try Again"), 10);
  EXPECT_EQ(answer(6, "Continue"), 11);
}

TEST_F(QtBoxesTest, ASetThatIsNoneFails) {
  for (const Long type : {7, 8, 15, 0x107}) {
    EXPECT_EQ(platform::desktop().messageBoxes->MessageBoxW(0, u"a", u"b", type), 0) << type;
  }
}

TEST_F(QtBoxesTest, EachIconIsShown) {
  const auto icon = [&](Long type) {
    QMessageBox::Icon found = QMessageBox::NoIcon;
    show(type, [&](QMessageBox& box) {
      found = box.icon();
      box.done(0);
    });
    return found;
  };
  EXPECT_EQ(icon(0), QMessageBox::NoIcon);
  EXPECT_EQ(icon(0x10), QMessageBox::Critical);
  EXPECT_EQ(icon(0x20), QMessageBox::Question);
  EXPECT_EQ(icon(0x30), QMessageBox::Warning);
  EXPECT_EQ(icon(0x40), QMessageBox::Information);
}

TEST_F(QtBoxesTest, ReturnPressesTheDefaultButton) {
  const auto byReturn = [&](Long type) {
    return show(type, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
  };
  EXPECT_EQ(byReturn(0), 1);
  EXPECT_EQ(byReturn(0x4), 6);
  EXPECT_EQ(byReturn(0x104), 7);
  EXPECT_EQ(byReturn(0x124), 7);
  EXPECT_EQ(byReturn(0x203), 2);
  EXPECT_EQ(byReturn(0x202), 5);
  EXPECT_EQ(byReturn(0x206), 11);
  // There is no such button, so it is the first.
  EXPECT_EQ(byReturn(0x304), 6);
  EXPECT_EQ(byReturn(0x100), 1);
}

TEST_F(QtBoxesTest, EscapeCancelsWhereThatIsAnAnswer) {
  const auto byEscape = [&](Long type) {
    return show(type, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  };
  EXPECT_EQ(byEscape(0), 1);
  EXPECT_EQ(byEscape(1), 2);
  EXPECT_EQ(byEscape(3), 2);
  EXPECT_EQ(byEscape(5), 2);
  EXPECT_EQ(byEscape(6), 2);
}

TEST_F(QtBoxesTest, WithoutCancelABoxIsLeftByItsButtonsAlone) {
  for (const Long type : {2, 4}) {
    const Long result = show(type, [&](QMessageBox& box) {
      QTest::keyClick(&box, Qt::Key_Escape);
      EXPECT_TRUE(box.isVisible());
      box.close();
      EXPECT_TRUE(box.isVisible());
      EXPECT_FALSE(box.windowFlags().testFlag(Qt::WindowCloseButtonHint));
      press(box, type == 2 ? "Ignore" : "No");
    });
    EXPECT_EQ(result, type == 2 ? 5 : 7);
  }
}

TEST_F(QtBoxesTest, TextsStandAsTheyAre) {
  const String text = u"<b>bold</b> & &amp; Привет こんにちは שלום \U0001F600\nsecond line";
  show(
      0,
      [&](QMessageBox& box) {
        EXPECT_EQ(box.text().toStdU16String(), text);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Caption & <i>"));
        auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        EXPECT_TRUE(label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
        box.done(0);
      },
      text, u"Caption & <i>");
}

// Qt took the mark of a changed document out of the caption.
TEST_F(QtBoxesTest, ACaptionMayHoldTheMarkOfAChangedDocument) {
  for (const char16_t* const caption : {u"[*]", u"Report [*] of [*][*]", u"[*] [[*]] [*", u"[*][*][*]"}) {
    show(
        0,
        [&](QMessageBox& box) {
          EXPECT_EQ(box.windowHandle()->title().toStdU16String(), String(caption));
          box.done(0);
        },
        u"Text", caption);
  }
}

TEST_F(QtBoxesTest, AnEmptyPromptIsAnEmptyBoxAndNullIsEmpty) {
  QTimer::singleShot(0, qApp, [] { press(*openBox(), "OK"); });
  EXPECT_EQ(platform::desktop().messageBoxes->MessageBoxW(0, nullptr, nullptr, 0), 1);
}

TEST_F(QtBoxesTest, AVeryLongPromptLeavesTheButtonsOnTheScreen) {
  String words;
  for (int i = 0; i < 3000; ++i) words += u"word ";
  for (const String& text : {words, String(30'000, u'x'), String(3000, u'\n')}) {
    const Long result = show(
        0,
        [&](QMessageBox& box) {
          const QSize room = box.screen()->availableGeometry().size();
          EXPECT_LE(box.width(), room.width());
          EXPECT_LE(box.height(), room.height());
          EXPECT_NE(box.findChild<QScrollArea*>(), nullptr);
          QWidget* const ok = box.button(QMessageBox::Ok);
          EXPECT_TRUE(box.rect().contains(QRect(ok->mapTo(&box, QPoint()), ok->size())));
          press(box, "OK");
        },
        text);
    EXPECT_EQ(result, 1);
  }
}

TEST_F(QtBoxesTest, FlagsOfPlaceAndDirectionAreKept) {
  const auto shown = [&](Long type, const Look& look) {
    show(type, [&](QMessageBox& box) {
      look(box);
      box.done(0);
    });
  };
  shown(0x1000, [](QMessageBox& box) {
    EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(box.windowModality(), Qt::ApplicationModal);
  });
  shown(0x2000, [](QMessageBox& box) { EXPECT_EQ(box.windowModality(), Qt::ApplicationModal); });
  shown(0x40000, [](QMessageBox& box) { EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint)); });
  shown(0x10000, [](QMessageBox& box) {
    settle();
    EXPECT_TRUE(box.isActiveWindow());
  });
  shown(0x80000, [](QMessageBox& box) {
    const auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    EXPECT_TRUE(label->alignment().testFlag(Qt::AlignRight));
  });
  shown(0x100000, [](QMessageBox& box) { EXPECT_EQ(box.layoutDirection(), Qt::RightToLeft); });
}

TEST_F(QtBoxesTest, HelpAsksTheOwnerAndTheBoxStays) {
  struct Owner : QWidget {
    int helps = 0;
    void keyPressEvent(QKeyEvent* event) override { helps += event->key() == Qt::Key_F1 ? 1 : 0; }
  } owner;
  owner.show();
  const Long result = show(
      0x4000,
      [&](QMessageBox& box) {
        press(box, "Help");
        EXPECT_TRUE(box.isVisible());
        press(box, "OK");
      },
      u"Text", u"Caption", static_cast<platform::WindowHandle>(owner.winId()));
  EXPECT_EQ(result, 1);
  EXPECT_EQ(owner.helps, 1);
}

TEST_F(QtBoxesTest, TheActiveWindowIsTheOwner) {
  platform::MessageBoxes& boxes = *platform::desktop().messageBoxes;
  EXPECT_EQ(boxes.GetActiveWindow(), 0);
  QWidget window;
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const platform::WindowHandle owner = boxes.GetActiveWindow();
  EXPECT_EQ(owner, static_cast<platform::WindowHandle>(window.winId()));
  show(
      0,
      [&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &window);
        EXPECT_EQ(box.windowModality(), Qt::WindowModal);
        box.done(0);
      },
      u"Text", u"Caption", owner);
}

TEST_F(QtBoxesTest, WithoutAnOwnerItIsShownAllTheSame) {
  EXPECT_EQ(answer(0, "OK"), 1);
  const Long result = show(
      0, [](QMessageBox& box) { press(box, "OK"); }, u"Text", u"Caption", 987654);
  EXPECT_EQ(result, 1);
}

TEST_F(QtBoxesTest, ABoxWhoseOwnerGoesAnswersNothing) {
  auto* const owner = new QWidget;
  owner->show();
  const Long result = show(
      3, [&](QMessageBox&) { delete owner; }, u"Text", u"Caption",
      static_cast<platform::WindowHandle>(owner->winId()));
  EXPECT_EQ(result, 0);
}

TEST_F(QtBoxesTest, AnotherThreadGetsNothing) {
  Long result = 1;
  platform::WindowHandle window = 1;
  std::thread([&] {
    result = platform::desktop().messageBoxes->MessageBoxW(0, u"a", u"b", 0);
    window = platform::desktop().messageBoxes->GetActiveWindow();
  }).join();
  EXPECT_EQ(result, 0);
  EXPECT_EQ(window, 0);
}

TEST(QtDialogsTest, WithThemGoneThePlatformsOwnAreBack) {
  { const qt::Dialogs dialogs; }
  EXPECT_EQ(platform::desktop().messageBoxes->MessageBoxW(0, u"a", u"b", 0), 0);
  EXPECT_EQ(platform::desktop().htmlHelp->HtmlHelpA(0, "a.chm", 0, 0), 0);
}

TEST(QtDialogsTest, WithoutAnApplicationNothingIsShown) { EXPECT_EQ(answeredWithoutApplication, 0); }

}  // namespace
}  // namespace tessaly::tests
