#include "examples/showcase/check/Findings.h"

#include <algorithm>

#include "examples/showcase/Host.h"
#include "examples/showcase/check/ElementFindings.h"
#include "examples/showcase/check/TextFindings.h"

namespace showcase {

using tessaly::String;

namespace {

String orNothing(const std::optional<String>& text) { return text ? u"\"" + *text + u"\"" : u"missing"; }

/// What was not reached before reading ended is not known to be missing.
void checkHeader(std::vector<Finding>& findings, const FileOutline& outline) {
  if (!outline.headerIsWhole) return checkEnd(findings, outline);
  const FileOutline::Header& header = outline.header;
  const auto expect = [&](bool right, std::u16string_view element, std::u16string_view what) {
    if (!right) findings.push_back({String(element), String(what)});
  };
  expect(header.guid == String(kApplicationGUID), u"GUID",
         orNothing(header.guid) + u"; it must be \"" + String(kApplicationGUID) + u"\"");
  expect(header.lang && !header.lang->empty(), u"LANG",
         orNothing(header.lang) + u"; it must name the language");
  expect(header.langId && numberIn(*header.langId) != 0, u"LANGID",
         orNothing(header.langId) + u"; it must be a number other than 0");
}

}  // namespace

bool isUsed(const LoadedFile& file) {
  return std::any_of(file.texts.begin(), file.texts.end(), [](const String& text) { return !text.empty(); });
}

std::vector<Finding> reasonsAgainst(const LoadedFile& file, const FileOutline& outline) {
  if (!file.readable) return {{u"File", u"missing, or not to be read"}};
  if (!outline.wellFormed) return {{u"File", u"not well-formed, as an XML parser tells"}};
  if (!outline.hasGeneral) return {{u"GENERAL", u"missing below the root element"}};
  std::vector<Finding> findings;
  checkHeader(findings, outline);
  if (findings.empty()) {
    checkElements(findings, outline);
    findings.push_back({u"File", u"it gives none of the texts"});
  }
  return findings;
}

std::vector<Finding> findingsIn(const LoadedFile& file, const FileOutline& outline,
                                std::u16string_view path) {
  std::vector<Finding> findings;
  checkFileName(findings, path);
  checkFonts(findings, file);
  checkElements(findings, outline);
  checkTexts(findings, file);
  return findings;
}

}  // namespace showcase
