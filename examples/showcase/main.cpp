// A host in a terminal: what its language files make of its texts.

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "examples/showcase/Host.h"
#include "examples/showcase/Sections.h"
#include "examples/showcase/Tracing.h"
#include "examples/showcase/check/Check.h"
#include "examples/support/Print.h"
#include "tessaly/trace/Trace.h"

using examples::textOf;
using showcase::Screen;
using tessaly::CResources;
using tessaly::String;

namespace {

constexpr int kFailure = 2;

int usage(int exitCode) {
  examples::write(
      u"showcase                  shows a host's texts in several languages\n"
      u"showcase --short          shows one menu alone\n"
      u"showcase --check FILE...  tells what is taken from language files, and what to look at in them;\n"
      u"                          exit code 0: in order, 1: something to look at, 2: a file is not used\n");
  return exitCode;
}

bool wantsColours() {
  const char* refused = std::getenv("NO_COLOR");
  return (refused == nullptr || *refused == '\0') && examples::hasColours();
}

/// All that it has to show, or one menu alone.
int demonstrate(const Screen& screen, bool isShort) {
  tessaly::StartLogger();
  showcase::traceStep(u"Tessaly Reports starts");
  CResources resources;
  showcase::start(resources);
  if (resources.numberOfLangs() == 0) {
    showcase::traceFault(u"There are no language files");
    screen.line(u"No language files in " + showcase::languagesFolder() +
                u": start the showcase in the project's folder.");
    return kFailure;
  }
  if (isShort) {
    showMenu(screen, resources);
    return 0;
  }
  screen.line(u"Tessaly Reports, a host that speaks", showcase::Style::Heading);
  screen.line(u"175 texts, in built-in English and in " + textOf(resources.numberOfLangs()) +
              u" language files of " + showcase::languagesFolder());
  showSettings(screen);
  showLanguages(screen, resources);
  showForms(screen, resources);
  showValues(screen, resources);
  showStringNumbers(screen, resources);
  showSampleFiles(screen);
  showcase::traceStep(u"Tessaly Reports ends");
  return 0;
}

int checkAll(const Screen& screen, const std::vector<String>& words) {
  int worst = 0;
  for (auto path = words.begin() + 1; path != words.end(); ++path) {
    if (path != words.begin() + 1) screen.line();
    worst = std::max<int>(worst, check(screen, *path));
  }
  return worst;
}

int run(const Screen& screen, const std::vector<String>& words) {
  if (words.empty()) return demonstrate(screen, false);
  if (words.size() == 1 && words.front() == u"--short") return demonstrate(screen, true);
  if (words.size() > 1 && words.front() == u"--check") return checkAll(screen, words);
  return usage(words.size() == 1 && words.front() == u"--help" ? 0 : kFailure);
}

}  // namespace

int main(int argc, char** argv) {
  const int exitCode = run(Screen(wantsColours()), examples::arguments(argc, argv));
  if (examples::finishWriting()) return exitCode;
  std::fputs("showcase: the output can't be written\n", stderr);
  return kFailure;
}
