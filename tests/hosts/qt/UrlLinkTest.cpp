// The hyperlink in a widget: how it is shown, clicked, reached by keys and by assistive technology, kept and
// let go.

#include "tessaly/hosts/qt/UrlLink.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/MessageBoxes.h"
#include "tessaly/platform/fake/Shell.h"
#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

using platform::fake::MessageBoxes;
using platform::fake::Shell;

constexpr QRgb kBlue = 0xFF0000FF;

class QtUrlLinkTest : public testing::Test {
 protected:
  QtUrlLinkTest() : link_(new qt::UrlLink(&stage_.window())) {
    link().URL(QStringLiteral("https://host.example/"));
    link().setErrorHandler([this](const RuntimeError& error) { errors_.push_back(error.number()); });
    stage_.show(link(), {200, 40});
  }

  qt::UrlLink& link() const { return *link_; }

  void click(Qt::MouseButton button = Qt::LeftButton) {
    stage_.move(Stage::kInside);
    stage_.press(button);
    stage_.release(button);
  }

  std::vector<std::string> opened() const {
    std::vector<std::string> files;
    for (const auto& call : shell_.opened()) files.push_back(call.file.value_or(""));
    return files;
  }

  /// The columns in which there is text.
  std::vector<int> columnsOfText() const {
    const QImage seen = seenOn(link());
    std::vector<int> columns;
    for (int x = 0; x < seen.width(); ++x) {
      for (int y = 0; y < seen.height(); ++y) {
        if (seen.pixel(x, y) != kBlue) continue;
        columns.push_back(x);
        break;
      }
    }
    return columns;
  }

  QAccessibleInterface& told() const { return *QAccessible::queryAccessibleInterface(&link()); }

  Shell shell_;
  MessageBoxes boxes_;
  platform::Override shellInForce_{shell_};
  platform::Override boxesInForce_{boxes_};
  Stage stage_;
  QPointer<qt::UrlLink> link_;
  std::vector<Long> errors_;
};

const std::vector<std::string> kHost{"https://host.example/"};

TEST_F(QtUrlLinkTest, ShowsItsTextInBlueWhereItsAlignmentTells) {
  link().text(QStringLiteral("Help"));
  link().alignment(0);
  const std::vector<int> left = columnsOfText();
  ASSERT_FALSE(left.empty());
  EXPECT_LT(left.front(), 5);
  EXPECT_LT(left.back(), 80);
  const int width = left.back() - left.front();
  link().alignment(1);
  EXPECT_GT(columnsOfText().back(), 193);
  link().alignment(2);
  const int middle = (200 - width) / 2;
  EXPECT_NEAR(columnsOfText().front(), middle, 4);
  link().text(QString());
  EXPECT_TRUE(columnsOfText().empty());
}

