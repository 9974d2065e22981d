#include "tessaly/hosts/qt/help/PageView.h"

#include <QBuffer>
#include <QImageReader>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <array>
#include <new>

#include "tessaly/hosts/qt/Text.h"
#include "tessaly/hosts/qt/Words.h"
#include "tessaly/hosts/qt/help/GuardedSlot.h"
#include "tessaly/hosts/qt/help/HelpAddress.h"
#include "tessaly/hosts/qt/help/Notices.h"
#include "tessaly/hosts/qt/help/PageText.h"

namespace tessaly::qt {
namespace {

constexpr int kMargin = 20;

/// Pages are written for paper: their own colours tell nothing of a dark background.
QPalette paper(QPalette palette) {
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::Link, QColor(0x05, 0x63, 0xC1));
  palette.setColor(QPalette::LinkVisited, QColor(0x6B, 0x3F, 0xA0));
  return palette;
}

/// Stands where a page has a picture that its file does not hold. Where there were none, Qt would look for
/// one among all files.
QImage missingPicture() {
  constexpr int kSide = 24;
  QImage image(kSide, kSide, QImage::Format_ARGB32_Premultiplied);
  image.fill(QColor(0xF0, 0xF0, 0xF0));
  QPainter painter(&image);
  painter.setPen(QColor(0xB0, 0xB0, 0xB0));
  painter.drawRect(0, 0, kSide - 1, kSide - 1);
  painter.drawLine(6, 6, kSide - 7, kSide - 7);
  painter.drawLine(6, kSide - 7, kSide - 7, 6);
  return image;
}

bool endsWithOneOf(const QString& name, std::initializer_list<const char*> endings) {
  return std::any_of(endings.begin(), endings.end(), [&](const char* ending) {
    return name.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
  });
}

bool isPicture(const QString& name) { return endsWithOneOf(name, {".png", ".gif", ".jpg", ".jpeg", ".bmp"}); }

bool isOutside(const QString& scheme) {
  static const std::array<QLatin1String, 4> kKnown{QLatin1String("http"), QLatin1String("https"),
                                                   QLatin1String("mailto"), QLatin1String("ftp")};
  return std::find(kKnown.begin(), kKnown.end(), scheme) != kKnown.end();
}

/// Of the formats that pages have, and no other that a plug-in may bring.
QImage decoded(const std::string& bytes) {
  QBuffer buffer;
  buffer.setData(bytes.data(), static_cast<int>(bytes.size()));
  QImageReader reader(&buffer);
  const QByteArray format = reader.format();
  const bool isKnown = format == "png" || format == "gif" || format == "jpeg" || format == "bmp";
  return isKnown ? reader.read() : QImage();
}

/// A relative one comes as an address of the file that it stands in.
bool leadsIntoArchive(const QUrl& url) {
  if (isOutside(url.scheme())) return false;
  if (HelpShelf::isOwn(url)) return url.path().contains(QLatin1String(".chm::"), Qt::CaseInsensitive);
  return namesArchive(fromQString(url.toString()));
}

/// One that stands alone in a line is the line's.
bool hasAnchor(const QTextDocument& document, const QString& name) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (block.charFormat().anchorNames().contains(name)) return true;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      if (at.fragment().charFormat().anchorNames().contains(name)) return true;
    }
  }
  return false;
}

}  // namespace

PageView::PageView(HelpShelf& shelf, QWidget* parent)
    : QTextBrowser(parent), shelf_(shelf), failure_(noticeOfFailure()), missingPicture_(missingPicture()) {
  setPalette(paper(palette()));
  setFrameShape(QFrame::NoFrame);
  setOpenLinks(false);
  setAccessibleName(said("Page"));
  document()->setDocumentMargin(kMargin);
  // What pages leave open, as it reads well.
  document()->setDefaultStyleSheet(
      QStringLiteral("p, li, dd, td { line-height: 115%; } li { margin-bottom: 4px; }"));
  connect(this, &QTextBrowser::anchorClicked, this, guardedSlot(this, &PageView::follow));
  connect(this, &QTextBrowser::sourceChanged, this, &PageView::turnToReading);
  connect(this, &QTextBrowser::sourceChanged, this, guardedSlot(this, &PageView::goToAnchor));
}

void PageView::showPage(const QUrl& url) {
  const bool isShown = url == source();
  setSource(url, QTextDocument::HtmlResource);
  if (isShown) reload();
}

// Qt looks for an anchor as it is written in the address, where a '%' has an escape of its own, and a link
// may have escapes where the page has none.
void PageView::goToAnchor(const QUrl& url) {
  const String anchor = fromQString(url.fragment(QUrl::FullyDecoded));
  for (const String& name : {anchor, percentDecoded(anchor)}) {
    if (name.empty() || !hasAnchor(*document(), toQString(name))) continue;
    scrollToAnchor(toQString(name));
    return;
  }
}

