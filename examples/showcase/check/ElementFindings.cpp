#include "examples/showcase/check/ElementFindings.h"

#include <algorithm>
#include <map>

#include "examples/support/Print.h"
#include "tessaly/platform/Core.h"

namespace showcase {

using examples::textOf;
using tessaly::Long;
using tessaly::String;

namespace {

bool endsInXml(std::u16string_view path) {
  constexpr std::u16string_view kEnding = u".xml";
  if (path.size() < kEnding.size()) return false;
  return std::equal(
      kEnding.begin(), kEnding.end(), path.end() - kEnding.size(),
      [](char16_t lower, char16_t c) { return c == lower || (c != u'.' && c + 0x20 == lower); });
}

bool beginsWithADot(std::u16string_view path) {
  const String separators = {u'/', tessaly::platform::core().files->separator()};
  // Without a separator the place is npos, and the one behind it 0.
  return path.substr(path.find_last_of(separators) + 1).starts_with(u'.');
}

String stringName(Long number) { return u"String " + textOf(number); }

void checkEntry(std::vector<Finding>& findings, const FileOutline::Entry& entry) {
  const auto number = entry.id;
  if (!number) {
    findings.push_back({u"STRING", u"without an ID, and so left out: \"" + entry.value + u"\""});
  } else if (*number < 1 || *number > tessaly::kStringCount) {
    findings.push_back({u"ID", textOf(*number) + u" is not from 1 to 175, and so left out"});
  } else if (entry.value.empty()) {
    findings.push_back({stringName(*number), u"empty or without VALUE, and so left out"});
  }
}

void checkDoubles(std::vector<Finding>& findings, const FileOutline& outline) {
  std::map<Long, Long> counts;
  for (const FileOutline::Entry& entry : outline.strings) {
    if (entry.id && !entry.value.empty()) ++counts[*entry.id];
  }
  for (const auto& [number, count] : counts) {
    if (count > 1)
      findings.push_back({stringName(number), u"given " + textOf(count) + u" times; the last one counts"});
  }
}

}  // namespace

void checkFileName(std::vector<Finding>& findings, std::u16string_view path) {
  if (beginsWithADot(path))
    findings.push_back(
        {u"File", u"hidden, as its name begins with a dot: the list of languages leaves it out"});
  if (!endsInXml(path)) findings.push_back({u"File", u"its name must end in .xml to be found"});
}

void checkEnd(std::vector<Finding>& findings, const FileOutline& outline) {
  if (!outline.end) return;
  const auto& [name, text] = *outline.end;
  findings.push_back({name, u"\"" + text + u"\" is no number of 32 bits: nothing behind it is read"});
}

void checkFonts(std::vector<Finding>& findings, const LoadedFile& file) {
  if (!file.gridFontName.empty() && file.gridFontSize <= 0)
    findings.push_back({u"FONTS", u"GRIDFONTNAME needs a GRIDFONTSIZE above 0"});
}

void checkElements(std::vector<Finding>& findings, const FileOutline& outline) {
  for (const FileOutline::Entry& entry : outline.strings) checkEntry(findings, entry);
  checkEnd(findings, outline);
  checkDoubles(findings, outline);
}

}  // namespace showcase
