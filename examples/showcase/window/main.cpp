// A host with a window: a browser of reports, with a menu, a tool bar of picture buttons, dialogs and help.

#include <algorithm>
#include <ctime>
#include <fstream>

#include "examples/showcase/Host.h"
#include "examples/showcase/Tracing.h"
#include "examples/showcase/window/OpenWindow.h"
#include "examples/showcase/window/Options.h"
#include "examples/showcase/window/Paths.h"
#include "examples/showcase/window/Road.h"
#include "examples/support/Print.h"
#include "tessaly/base/RuntimeError.h"
#include "tessaly/trace/Trace.h"

using examples::printLine;
using examples::textOf;
using showcase::Options;
using showcase::Preferences;
using showcase::Reports;
using showcase::Window;
using tessaly::CResources;
using tessaly::String;

namespace {

constexpr int kFailure = 2;
constexpr std::size_t kStepWidth = 13;

int complain(const String& fault) {
  printLine(u"showcase-window: ", fault);
  return kFailure;
}

void tellUsage() {
  printLine(u"showcase-window [--language NUMBER] [--picture FILE.png]");
  printLine(
      u"  opens the window, in the user's language or another one; with --picture it needs no display:");
  printLine(
      u"  it clicks by itself, tells what happens, and writes the window, a dialog and help as pictures");
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

/// Chooses the language that is asked for, for this time alone, or else the user's; false where there is none
/// of that number.
bool chooseLanguage(CResources& resources, const Preferences& preferences, const Options& options) {
  const auto known = showcase::languages(resources);
  if (options.language && std::find(known.begin(), known.end(), *options.language) == known.end())
    return false;
  showcase::speakAs(resources, options.language.value_or(preferences.language),
                    preferences.showsStringNumbers);
  return true;
}

struct NotWritten {
  String file;
};

void save(const tessaly::PictureReference& picture, const String& file) {
  if (picture == nullptr) return;
  const std::string bytes = tessaly::pngOf(*picture);
  std::ofstream out(showcase::pathOf(file), std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (!out) throw NotWritten{file};
}

/// "window.png" as "window-help.png".
String besides(const String& file, std::u16string_view word) {
  const std::size_t end = file.ends_with(u".png") ? file.size() - 4 : file.size();
  return file.substr(0, end).append(u"-").append(word).append(file, end);
}

void sayStep(std::u16string_view step, const String& outcome) {
  printLine(step, String(step.size() < kStepWidth ? kStepWidth - step.size() : 1, u' '), outcome);
}

String traceState() {
  if (tessaly::logger == nullptr) return u"off in the machine's settings";
  return tessaly::logger->Connected() ? u"sent to the logger, line by line" : u"on, but no logger runs";
}

/// Without a display: does by itself what a user does, and draws what he would see.
void walkAndDraw(Window& window, CResources& resources, const Preferences& preferences, const String& file) {
  const showcase::Unseen unseen(showcase::drawsHelp());
  {
    Reports reports(window, resources, preferences, showcase::reportsFolder(), timeOfDay);
    sayStep(u"window", reports.report().name() + u", " +
                           resources.resWithArg(showcase::RowsOf, reports.report().rowCount(), u""));
    const auto pictures = showcase::walk(window, reports, resources, unseen, sayStep);
    sayStep(u"trace", traceState());
    window.close();
    window.run();
    sayStep(u"closed", unseen.boxes.boxes().back().text + u" No");
    save(pictures.window, file);
    save(pictures.settings, besides(file, u"settings"));
    save(pictures.help, besides(file, u"help"));
  }
}

void openAndRun(CResources& resources, const Preferences& preferences, const String& picture, int argc,
                char** argv) {
  const auto window = showcase::openWindow(argc, argv, picture.empty());
  if (!picture.empty()) return walkAndDraw(*window, resources, preferences, picture);
  Reports reports(*window, resources, preferences, showcase::reportsFolder(), timeOfDay);
  window->run();
}

int runAs(const Options& options, int argc, char** argv) {
  tessaly::StartLogger();
  showcase::traceStep(u"Tessaly Reports begins");
  CResources resources;
  showcase::start(resources);
  const Preferences preferences = showcase::loadPreferences();
  if (!chooseLanguage(resources, preferences, options)) {
    return complain(u"There is no language " + textOf(*options.language) + u", only" + numbersOf(resources));
  }
  openAndRun(resources, preferences, options.picture, argc, argv);
  showcase::traceStep(u"Tessaly Reports ends");
  return 0;
}

}  // namespace

int main(int argc, char** argv) try {
  const Options options = showcase::optionsOf(examples::arguments(argc, argv));
  if (options.isHelpWanted || !options.fault.empty()) tellUsage();
  if (!options.fault.empty()) return complain(options.fault);
  return options.isHelpWanted ? 0 : runAs(options, argc, argv);
} catch (const NotWritten& fault) {
  return complain(u"Can't write " + fault.file);
} catch (const tessaly::RuntimeError& error) {
  return complain(u"Error " + textOf(error.number()) + u": " + tessaly::fromUtf8(error.what()) +
                  u" (start it in the project's folder)");
}
