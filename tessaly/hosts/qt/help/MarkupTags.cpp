#include "tessaly/hosts/qt/help/MarkupTags.h"

#include <algorithm>

#include "tessaly/base/Ascii.h"

namespace tessaly::qt {
namespace {

constexpr std::u16string_view kBlanks = u" \t\r\n\f";

bool isQuote(char16_t unit) { return unit == u'"' || unit == u'\''; }

/// Takes attribute after attribute off the front of what stands in a tag.
class Attributes {
 public:
  explicit Attributes(std::u16string_view rest) : rest_(rest) {}

  bool next() {
    skip(u" \t\r\n\f/=");
    if (rest_.empty()) return false;
    name = take(rest_.find_first_of(u" \t\r\n\f/="));
    // A quote that stands alone begins no value, and must not keep this from going on.
    if (name.empty()) name = take(1);
    value = {};
    skip(kBlanks);
    if (!rest_.starts_with(u'=')) return true;
    rest_.remove_prefix(1);
    skip(kBlanks);
    takeValue();
    return true;
  }

  std::u16string_view name;
  std::u16string_view value;

 private:
  void skip(std::u16string_view units) {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(units), rest_.size()));
  }

  std::u16string_view take(std::size_t count) {
    const std::u16string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  void takeValue() {
    if (rest_.empty() || !isQuote(rest_.front())) {
      value = take(rest_.find_first_of(kBlanks));
      return;
    }
    const char16_t quote = take(1).front();
    value = take(rest_.find(quote));
    if (!rest_.empty()) rest_.remove_prefix(1);
  }

  std::u16string_view rest_;
};

}  // namespace

std::optional<String> MarkupTag::attribute(std::u16string_view attributeName) const {
  for (Attributes attributes(rest); attributes.next();) {
    if (asciiLowerText(attributes.name) == attributeName) return withoutEntities(attributes.value);
  }
  return {};
}

/// What no longer comes is looked for once only, or a text made for it would be searched again and again.
std::size_t MarkupTags::closing(char16_t quote, std::size_t from) {
  bool& isUsedUp = areQuotesUsedUp_.at(quote == u'"' ? 0 : 1);
  const std::size_t end = isUsedUp ? String::npos : text_.find(quote, from);
  isUsedUp = end == String::npos;
  return end;
}

/// A '>' in quotes is part of a value, unless the quote never ends.
std::size_t MarkupTags::endOfTag(std::size_t start) {
  std::size_t at = start;
  while ((at = text_.find_first_of(u">\"'", at)) != String::npos && text_[at] != u'>') {
    const std::size_t end = closing(text_[at], at + 1);
    at = (end == String::npos ? at : end) + 1;
  }
  return at;
}

bool MarkupTags::passComment(std::size_t start) {
  if (!text_.substr(start).starts_with(u"!--") || areCommentsUsedUp_) return false;
  const std::size_t end = text_.find(u"-->", start);
  areCommentsUsedUp_ = end == String::npos;
  if (end != String::npos) at_ = end + 3;
  return end != String::npos;
}

std::optional<MarkupTag> MarkupTags::next() {
  while ((at_ = text_.find(u'<', at_)) != String::npos) {
    const std::size_t start = at_ + 1;
    if (passComment(start)) continue;
    const std::size_t end = endOfTag(start);
    if (end == String::npos) break;
    const std::u16string_view tag = text_.substr(start, end - start);
    at_ = end + 1;
    const std::size_t behindName = std::min(tag.find_first_of(kBlanks), tag.size());
    return MarkupTag{asciiLowerText(tag.substr(0, behindName)), tag.substr(behindName)};
  }
  at_ = text_.size();
  return {};
}

}  // namespace tessaly::qt
