#include "tessaly/hosts/qt/help/HelpShelf.h"

#include <QUrlQuery>
#include <algorithm>
#include <utility>

#include "tessaly/hosts/qt/Text.h"
#include "tessaly/hosts/qt/help/HelpArchive.h"
#include "tessaly/platform/Core.h"

namespace tessaly::qt {
namespace {

const QString kScheme = QStringLiteral("help");
const QString kMapNumber = QStringLiteral("map");
const QString kLink = QStringLiteral("link");

/// Links name files in any case, as on the platform that they were written for.
String beside(const String& path, const String& name) {
  const String own = name.substr(name.find_last_of(u"/\\") + 1);
  const String folder = path.substr(0, path.rfind(u'/') + 1);
  const String wanted = platform::core().locale->CharUpperW(own);
  for (const String& found : platform::core().files->list(folder, own)) {
    if (platform::core().locale->CharUpperW(found) == wanted) return folder + found;
  }
  return folder + own;
}

QUrl pageUrl(int number) {
  QUrl url;
  url.setScheme(kScheme);
  url.setHost(QStringLiteral("b%1").arg(number));
  url.setPath(QStringLiteral("/"));
  return url;
}

QUrl withQuery(QUrl url, const QString& name, const QString& value) {
  QUrlQuery query;
  query.addQueryItem(name, QString::fromLatin1(QUrl::toPercentEncoding(value)));
  url.setQuery(query);
  return url;
}

QUrl pageUrl(int number, const PageReference& reference) {
  QUrl url = pageUrl(number);
  url.setPath(u'/' + toQString(reference.page), QUrl::DecodedMode);
  if (!reference.anchor.empty()) url.setFragment(toQString(reference.anchor), QUrl::DecodedMode);
  return url;
}

}  // namespace

int HelpShelf::open(const String& path) {
  // A path that is written for the other platform.
  String own = path;
  if (!platform::core().files->opens(own)) std::replace(own.begin(), own.end(), u'\\', u'/');
  if (!platform::core().files->opens(own)) own = path;
  auto volume =
      std::find_if(volumes_.begin(), volumes_.end(), [&](const Volume& v) { return v.path == own; });
  if (volume == volumes_.end()) volume = volumes_.insert(volumes_.end(), Volume{own, false, nullptr});
  std::optional<std::string> bytes = platform::core().files->read(own);
  volume->isFound = bytes.has_value();
  auto archive = bytes ? HelpArchive::of(std::move(*bytes)) : nullptr;
  volume->book = archive ? std::make_unique<HelpBook>(std::move(archive)) : nullptr;
  return static_cast<int>(volume - volumes_.begin());
}

int HelpShelf::openBeside(int number, const String& name) {
  return open(name.starts_with(u'/') ? name : beside(path(number), name));
}

const HelpShelf::Volume* HelpShelf::volume(int number) const {
  const bool isThere = number >= 0 && number < static_cast<int>(volumes_.size());
  return isThere ? &volumes_[static_cast<std::size_t>(number)] : nullptr;
}

String HelpShelf::path(int number) const {
  const Volume* const found = volume(number);
  return found != nullptr ? found->path : String();
}

const HelpBook* HelpShelf::book(int number) const {
  const Volume* const found = volume(number);
  return found != nullptr ? found->book.get() : nullptr;
}

bool HelpShelf::isFound(int number) const {
  const Volume* const found = volume(number);
  return found != nullptr && found->isFound;
}

QUrl HelpShelf::urlOf(int number, std::u16string_view reference) const {
  const HelpBook* const found = book(number);
  const auto page = found != nullptr ? found->find(reference) : std::nullopt;
  return pageUrl(number, page.value_or(PageReference{tidyPath(reference), {}}));
}

QUrl HelpShelf::urlOfNumber(int number, Long mapNumber) const {
  const HelpBook* const found = book(number);
  if (const auto page = found != nullptr ? found->findNumber(mapNumber) : std::nullopt) {
    return pageUrl(number, *page);
  }
  return withQuery(pageUrl(number), kMapNumber, QString::number(mapNumber));
}

QUrl HelpShelf::urlOfLink(int number, const QString& link) { return withQuery(pageUrl(number), kLink, link); }

bool HelpShelf::isOwn(const QUrl& url) { return url.scheme() == kScheme; }

int HelpShelf::numberOf(const QUrl& url) {
  bool isNumber = false;
  const int number = url.host().mid(1).toInt(&isNumber);
  return isOwn(url) && isNumber ? number : -1;
}

String HelpShelf::referenceOf(const QUrl& url) {
  const QString path = url.path(QUrl::FullyDecoded).mid(1);
  return fromQString(url.hasFragment() ? path + u'#' + url.fragment(QUrl::FullyDecoded) : path);
}

std::optional<Long> HelpShelf::mapNumberOf(const QUrl& url) {
  bool isNumber = false;
  const Long number = QUrlQuery(url).queryItemValue(kMapNumber).toInt(&isNumber);
  return isNumber ? std::optional(number) : std::nullopt;
}

QString HelpShelf::linkOf(const QUrl& url) {
  return QUrlQuery(url).queryItemValue(kLink, QUrl::FullyDecoded);
}

}  // namespace tessaly::qt