void PageView::turnToReading() {
  QTextOption option = document()->defaultTextOption();
  option.setTextDirection(isRightToLeft_ ? Qt::RightToLeft : Qt::LayoutDirectionAuto);
  document()->setDefaultTextOption(option);
}

// Qt asks for it while it puts a page together, and no exception may pass through that.
QVariant PageView::loadResource(int type, const QUrl& name) try {
  return resource(type, name);
} catch (const RuntimeError&) {
  return spareResource(type);
} catch (const std::bad_alloc&) {
  return spareResource(type);
}

QVariant PageView::spareResource(int type) const {
  if (type == QTextDocument::HtmlResource) return failure_;
  return type == QTextDocument::ImageResource ? QVariant(missingPicture_) : QVariant(QString());
}

QVariant PageView::resource(int type, const QUrl& name) {
  const QUrl url = name.isRelative() ? source().resolved(name) : name;
  if (type == QTextDocument::HtmlResource) {
    pictures_ = 0;
    pictureBytes_ = 0;
    const QString page = html(url);
    isRightToLeft_ = readsFromTheRight(page);
    return page;
  }
  if (type == QTextDocument::ImageResource) return picture(url);
  const HelpBook* const book = shelf_.book(HelpShelf::numberOf(url));
  const auto bytes = book != nullptr ? book->read(HelpShelf::referenceOf(url)) : std::nullopt;
  return bytes ? pageText(*bytes, book->codePage()) : QStringLiteral("");
}

QString PageView::html(const QUrl& url) const {
  const HelpBook* const book = shelf_.book(HelpShelf::numberOf(url));
  const auto page = book != nullptr ? book->find(HelpShelf::referenceOf(url)) : std::nullopt;
  const QString name = page ? toQString(page->page) : QString();
  if (isPicture(name)) return QStringLiteral("<img src=\"%1\">").arg(url.toString(QUrl::FullyEncoded));
  const auto bytes = page ? book->read(page->page) : std::nullopt;
  if (!bytes) return noticeFor(shelf_, url);
  const QString text = pageText(*bytes, book->codePage());
  if (!isFitToShow(text)) return noticeFor(shelf_, url);
  if (endsWithOneOf(name, {".txt", ".log"})) {
    return QStringLiteral("<pre style=\"white-space: pre-wrap\">%1</pre>").arg(text.toHtmlEscaped());
  }
  return text.trimmed().isEmpty() ? noticeFor(shelf_, url) : withTypedStyles(text);
}

/// Pictures take room as long as the page is shown, and each name of one takes it again.
QVariant PageView::picture(const QUrl& url) {
  if (pictureBytes_ >= kMostPictureBytes || ++pictures_ > kMostPictures) return missingPicture_;
  const HelpBook* const book = shelf_.book(HelpShelf::numberOf(url));
  const auto page = book != nullptr ? book->find(HelpShelf::referenceOf(url)) : std::nullopt;
  const auto bytes = page ? book->read(page->page) : std::nullopt;
  if (!bytes) return missingPicture_;
  const QImage image = decoded(*bytes);
  pictureBytes_ += static_cast<qsizetype>(bytes->size()) + image.sizeInBytes();
  return image.isNull() ? missingPicture_ : image;
}

void PageView::follow(const QUrl& url) {
  const QString link = url.toString();
  const int number = HelpShelf::numberOf(source());
  if (leadsIntoArchive(url)) {
    followIntoArchive(link);
  } else if (HelpShelf::isOwn(url)) {
    const HelpBook* const book = shelf_.book(number);
    const QUrl target = shelf_.urlOf(number, HelpShelf::referenceOf(url));
    setSource(book != nullptr ? target : url, QTextDocument::HtmlResource);
  } else if (isOutside(url.scheme())) {
    emit outsideLinkChosen(url);
  } else if (url.scheme() != QLatin1String("javascript")) {
    setSource(HelpShelf::urlOfLink(number, link), QTextDocument::HtmlResource);
  }
}

void PageView::followIntoArchive(const QString& link) {
  const HelpAddress address = helpAddress(fromQString(link));
  const int number = shelf_.openBeside(HelpShelf::numberOf(source()), percentDecoded(address.file));
  const HelpBook* const book = shelf_.book(number);
  const bool isHome = tidyPath(address.page).empty() && book != nullptr && book->home();
  setSource(shelf_.urlOf(number, isHome ? book->home()->page : address.page), QTextDocument::HtmlResource);
}

}  // namespace tessaly::qt
