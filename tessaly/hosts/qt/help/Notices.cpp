#include "tessaly/hosts/qt/help/Notices.h"

#include "tessaly/hosts/qt/Text.h"
#include "tessaly/hosts/qt/Words.h"

namespace tessaly::qt {
namespace {

/// What is told may come from anybody, and be of any length.
QString shown(const QString& text) {
  constexpr int kLongest = 1000;
  const QString cut = text.size() > kLongest ? text.left(kLongest) + QChar(0x2026) : text;
  return QStringLiteral("<code>%1</code>").arg(cut.toHtmlEscaped());
}

QString page(const QString& heading, const QString& text, const QString& rows) {
  return QStringLiteral(
             "<html><head><title>%1</title></head><body><h2>%1</h2><p>%2</p>"
             "<table cellpadding=\"4\">%3</table></body></html>")
      .arg(heading.toHtmlEscaped(), text.toHtmlEscaped(), rows);
}

QString row(const QString& name, const QString& value) {
  return QStringLiteral("<tr><td>%1</td><td>%2</td></tr>").arg(name.toHtmlEscaped(), shown(value));
}

QString fileRow(const HelpShelf& shelf, int number) {
  return row(said("Help file:"), toQString(shelf.path(number)));
}

QString pageRow(const QUrl& url) { return row(said("Page:"), toQString(HelpShelf::referenceOf(url))); }

QString wantedRow(const QUrl& url) {
  if (const auto number = HelpShelf::mapNumberOf(url)) {
    return row(said("Page number:"), QString::number(*number));
  }
  return HelpShelf::referenceOf(url).empty() ? QString() : pageRow(url);
}

/// For a file that can be read.
QString noticeIn(const HelpBook& book, const QUrl& url, const QString& rows) {
  if (HelpShelf::mapNumberOf(url)) {
    return page(said("There is no such page"), said("The help file has no page for this number."), rows);
  }
  if (book.find(HelpShelf::referenceOf(url))) {
    return page(said("The page is damaged"), said("The page is in the help file, but it cannot be shown."),
                rows);
  }
  return page(said("There is no such page"),
              said("The help file does not have the page that was looked for."), rows);
}

}  // namespace

QString noticeFor(const HelpShelf& shelf, const QUrl& url) {
  const int number = HelpShelf::numberOf(url);
  const QString rows = fileRow(shelf, number) + wantedRow(url);
  if (const QString link = HelpShelf::linkOf(url); !link.isEmpty()) {
    return page(said("The link was not opened"),
                said("It leads out of the help file, to a place that help does not open."),
                row(said("Link:"), link));
  }
  if (!shelf.isFound(number)) {
    return page(said("The help file is missing"), said("There is no such file, or it is not to be read."),
                rows);
  }
  const HelpBook* const book = shelf.book(number);
  if (book != nullptr) return noticeIn(*book, url, rows);
  return page(said("The help file is damaged"),
              said("The file is no help file, or parts of it are missing or wrong."), rows);
}

QString noticeOfFailure() {
  return page(said("The page cannot be shown"),
              said("There is not enough memory for it, or something else went wrong."), QString());
}

}  // namespace tessaly::qt
