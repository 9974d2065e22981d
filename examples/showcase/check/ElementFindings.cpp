#include "examples/showcase/check/ElementFindings.h"

#include <algorithm>
#include <map>

#include "examples/support/Print.h"

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

String stringName(Long number) { return u"String " + textOf(number); }

void checkEntry(std::vector<Finding>& findings, const FileOutline::Entry& entry) {
  const auto number = numberIn(entry.id);
  if (!entry.id) {
    findings.push_back({u"STRING", u"without an ID, and so left out: \"" + entry.value + u"\""});
  } else if (!number) {
    findings.push_back({u"ID", u"\"" + *entry.id + u"\" is no number: nothing behind it is read"});
  } else if (*number < 1 || *number > tessaly::kStringCount) {
    findings.push_back({u"ID", textOf(*number) + u" is not from 1 to 175, and so left out"});
  } else if (entry.value.empty()) {
    findings.push_back({stringName(*number), u"empty or without VALUE, and so left out"});
  }
}

void checkDoubles(std::vector<Finding>& findings, const FileOutline& outline) {
  std::map<Long, Long> counts;
  for (const FileOutline::Entry& entry : outline.strings) {
    const auto number = numberIn(entry.id);
    if (number && !entry.value.empty()) ++counts[*number];
  }
  for (const auto& [number, count] : counts) {
    if (count > 1)
      findings.push_back({stringName(number), u"given " + textOf(count) + u" times; the last one counts"});
  }
}

}  // namespace

void checkFileName(std::vector<Finding>& findings, std::u16string_view path) {
  if (!endsInXml(path)) findings.push_back({u"File", u"its name must end in .xml to be found"});
}

void checkFonts(std::vector<Finding>& findings, const LoadedFile& file) {
  if (!file.gridFontName.empty() && file.gridFontSize <= 0)
    findings.push_back({u"FONTS", u"GRIDFONTNAME needs a GRIDFONTSIZE above 0"});
}

void checkElements(std::vector<Finding>& findings, const FileOutline& outline) {
  if (outline.gridFontSize && !numberIn(outline.gridFontSize)) {
    findings.push_back(
        {u"GRIDFONTSIZE", u"\"" + *outline.gridFontSize + u"\" is no number: nothing behind it is read"});
  }
  for (const FileOutline::Entry& entry : outline.strings) checkEntry(findings, entry);
  checkDoubles(findings, outline);
}

}  // namespace showcase
