// Pages of any name, links and anchors in any form, and pages that ask for more than there is room for.

#include <QBuffer>
#include <QFile>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextDocument>
#include <map>

#include "tests/hosts/qt/Stage.h"
#include "tests/hosts/qt/help/HelpArchiveMaker.h"
#include "tests/hosts/qt/help/HelpStage.h"
#include "tests/support/pictures/Bytes.h"

namespace tessaly::tests {
namespace {

using Pages = std::map<std::string, std::string>;

std::string pageOf(const std::string& body) {
  return R"(<html><head><meta charset="utf-8"></head><body>)" + body + "</body></html>";
}

std::string pageWithLinksTo(const std::string& part) {
  return pageOf("<a href=\"" + part + ".html\">page</a> <a href=\"a.html#" + part +
                "#\">place</a> <a href=\"ms-its:made.chm::/" + part + ".html\">archive</a>");
}

std::string pngOf(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::blue);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, "png");
  return bytes.toStdString();
}

/// A square of nothing but one pixel in its corner.
std::string gifOf(std::uint32_t side) {
  Bytes bytes;
  bytes.text("GIF89a").word(side).word(side).byte(0x80).byte(0).byte(0).zeros(6);
  bytes.byte(0x2C).zeros(4).word(1).word(1).byte(0);
  return bytes.byte(2).byte(2).byte(0x44).byte(1).byte(0).byte(0x3B).get();
}

class QtOddPagesTest : public HelpOnStage {
 protected:
  std::string archive() const { return folder_.filePath(QStringLiteral("made.chm")).toStdString(); }

  void make(const Pages& pages) {
    QFile file(folder_.filePath(QStringLiteral("made.chm")));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    const std::string bytes = helpArchive(pages);
    ASSERT_EQ(file.write(bytes.data(), static_cast<qint64>(bytes.size())), static_cast<qint64>(bytes.size()));
  }

  void showPage(const std::string& name) { ASSERT_NE(show(archive() + "::/" + name), nullptr); }

  void expectLink(const std::string& address, const std::string& target) {
    make({{"With blank.html", pageOf("A blank")},
          {"C#.html", pageOf("A sharp")},
          {"100%.html", pageOf("A part")},
          {"it's \"quoted\".html", pageOf("Quotes")},
          {"a..b.html", pageOf("Two dots")},
          {"Обзор.html", pageOf("Another script")},
          {"parts/start.html", pageOf("<a href=\"" + address + "\">go</a>")}});
    showPage("parts/start.html");
    click("go");
    EXPECT_TRUE(shows(target)) << address << " leads to " << text();
  }

  /// Whether the place behind an anchor is in view, which is far below the top of the page.
  bool showsPlace(const QString& text) {
    const QTextCursor place = page().document()->find(text);
    return !place.isNull() && page().verticalScrollBar()->value() > 0 &&
           page().viewport()->rect().contains(page().cursorRect(place));
  }

  QSize sizeOfPicture(const QString& name) {
    return page().loadResource(QTextDocument::ImageResource, QUrl(name)).value<QImage>().size();
  }

  static constexpr QSize kMissing{24, 24};

  QTemporaryDir folder_;
};

TEST_F(QtOddPagesTest, ATopicMayHaveAnyName) {
  const std::vector<std::string> names{"With blank.html",   "it's \"quoted\".html",
                                       "100%.html",         "100%25.html",
                                       "C#.html",           "a..b.html",
                                       "a+b=c&d;e.html",    "(1) [2] {3}.html",
                                       "why?.html",         "\xE9t\xE9.html",
                                       "deep/er/page.html", ".html"};
  Pages pages;
  for (const std::string& name : names) pages[name] = pageOf("This is " + std::to_string(pages.size()) + '.');
  make(pages);
  for (const std::string& name : names) {
    showPage(name);
    const std::string& wanted = pages[name];
    EXPECT_NE(wanted.find(text()), std::string::npos) << name << " shows " << text();
  }
}

TEST_F(QtOddPagesTest, ANameWithBackslashesIsAPath) {
  make({{"back\\slash.html", pageOf("A folder after all")}});
  for (const char* const name : {"back/slash.html", "back\\slash.html", "\\back\\.\\slash.html"}) {
    showPage(name);
    EXPECT_TRUE(shows("A folder after all")) << name;
  }
}

