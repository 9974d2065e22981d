#include "tools/tessaly-reg/RegText.h"

#include "tools/support/Hex.h"
#include "tools/support/Visible.h"
#include "tools/tessaly-reg/RegEncoding.h"
#include "tools/tessaly-reg/ValueText.h"

namespace tessaly::reg {
namespace {

using platform::KeyValue;

// Lines of bytes end where Windows ends them.
constexpr std::size_t kWidestLine = 77;
constexpr std::size_t kWidthOfByte = 3;

String hexPrefix(platform::RegistryType type) {
  return type == platform::kBinary ? String(u"hex:")
                                   : u"hex(" + tools::hexDigits(type, 1, tools::HexLetters::Small) + u"):";
}

std::uint32_t numberOf(std::string_view bytes) {
  std::uint32_t number = 0;
  for (std::size_t i = bytes.size(); i-- > 0;) number = (number << 8U) | static_cast<unsigned char>(bytes[i]);
  return number;
}

bool holdsAny(std::u16string_view text, std::u16string_view units) {
  return text.find_first_of(units) != std::u16string_view::npos;
}

constexpr std::u16string_view kNul(u"\0", 1);
constexpr std::u16string_view kNotInKeys(u"\0\r\n", 3);

}  // namespace

bool needsBytes(std::u16string_view text) {
  for (std::size_t tab = text.find(u'\t'); tab != std::u16string_view::npos; tab = text.find(u'\t')) {
    if (!tools::isShowable(text.substr(0, tab))) return true;
    text.remove_prefix(tab + 1);
  }
  return !tools::isShowable(text);
}

RegText::RegText(std::u16string_view lineEnd) : lineEnd_(lineEnd) {
  text_ = u"Windows Registry Editor Version 5.00";
  text_ += lineEnd_;
}

bool RegText::key(std::u16string_view name) {
  if (holdsAny(name, kNotInKeys)) return false;
  text_ += lineEnd_;
  text_ += u'[';
  text_ += name;
  text_ += u']';
  text_ += lineEnd_;
  return true;
}

bool RegText::value(const platform::NamedValue& value) {
  if (holdsAny(value.name, kNul)) return false;
  lineBegin_ = text_.size();
  if (value.name.empty()) {
    text_ += u'@';
  } else {
    plain(value.name);
  }
  text_ += u'=';
  data(value.value);
  text_ += lineEnd_;
  return true;
}

String RegText::finish() {
  text_ += lineEnd_;
  return std::move(text_);
}

void RegText::data(const KeyValue& value) {
  if (value.type == platform::kText && !needsBytes(withoutNul(value.text))) {
    plain(withoutNul(value.text));
  } else if (value.type == platform::kNumber && value.bytes.size() == sizeof(std::uint32_t)) {
    text_ += u"dword:" + tools::hexDigits(numberOf(value.bytes), 8, tools::HexLetters::Small);
  } else {
    hex(hexPrefix(value.type), value.isText() ? bytesOf(value.text) : value.bytes);
  }
}

void RegText::plain(std::u16string_view text) {
  text_ += u'"';
  for (const char16_t unit : text) {
    if (unit == u'"' || unit == u'\\') text_ += u'\\';
    text_ += unit;
  }
  text_ += u'"';
}

void RegText::hex(std::u16string_view prefix, std::string_view bytes) {
  text_ += prefix;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i != 0) text_ += u',';
    if (i != 0 && text_.size() - lineBegin_ + kWidthOfByte > kWidestLine) {
      text_ += u'\\';
      text_ += lineEnd_;
      lineBegin_ = text_.size();
      text_ += u"  ";
    }
    text_ += tools::hexDigits(static_cast<unsigned char>(bytes[i]), 2, tools::HexLetters::Small);
  }
}

}  // namespace tessaly::reg
