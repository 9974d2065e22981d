#include "examples/showcase/check/TextFindings.h"

#include <array>

#include "examples/showcase/CodePoints.h"
#include "examples/support/Print.h"

namespace showcase {

using examples::textOf;
using tessaly::Long;
using tessaly::String;

namespace {

constexpr std::size_t kLongest = 256;

bool has(std::u16string_view text, std::u16string_view word) { return text.find(word) != String::npos; }

/// How many letters of a text an accelerator key underlines; a doubled mark is one that is to be seen.
Long accelerators(std::u16string_view text) {
  Long count = 0;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != u'&') continue;
    if (text[++i] != u'&') ++count;
  }
  return count;
}

String timesWritten(Long count) { return count == 0 ? u"none" : textOf(count); }

void checkPlaceholder(std::vector<Finding>& findings, const String& where, std::u16string_view text,
                      std::u16string_view english, std::u16string_view placeholder) {
  if (has(english, placeholder) == has(text, placeholder)) return;
  const String name(placeholder);
  findings.push_back({where, has(text, placeholder) ? name + u" stands here but not in the English text"
                                                    : name + u" is missing, which the English text has"});
}

void checkText(std::vector<Finding>& findings, const String& where, std::u16string_view text,
               std::u16string_view english) {
  checkPlaceholder(findings, where, text, english, u"%a1");
  checkPlaceholder(findings, where, text, english, u"%a2");
  if (accelerators(text) != accelerators(english)) {
    findings.push_back({where, u"accelerator marks: " + timesWritten(accelerators(text)) +
                                   u", the English text has " + timesWritten(accelerators(english))});
  }
  if (text.size() > kLongest) {
    findings.push_back(
        {where, textOf(static_cast<Long>(text.size())) + u" characters; forms are made for 256 at most"});
  }
}

String range(Long first, Long last) {
  return first == last ? textOf(first) : textOf(first) + u" to " + textOf(last);
}

String missingNumbers(const LoadedFile& file) {
  String numbers;
  Long firstMissing = 0;
  for (Long number = 1; number <= tessaly::kStringCount + 1; ++number) {
    const bool missing =
        number <= tessaly::kStringCount && file.texts[static_cast<std::size_t>(number - 1)].empty();
    if (missing && firstMissing == 0) firstMissing = number;
    if (missing || firstMissing == 0) continue;
    numbers += (numbers.empty() ? u"" : u", ") + range(firstMissing, number - 1);
    firstMissing = 0;
  }
  return numbers;
}

}  // namespace

void checkTexts(std::vector<Finding>& findings, const LoadedFile& file) {
  for (std::size_t n = 0; n < file.texts.size(); ++n) {
    const String& text = file.texts[n];
    const String where = u"String " + textOf(static_cast<Long>(n + 1));
    if (!text.empty()) checkText(findings, where, text, tessaly::showcaseStrings[n]);
  }
  const String missing = missingNumbers(file);
  if (!missing.empty()) findings.push_back({u"Missing", missing});
}

}  // namespace showcase