TEST_F(QtOddPagesTest, ALinkMayBeWrittenInAnyForm) {
  const std::vector<std::pair<std::string, std::string>> rows{
      {"../With blank.html", "A blank"},
      {"../With%20blank.html", "A blank"},
      {"..\\With blank.html", "A blank"},
      {"/With blank.html", "A blank"},
      {".././parts/../With blank.html", "A blank"},
      {"../../../With blank.html", "A blank"},
      {"../C%23.html", "A sharp"},
      {"../100%25.html", "A part"},
      {"../100%.html", "A part"},
      {"../it's &quot;quoted&quot;.html", "Quotes"},
      {"../it%27s%20%22quoted%22.html", "Quotes"},
      {"../a..b.html", "Two dots"},
      {"../Обзор.html", "Another script"},
      {"../%D0%9E%D0%B1%D0%B7%D0%BE%D1%80.html", "Another script"}};
  for (const auto& [address, target] : rows) expectLink(address, target);
}

TEST_F(QtOddPagesTest, ALinkMayNameTheArchiveInAnyForm) {
  const std::vector<std::pair<std::string, std::string>> rows{
      {"ms-its:made.chm::/With blank.html", "A blank"},
      {"MS-ITS:Made.CHM::/With%20blank.html", "A blank"},
      {"its:made.chm::With blank.html", "A blank"},
      {"mk:@MSITStore:made.chm::/With%20blank.html", "A blank"},
      {"mk:@MSITStore:C:\\Program Files\\Help\\made.chm::/With blank.html", "A blank"},
      {"mk:@msitstore:made.chm::\\a..b.html", "Two dots"},
      {"mk:@MSITStore:made.chm::/C%23.html", "A sharp"},
      {"ms-its:made.chm::/100%25.html", "A part"},
      {"made.chm::/a..b.html", "Two dots"},
      {"ms-its:made.chm::/%D0%9E%D0%B1%D0%B7%D0%BE%D1%80.html", "Another script"}};
  for (const auto& [address, target] : rows) expectLink(address, target);
}

TEST_F(QtOddPagesTest, AnAnchorMayHaveBlanksPercentSignsAndOtherScripts) {
  std::string far;
  for (int i = 0; i < 80; ++i) far += "<p>A line</p>";
  const auto place = [&](const std::string& name, const std::string& text) {
    return "<h2><a name=\"" + name + "\">" + text + "</a></h2>" + far;
  };
  make({{"a.html", pageOf(far + place("two words", "First") + place("раздел", "Second") +
                          place("a%b", "Third") + place("x#y", "Fourth"))},
        {"b.html", pageOf("<a href=\"a.html#two words\">blank</a> <a href=\"a.html#two%20words\">escape</a> "
                          "<a href=\"a.html#раздел\">script</a> <a href=\"a.html#a%25b\">percent</a> "
                          "<a href=\"a.html#x#y\">number</a>")}});
  for (const auto& [topic, text] :
       std::map<std::string, const char*>{{"a.html#two words", "First"},
                                          {"a.html#two%20words", "First"},
                                          {"a.html#%D1%80%D0%B0%D0%B7%D0%B4%D0%B5%D0%BB", "Second"},
                                          {"a.html#a%b", "Third"},
                                          {"a.html#x#y", "Fourth"}}) {
    showPage(topic);
    EXPECT_TRUE(showsPlace(text)) << topic;
  }
  for (const auto& [link, text] : std::map<const char*, const char*>{{"blank", "First"},
                                                                     {"escape", "First"},
                                                                     {"script", "Second"},
                                                                     {"percent", "Third"},
                                                                     {"number", "Fourth"}}) {
    showPage("b.html");
    click(link);
    EXPECT_TRUE(showsPlace(text)) << link;
  }
}

// Its name is the line's then, where nobody looked.
TEST_F(QtOddPagesTest, AnAnchorMayStandAloneInALine) {
  std::string far;
  for (int i = 0; i < 80; ++i) far += "A line\n";
  make({{"a.html", pageOf("<pre>" + far + "<a name=\"a%b\"></a>\nBehind it\n" + far + "</pre>")}});
  showPage("a.html#a%b");
  EXPECT_TRUE(showsPlace("Behind it"));
}

