#include "tessaly/localisation/CResources.h"

#include <algorithm>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/localisation/VariantText.h"

namespace tessaly {
namespace {

// For literals whose length is known when they are compiled: g++ counts that of a plain u"" each time.
using namespace std::string_view_literals;

/// Where `word` stands at `from` or later, or the text's length. The string's own search goes in single
/// steps, which here costs half as much again.
std::size_t find(std::u16string_view text, std::u16string_view word, std::size_t from) {
  const std::u16string_view rest = text.substr(from);
  return from + static_cast<std::size_t>(std::distance(
                    rest.begin(), std::search(rest.begin(), rest.end(), word.begin(), word.end())));
}

/// Puts `replacement` in the place of every `word`, from the front; what comes in is not looked at again.
void replaceAll(String& text, std::u16string_view word, std::u16string_view replacement) {
  std::size_t place = find(text, word, 0);
  if (place == text.size()) return;
  if (find(text, word, place + word.size()) == text.size()) {
    text.replace(place, word.size(), replacement);
    return;
  }
  // More than one: a text from a file may have any number, and moving its rest for each would never end.
  String result;
  result.reserve(text.size() + replacement.size());
  std::size_t from = 0;
  for (; place != text.size(); place = find(text, word, from)) {
    result.append(text, from, place - from).append(replacement);
    from = place + word.size();
  }
  result.append(text, from);
  text = std::move(result);
}

String withStringNumber(String text, Long n) { return std::move(text) + u'[' + decimal(n + 1) + u']'; }

}  // namespace

CResources::CResources() : CResources(showcaseStrings) {}
CResources::CResources(const BuiltInStrings& builtIn) : builtIn_(&builtIn) {}
CResources::~CResources() = default;

String CResources::res(Long n) const {
  if (showStringNumbers_) [[unlikely]]
    return withStringNumber(slot(n), n);
  return slot(n);
}

String CResources::resWithArg(Long n, const Variant& first, const Variant& second) const {
  String text = slot(n);
  replaceAll(text, u"%a1"sv, VariantText(first).view());
  replaceAll(text, u"%a2"sv, VariantText(second).view());
  if (showStringNumbers_) [[unlikely]]
    text = withStringNumber(std::move(text), n);
  return text;
}

void CResources::FillBuiltInStrings() { std::copy(builtIn_->begin(), builtIn_->end(), strings_.begin()); }

const String& CResources::slot(Long n) const {
  if (n < 0 || n >= kStringCount) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
  return strings_[static_cast<std::size_t>(n)];
}

String CResources::reportFontName() const { return reportFontName_; }
String CResources::gridFontName() const { return gridFontName_; }
String CResources::mailFontName() const { return mailFontName_; }
Long CResources::gridFontSize() const { return gridFontSize_; }

}  // namespace tessaly
