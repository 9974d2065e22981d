// Want of memory while help is shown: it is told, and no exception reaches Qt, which would end the program.

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTextDocument>
#include <new>

#include "tessaly/platform/Core.h"
#include "tests/hosts/qt/Stage.h"
#include "tests/hosts/qt/help/HelpStage.h"

namespace tessaly::tests {
namespace {

/// The platform's own, until there is no memory for what names are compared by.
class PoorLocale final : public platform::Locale {
 public:
  Long GetUserDefaultLCID() override { return own_.GetUserDefaultLCID(); }
  String decimalSeparator() override { return own_.decimalSeparator(); }
  Long GetACP() override { return own_.GetACP(); }
  std::string WideCharToMultiByte(Long codePage, std::u16string_view text) override {
    return own_.WideCharToMultiByte(codePage, text);
  }
  String MultiByteToWideChar(Long codePage, std::string_view text) override {
    return own_.MultiByteToWideChar(codePage, text);
  }
  String CharUpperW(std::u16string_view text) override {
    if (isPoor) throw std::bad_alloc();
    return own_.CharUpperW(text);
  }

  bool isPoor = false;

 private:
  platform::Locale& own_ = *platform::core().locale;
};

class QtPoorMemoryTest : public HelpOnStage {
 protected:
  QtPoorMemoryTest() {
    showGuide("Overview.html");
    locale_.isPoor = true;
  }

  /// The user is told once, and the page is the one that it was.
  void expectTold() {
    settle();
    auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->text().endsWith(QStringLiteral("(error 7)"))) << box->text().toStdString();
    box->close();
    settle();
    EXPECT_TRUE(shows("Where to read on"));
  }

  QVariant load(int type, const char* name) { return page().loadResource(type, QUrl(name)); }

 private:
  PoorLocale locale_;
  platform::Override inForce_{locale_};
};

TEST_F(QtPoorMemoryTest, APageSaysThatItCannotBeShown) {
  EXPECT_TRUE(load(QTextDocument::HtmlResource, "Settings.html").toString().contains("cannot be shown"));
}

TEST_F(QtPoorMemoryTest, APictureHasItsStandInAndAStyleIsEmpty) {
  EXPECT_EQ(load(QTextDocument::ImageResource, "pictures/diagram.png").value<QImage>().size(), QSize(24, 24));
  EXPECT_EQ(load(QTextDocument::StyleSheetResource, "style.css"), QVariant(QString()));
}

TEST_F(QtPoorMemoryTest, ALinkStaysWhereItIs) {
  click("Settings");
  expectTold();
}

TEST_F(QtPoorMemoryTest, ALinkIntoAnotherFileStaysWhereItIs) {
  click("A page of another help file");
  expectTold();
}

TEST_F(QtPoorMemoryTest, ContentsAndToolsStayWhereTheyAre) {
  QTreeWidget& contents = tree("Contents");
  contents.setFocus();
  contents.setCurrentItem(contents.findItems("Settings", Qt::MatchExactly | Qt::MatchRecursive).front());
  QTest::keyClick(&contents, Qt::Key_Return);
  expectTold();
  press("Home");
  expectTold();
}

TEST_F(QtPoorMemoryTest, TheCallerHearsOfItself) { EXPECT_THROW(showGuide("Settings.html"), std::bad_alloc); }

}  // namespace
}  // namespace tessaly::tests