TEST_F(QtOddPagesTest, NamesLinksAndAnchorsOfAnyLengthHarmNothing) {
  for (const std::string& part : {std::string(30'000, 'x'), std::string(30'000, '%'),
                                  std::string(3000, '.') + '/', std::string(3000, '\\')}) {
    const std::string length = std::to_string(part.size()) + part.front();
    make({{"a.html", pageWithLinksTo(part)}});
    for (const char* const link : {"page", "archive"}) {
      showPage("a.html");
      click(link);
      EXPECT_TRUE(shows("There is no such page")) << length;
    }
    showPage("a.html");
    click("place");
    EXPECT_TRUE(shows("archive")) << length;
    showPage("a.html#" + part);
    EXPECT_TRUE(shows("archive")) << length;
  }
}

TEST_F(QtOddPagesTest, ContentsTellTheirLinesAsTheyStand) {
  const std::string title = "<b>bold</b> &lt; 100% & [*] <img src='x.png'>";
  make(
      {{"toc.hhc",
        R"(<ul><li><object type="text/sitemap"><param name="Name" value="&lt;b&gt;bold&lt;/b&gt; &amp;lt; 100% )"
        R"(&amp; [*] &lt;img src='x.png'&gt;"><param name="Local" value="a.html"></object>)"
        R"(<li><object type="text/sitemap"><param name="Name" value="Reports &amp; folders">)"
        R"(<param name="Local" value="a.html"></object></ul>)"},
       {"a.html", pageOf("A page")}});
  showPage("a.html");
  const QTreeWidgetItem& odd = *tree("Contents").topLevelItem(0);
  EXPECT_EQ(odd.text(0).toStdString(), title);
  QTextDocument tip;
  tip.setHtml(odd.toolTip(0));
  EXPECT_EQ(tip.toPlainText().toStdString(), title);
  EXPECT_EQ(tree("Contents").topLevelItem(1)->toolTip(0), QStringLiteral("Reports & folders"));
}

TEST_F(QtOddPagesTest, APictureIsLookedForFromItsOwnPageAlsoBehindALink) {
  make({{"a.html", pageOf("<a href=\"deep/b.html\">deeper</a>")},
        {"deep/b.html", pageOf("<img src=\"pictures\\blue dot.png\">")},
        {"deep/pictures/blue dot.png", pngOf({60, 60})}});
  showPage("a.html");
  click("deeper");
  const QImage seen = seenOn(*page().viewport());
  EXPECT_EQ(seen.pixelColor(50, 50), QColor(Qt::blue));
}

TEST_F(QtOddPagesTest, APageHasAThousandPicturesAtMost) {
  make({{"a.html", pageOf("A page")}, {"dot.png", pngOf({2, 2})}});
  showPage("a.html");
  for (int i = 0; i < 1000; ++i) ASSERT_EQ(sizeOfPicture(QStringLiteral("dot.png?%1").arg(i)), QSize(2, 2));
  EXPECT_EQ(sizeOfPicture(QStringLiteral("dot.png")), kMissing);
  showPage("a.html");
  EXPECT_EQ(sizeOfPicture(QStringLiteral("dot.png")), QSize(2, 2));
}

TEST_F(QtOddPagesTest, ThePicturesOfAPageTake256MiBAtMost) {
  constexpr int kSide = 4096;
  make({{"a.html", pageOf("A page")}, {"large.gif", gifOf(kSide)}});
  showPage("a.html");
  for (int i = 0; i < 4; ++i) ASSERT_EQ(sizeOfPicture(QStringLiteral("large.gif")), QSize(kSide, kSide));
  EXPECT_EQ(sizeOfPicture(QStringLiteral("large.gif")), kMissing);
}

TEST_F(QtOddPagesTest, APlainTextThatIsTooLongIsNotShown) {
  make({{"long.txt", "charset=utf-8 " + std::string(8 << 20, 'x')}, {"short.txt", "A few words"}});
  showPage("long.txt");
  EXPECT_TRUE(shows("The page is damaged"));
  EXPECT_TRUE(shows("long.txt"));
  showPage("short.txt");
  EXPECT_TRUE(shows("A few words"));
}

}  // namespace
}  // namespace tessaly::tests
