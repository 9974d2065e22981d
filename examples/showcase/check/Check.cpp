#include "examples/showcase/check/Check.h"

#include <algorithm>

#include "examples/showcase/Table.h"
#include "examples/showcase/check/Findings.h"
#include "examples/support/Print.h"

namespace showcase {

using examples::textOf;
using tessaly::Long;
using tessaly::String;

namespace {

String orDash(const String& name) { return name.empty() ? u"-" : name; }

void showContent(const Screen& screen, const LoadedFile& file) {
  const auto count =
      std::count_if(file.texts.begin(), file.texts.end(), [](const String& text) { return !text.empty(); });
  const String size = file.gridFontSize == 0 ? u"" : u", " + textOf(file.gridFontSize);
  screen.line(u"Language  " + file.name + u", " + textOf(file.number));
  screen.line(u"Texts     " + textOf(static_cast<Long>(count)) + u" of " + textOf(tessaly::kStringCount));
  screen.line(u"Fonts     report: " + orDash(file.reportFontName) + u"; grid: " + orDash(file.gridFontName) +
              size + u"; mail: " + orDash(file.mailFontName));
}

void showFindings(const Screen& screen, const std::vector<Finding>& findings) {
  Table table({u"Where", u"What"});
  for (const Finding& finding : findings) table.addRow({styled(finding.where), styled(finding.what)});
  screen.line();
  table.print(screen);
}

ExitCode checkUnused(const Screen& screen, const LoadedFile& file, const FileOutline& outline) {
  showFindings(screen, reasonsAgainst(file, outline));
  screen.line();
  screen.line(u"Not used: the program stays in English.", Style::Bad);
  return NotUsed;
}

ExitCode checkUsed(const Screen& screen, const LoadedFile& file, const std::vector<Finding>& findings) {
  showContent(screen, file);
  if (!findings.empty()) showFindings(screen, findings);
  screen.line();
  if (findings.empty()) {
    screen.line(u"In order.", Style::Good);
  } else {
    screen.line(u"Used, with " + textOf(static_cast<Long>(findings.size())) + u" to look at.",
                Style::Heading);
  }
  return findings.empty() ? InOrder : WithFindings;
}

}  // namespace

ExitCode check(const Screen& screen, std::u16string_view path) {
  const LoadedFile file = loadAlone(path);
  const FileOutline outline = outlineOf(path);
  screen.line(path, Style::Heading);
  if (!isUsed(file)) return checkUnused(screen, file, outline);
  return checkUsed(screen, file, findingsIn(file, outline, path));
}

}  // namespace showcase
