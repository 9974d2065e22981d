// A host with a window: a tool bar of picture buttons, and a list of what they tell.

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>

#include "examples/showcase/Host.h"
#include "examples/showcase/Tracing.h"
#include "examples/showcase/window/OpenWindow.h"
#include "examples/showcase/window/Options.h"
#include "examples/showcase/window/Road.h"
#include "examples/support/Print.h"
#include "tessaly/base/RuntimeError.h"
#include "tessaly/trace/Trace.h"

using examples::printLine;
using examples::textOf;
using showcase::Options;
using showcase::Reports;
using showcase::Window;
using tessaly::CResources;
using tessaly::String;

namespace {

constexpr int kFailure = 2;

int complain(const String& fault) {
  printLine(u"showcase-window: ", fault);
  return kFailure;
}

int usage(const String& fault) {
  printLine(u"showcase-window [--language NUMBER] [--picture FILE.png]");
  printLine(
      u"  opens the window, in the user's language or another one; with --picture it needs no display:");
  printLine(u"  it clicks by itself, tells what happens, and writes the window as a picture");
  return complain(fault);
}

String timeOfDay() {
  const std::time_t now = std::time(nullptr);
  char text[16] = {};
  const std::size_t length = std::strftime(text, sizeof text, "%H:%M:%S", std::localtime(&now));
  return tessaly::fromUtf8({text, length});
}

String numbersOf(CResources& resources) {
  String list;
  for (const tessaly::Long id : showcase::languages(resources)) list.append(u" ").append(textOf(id));
  return list;
}

/// Chooses the language that is asked for; false where there is none of that number.
bool chooseLanguage(CResources& resources, const Options& options) {
  if (!options.language) {
    resources.SetDefaultLang();
    return true;
  }
  const auto known = showcase::languages(resources);
  if (std::find(known.begin(), known.end(), *options.language) == known.end()) return false;
  resources.lang(*options.language);
  return true;
}

int save(const tessaly::Picture& picture, const String& file) {
  const std::string bytes = tessaly::pngOf(picture);
  // What is no text in a name becomes U+FFFD, since a path would refuse it.
  const std::filesystem::path path(tessaly::fromUtf8(tessaly::toUtf8(file)));
  std::ofstream out(path, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  return out ? 0 : complain(u"Can't write " + file);
}

int walkAndDraw(Window& window, Reports& reports, const String& file) {
  walk(window, reports);
  for (const showcase::Event& event : reports.events()) {
    printLine(event.cells[1], u"  ", event.cells[2], event.isMinor ? u"" : u"  ", event.cells[3]);
  }
  window.point(reports.button(showcase::Tool::On));
  return save(*window.picture(), file);
}

int openAndRun(CResources& resources, const String& picture, int argc, char** argv) {
  const auto window = showcase::openWindow(argc, argv, picture.empty());
  Reports reports(*window, resources, timeOfDay);
  if (!picture.empty()) return walkAndDraw(*window, reports, picture);
  window->run();
  return 0;
}

int runAs(const Options& options, int argc, char** argv) {
  tessaly::StartLogger();
  showcase::traceStep(u"Tessaly Reports opens its window");
  CResources resources;
  showcase::start(resources);
  if (!chooseLanguage(resources, options)) {
    return complain(u"There is no language " + textOf(*options.language) + u", only" + numbersOf(resources));
  }
  const int exitCode = openAndRun(resources, options.picture, argc, argv);
  showcase::traceStep(u"Tessaly Reports closes its window");
  return exitCode;
}

}  // namespace

int main(int argc, char** argv) try {
  const Options options = showcase::optionsOf(examples::arguments(argc, argv));
  if (!options.fault.empty()) return usage(options.fault);
  return runAs(options, argc, argv);
} catch (const tessaly::RuntimeError& error) {
  return complain(u"Error " + textOf(error.number()) + u": " + tessaly::fromUtf8(error.what()) +
                  u" (start it in the project's folder)");
}
