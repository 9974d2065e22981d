#include <algorithm>
#include <array>

#include "tessaly/base/Ascii.h"
#include "tessaly/hosts/qt/help/MarkupTags.h"

namespace tessaly::qt {
namespace {

constexpr std::size_t kLongestEntity = 10;

struct NamedUnit {
  std::u16string_view name;
  char16_t unit;
};

/// Those that titles have.
constexpr std::array kNamed{
    NamedUnit{u"amp", u'&'},        NamedUnit{u"lt", u'<'},          NamedUnit{u"gt", u'>'},
    NamedUnit{u"quot", u'"'},       NamedUnit{u"apos", u'\''},       NamedUnit{u"nbsp", u'\u00A0'},
    NamedUnit{u"copy", u'\u00A9'},  NamedUnit{u"reg", u'\u00AE'},    NamedUnit{u"trade", u'\u2122'},
    NamedUnit{u"ndash", u'\u2013'}, NamedUnit{u"mdash", u'\u2014'},  NamedUnit{u"hellip", u'\u2026'},
    NamedUnit{u"auml", u'\u00E4'},  NamedUnit{u"ouml", u'\u00F6'},   NamedUnit{u"uuml", u'\u00FC'},
    NamedUnit{u"Auml", u'\u00C4'},  NamedUnit{u"Ouml", u'\u00D6'},   NamedUnit{u"Uuml", u'\u00DC'},
    NamedUnit{u"szlig", u'\u00DF'}, NamedUnit{u"eacute", u'\u00E9'}, NamedUnit{u"egrave", u'\u00E8'}};

String characterOf(std::u16string_view digits, unsigned base) {
  char32_t code = 0;
  for (const char16_t unit : digits) {
    if (hexDigitValue(unit) >= base || code > 0x10FFFF) return {};
    code = code * base + hexDigitValue(unit);
  }
  const bool isSurrogate = code >= 0xD800 && code < 0xE000;
  if (digits.empty() || code == 0 || code > 0x10FFFF || isSurrogate) return {};
  if (code < 0x10000) return {static_cast<char16_t>(code)};
  code -= 0x10000;
  return {static_cast<char16_t>(0xD800 + (code >> 10U)), static_cast<char16_t>(0xDC00 + (code & 0x3FFU))};
}

/// What stands between '&' and ';'; empty where that is nothing known.
String entityValue(std::u16string_view entity) {
  if (entity.starts_with(u"#x") || entity.starts_with(u"#X")) return characterOf(entity.substr(2), 16);
  if (entity.starts_with(u'#')) return characterOf(entity.substr(1), 10);
  const auto* const named =
      std::find_if(kNamed.begin(), kNamed.end(), [&](const NamedUnit& n) { return n.name == entity; });
  return named == kNamed.end() ? String() : String{named->unit};
}

}  // namespace

String withoutEntities(std::u16string_view text) {
  String plain;
  while (!text.empty()) {
    const std::size_t start = std::min(text.find(u'&'), text.size());
    plain += text.substr(0, start);
    text.remove_prefix(start);
    const std::size_t end = text.substr(0, kLongestEntity).find(u';');
    const String value = end == String::npos ? String() : entityValue(text.substr(1, end - 1));
    plain += value.empty() ? String(text.substr(0, 1)) : value;
    text.remove_prefix(value.empty() ? std::min<std::size_t>(1, text.size()) : end + 1);
  }
  return plain;
}

}  // namespace tessaly::qt
