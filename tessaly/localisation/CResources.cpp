#include "tessaly/localisation/CResources.h"

#include <algorithm>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/localisation/VariantText.h"

namespace tessaly {
namespace {

/// Puts `replacement` in the place of every `word`, from the front; what comes in is not looked at again.
void replaceAll(String& text, std::u16string_view word, std::u16string_view replacement) {
  for (auto place = text.find(word); place != String::npos;
       place = text.find(word, place + replacement.size())) {
    text.replace(place, word.size(), replacement);
  }
}

}  // namespace

CResources::CResources() : CResources(showcaseStrings) {}
CResources::CResources(const BuiltInStrings& builtIn) : builtIn_(&builtIn) {}
CResources::~CResources() = default;

String CResources::res(Long n) const {
  String text = slot(n);
  appendStringNumber(text, n);
  return text;
}

String CResources::resWithArg(Long n, const Variant& first, const Variant& second) const {
  String text = slot(n);
  replaceAll(text, u"%a1", VariantText(first).view());
  replaceAll(text, u"%a2", VariantText(second).view());
  appendStringNumber(text, n);
  return text;
}

void CResources::FillBuiltInStrings() { std::copy(builtIn_->begin(), builtIn_->end(), strings_.begin()); }

const String& CResources::slot(Long n) const {
  if (n < 0 || n >= kStringCount) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
  return strings_[static_cast<std::size_t>(n)];
}

void CResources::appendStringNumber(String& text, Long n) const {
  if (!showStringNumbers_) return;
  text += u'[';
  appendDecimal(text, n + 1);
  text += u']';
}

String CResources::reportFontName() const { return reportFontName_; }
String CResources::gridFontName() const { return gridFontName_; }
String CResources::mailFontName() const { return mailFontName_; }
Long CResources::gridFontSize() const { return gridFontSize_; }

}  // namespace tessaly