TEST_F(QtUrlLinkTest, OpensItsURLUnderAnHourglass) {
  Qt::CursorShape shape = Qt::ArrowCursor;
  shell_.onOpen([&](const Shell::Opened&) { shape = QApplication::overrideCursor()->shape(); });
  click();
  EXPECT_EQ(opened(), kHost);
  EXPECT_EQ(shape, Qt::WaitCursor);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(QtUrlLinkTest, OpensNothingForTheRightButton) {
  click(Qt::RightButton);
  EXPECT_TRUE(opened().empty());
}

TEST_F(QtUrlLinkTest, HasAHandAsItsPointer) {
  EXPECT_EQ(link().cursor().shape(), Qt::BitmapCursor);
  EXPECT_EQ(link().cursor().hotSpot(), QPoint(13, 5));
  EXPECT_EQ(link().cursor().pixmap().size(), QSize(32, 32));
}

TEST_F(QtUrlLinkTest, LetsTheHostChangeOrCancelAClick) {
  QString seen;
  const auto changing = QObject::connect(&link(), &qt::UrlLink::GoToURL, [&](QString* URL, bool*) {
    seen = *URL;
    *URL = QStringLiteral("other");
  });
  click();
  EXPECT_EQ(seen, QStringLiteral("https://host.example/"));
  EXPECT_EQ(opened(), std::vector<std::string>{"other"});
  QObject::disconnect(changing);
  QObject::connect(&link(), &qt::UrlLink::GoToURL, [](QString*, bool* Cancel) { *Cancel = true; });
  click();
  EXPECT_EQ(opened().size(), 1U);
}

TEST_F(QtUrlLinkTest, ShowsItsURLAsAToolTipWhereItIsToldTo) {
  EXPECT_EQ(link().toolTip(), QString());
  link().ShowToolTip(true);
  EXPECT_EQ(link().toolTip(), QStringLiteral("https://host.example/"));
}

TEST_F(QtUrlLinkTest, IsOpenedWithReturnWhereTabReachesIt) {
  EXPECT_TRUE(QTest::qWaitForWindowActive(&stage_.window()));
  EXPECT_EQ(link().focusPolicy(), Qt::NoFocus);
  link().setFocusPolicy(Qt::TabFocus);
  auto* const before = new QLineEdit(&stage_.window());
  before->show();
  before->setFocus();
  const QImage unfocused = seenOn(link());
  QTest::keyClick(before, Qt::Key_Tab);
  EXPECT_TRUE(link().hasFocus());
  EXPECT_NE(seenOn(link()), unfocused);
  QTest::keyClick(&link(), Qt::Key_Return);
  EXPECT_EQ(opened(), kHost);
  QTest::keyClick(&link(), Qt::Key_Space);
  EXPECT_EQ(opened().size(), 2U);
  QTest::keyClick(&link(), Qt::Key_A);
  EXPECT_EQ(opened().size(), 2U);
}

TEST_F(QtUrlLinkTest, IsALinkToAssistiveTechnology) {
  EXPECT_EQ(told().role(), QAccessible::Link);
  EXPECT_TRUE(told().state().linked);
  link().text(QStringLiteral("Help"));
  EXPECT_EQ(told().text(QAccessible::Name), QStringLiteral("Help"));
  EXPECT_EQ(told().text(QAccessible::Value), QStringLiteral("https://host.example/"));
  link().setAccessibleName(QStringLiteral("Help on the web"));
  EXPECT_EQ(told().text(QAccessible::Name), QStringLiteral("Help on the web"));
  QAccessibleActionInterface& actions = *told().actionInterface();
  actions.doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(opened().empty());
  settle();
  EXPECT_EQ(opened(), kHost);
  link().setEnabled(false);
  EXPECT_FALSE(actions.actionNames().contains(QAccessibleActionInterface::pressAction()));
  actions.doAction(QAccessibleActionInterface::pressAction());
  settle();
  EXPECT_EQ(opened().size(), 1U);
}

TEST_F(QtUrlLinkTest, HasItsPropertiesAmongTheWidgets) {
  EXPECT_TRUE(link().setProperty("text", QStringLiteral("\u65E5\u672C")));
  EXPECT_TRUE(link().setProperty("URL", QStringLiteral("x")));
  EXPECT_TRUE(link().setProperty("ShowToolTip", true));
  EXPECT_TRUE(link().setProperty("alignment", 2));
  EXPECT_EQ(link().control().text(), u"\u65E5\u672C");
  EXPECT_EQ(link().control().URL(), u"x");
  EXPECT_EQ(link().control().ShowToolTip(), True);
  EXPECT_EQ(link().control().alignment(), 2);
  EXPECT_EQ(link().property("text").toString(), link().text());
  EXPECT_EQ(link().property("URL").toString(), link().URL());
  EXPECT_EQ(link().property("ShowToolTip").toBool(), link().ShowToolTip());
  EXPECT_EQ(link().property("alignment").toInt(), link().alignment());
}

TEST_F(QtUrlLinkTest, TellsOfChangesButNotOfTheAlignment) {
  const QSignalSpy changed(&link(), &qt::UrlLink::PropertyChanged);
  link().text(QStringLiteral("Help"));
  link().URL(QStringLiteral("x"));
  link().ShowToolTip(true);
  link().alignment(0);
  QStringList names;
  for (const auto& call : changed) names.append(call.at(0).toString());
  EXPECT_EQ(names,
            (QStringList{QStringLiteral("Text"), QStringLiteral("URL"), QStringLiteral("ShowToolTip")}));
}

TEST_F(QtUrlLinkTest, ALayoutFindsRoomForItsText) {
  QWidget window;
  auto* const layout = new QHBoxLayout(&window);
  auto* const laid = new qt::UrlLink(&window);
  layout->addWidget(laid);
  window.show();
  const QSize before = laid->sizeHint();
  EXPECT_GE(laid->width(), before.width());
  EXPECT_GE(laid->height(), before.height());
  laid->text(QString(60, QLatin1Char('x')));
  settle();
  window.adjustSize();
  EXPECT_GT(laid->sizeHint().width(), before.width());
  EXPECT_GE(laid->width(), laid->sizeHint().width());
}

TEST_F(QtUrlLinkTest, IsKeptAndRestored) {
  link().text(QStringLiteral("Help"));
  link().alignment(2);
  const qt::UrlLink other(link().save());
  EXPECT_EQ(other.text(), QStringLiteral("Help"));
  EXPECT_EQ(other.URL(), QStringLiteral("https://host.example/"));
  EXPECT_EQ(other.alignment(), 2);
}

TEST_F(QtUrlLinkTest, MayBeDeletedInItsEvent) {
  QObject::connect(&link(), &qt::UrlLink::GoToURL, [&](QString* URL, bool*) {
    delete link_.data();
    *URL += QLatin1Char('x');
  });
  click();
  EXPECT_TRUE(link_.isNull());
  EXPECT_EQ(opened(), std::vector<std::string>{"https://host.example/x"});
}

TEST_F(QtUrlLinkTest, MayGoWhileTheShellOpensAndThePointerComesBack) {
  shell_.onOpen([&](const Shell::Opened&) { delete link_.data(); });
  click();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(QtUrlLinkTest, MayGoWhileTheMessageIsShownAndThePointerComesBack) {
  shell_.raise(RuntimeError::EntryPointNotFound);
  boxes_.answer([&](const MessageBoxes::Box&) -> Long {
    delete link_.data();
    return 1;
  });
  click();
  EXPECT_EQ(boxes_.boxes().size(), 1U);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(errors_.empty());
}

}  // namespace
}  // namespace tessaly::tests
