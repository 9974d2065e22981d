#include "tessaly/hosts/qt/help/PageText.h"

#include <QRegularExpression>
#include <QStringDecoder>
#include <algorithm>

#include "tessaly/hosts/qt/Text.h"
#include "tessaly/hosts/qt/help/HelpText.h"
#include "tessaly/hosts/qt/help/MarkupTags.h"
#include "tessaly/platform/Core.h"

namespace tessaly::qt {
namespace {

constexpr int kLongestPage = 8 << 20;
constexpr int kDeepestTag = 2000;

/// Each table within another doubles the time of the layout.
constexpr int kDeepestTable = 10;
constexpr int kMostTableCost = 50'000;

bool hasMark(const std::string& bytes) {
  return bytes.starts_with("\xEF\xBB\xBF") || bytes.starts_with("\xFF\xFE");
}

std::u16string_view viewOf(const QString& text) {
  return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

/// Tags that most pages leave open, and that end by themselves.
bool isOpenByHabit(const String& name) {
  return name == u"p" || name == u"li" || name == u"br" || name == u"img" || name == u"hr" ||
         name == u"meta" || name == u"link" || name == u"param" || name == u"input" ||
         name.starts_with(u'!') || name == u"td" || name == u"th" || name == u"tr" || name == u"dt" ||
         name == u"dd" || name == u"option";
}

}  // namespace

QString pageText(const std::string& bytes, Long codePage) {
  const std::string encoding = hasMark(bytes) ? std::string() : declaredEncoding(bytes);
  if (encoding.empty()) return toQString(helpText(bytes, codePage));
  if (const auto declared = codePageOf(encoding)) {
    return toQString(platform::core().locale->MultiByteToWideChar(*declared, bytes));
  }
  QStringDecoder decoder(encoding.c_str());
  if (!decoder.isValid()) return toQString(helpText(bytes, codePage));
  return decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

bool isFitToShow(const QString& html) {
  if (html.size() > kLongestPage) return false;
  int depth = 0;
  int tables = 0;
  int cost = 0;
  MarkupTags tags(viewOf(html));
  while (const auto tag = tags.next()) {
    if (isOpenByHabit(tag->name)) continue;
    const int step = tag->name.starts_with(u'/') ? -1 : 1;
    depth = std::max(depth + step, 0);
    if (tag->name == u"table" || tag->name == u"/table") tables = std::max(tables + step, 0);
    if (depth > kDeepestTag || tables > kDeepestTable) return false;
    if (tag->name == u"table") cost += 1 << tables;
    if (cost > kMostTableCost) return false;
  }
  return true;
}

QString withTypedStyles(QString html) {
  static const QRegularExpression kUntyped(
      QStringLiteral("<link\\s(?![^<>]{0,500}\\btype\\s*=)(?=[^<>]{0,500}\\brel\\s*=\\s*[\"']?stylesheet)"),
      QRegularExpression::CaseInsensitiveOption);
  return html.replace(kUntyped, QStringLiteral("<link type=\"text/css\" "));
}

bool readsFromTheRight(const QString& html) {
  constexpr int kHead = 20;
  MarkupTags tags(viewOf(html));
  for (int count = 0; count < kHead; ++count) {
    const auto tag = tags.next();
    if (!tag) return false;
    if (tag->name != u"html" && tag->name != u"body") continue;
    const String direction = tag->attribute(u"dir").value_or(String());
    if (direction == u"rtl" || direction == u"RTL") return true;
  }
  return false;
}

}  // namespace tessaly::qt
