// gettext: the English text is the key. A look-up gives a pointer; the copy that follows is a host's that
// keeps the text, as with the other peers, but of UTF-8 and so of half the bytes.

#include <benchmark/benchmark.h>
#include <libintl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <ctime>

#include "bench/Workplace.h"

namespace tessaly::bench {
namespace {

std::string quoted(const std::string& text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') result += '\\';
    result += c;
  }
  return result + "\"\n";
}

std::string source() {
  const auto english = inUtf8(englishTexts());
  const auto french = inUtf8(frenchTexts());
  std::string po = "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n\"\n\n";
  for (std::size_t n = 0; n < english.size(); ++n) {
    po += "msgid " + quoted(english[n]) + "msgstr " + quoted(french[n]) + "\n";
  }
  return po;
}

/// The folder with a compiled catalogue for each domain, all with the same texts.
std::string compiled() {
  const std::filesystem::path folder = newFolder("gettext");
  const auto catalogues = newFolder("gettext/fr/LC_MESSAGES");
  writeFile(folder / "source.po", source());
  for (const std::string domain : {"looked-up", "warm", "fresh"}) {
    runTool(TESSALY_MSGFMT " -o '" + (catalogues / (domain + ".mo")).string() + "' '" +
            (folder / "source.po").string() + "'");
  }
  return folder.string();
}

void speakFrench() {
  setenv("LANGUAGE", "fr", 1);
  std::setlocale(LC_MESSAGES, "C.UTF-8");
  std::setlocale(LC_CTYPE, "C.UTF-8");
}

const std::string& folder() {
  static const std::string path = compiled();
  speakFrench();
  return path;
}

void lookUpAll(const char* domain, const std::vector<std::string>& english) {
  for (const std::string& key : english) {
    std::string text = dgettext(domain, key.c_str());
    benchmark::DoNotOptimize(text);
  }
}

bool translates(const char* domain) { return dgettext(domain, "&Cancel") == std::string_view("&Annuler"); }

void lookUp(benchmark::State& state) {
  bindtextdomain("looked-up", folder().c_str());
  const auto english = inUtf8(englishTexts());
  if (!translates("looked-up")) state.SkipWithError("gettext gives no French");
  for (auto _ : state) lookUpAll("looked-up", english);
}
BENCHMARK(lookUp)->Name("res/gettext");

double processorTime() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// The time for a domain's first look-ups, or a negative one. Another domain comes first, so that code and
/// locale are warm; its known texts also make the search a little longer, as in a host with two catalogues.
double timeOfFirstLookUps(const std::vector<std::string>& english) {
  bindtextdomain("warm", folder().c_str());
  lookUpAll("warm", english);
  const double begin = processorTime();
  bindtextdomain("fresh", folder().c_str());
  lookUpAll("fresh", english);
  const double end = processorTime();
  return translates("fresh") ? end - begin : -1;
}

/// In a process of its own: gettext keeps what it has found until the process ends, in one tree for all.
double timeInChild(const std::vector<std::string>& english) {
  int ends[2];
  double time = -1;
  if (pipe(ends) != 0) return time;
  const pid_t child = fork();
  if (child == 0) {
    time = timeOfFirstLookUps(english);
    _exit(write(ends[1], &time, sizeof time) == sizeof time ? 0 : 1);
  }
  close(ends[1]);
  if (read(ends[0], &time, sizeof time) != sizeof time) time = -1;
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return time;
}

void firstLookUps(benchmark::State& state) {
  const auto english = inUtf8(englishTexts());
  folder();
  for (auto _ : state) {
    const double time = timeInChild(english);
    if (time < 0) state.SkipWithError("gettext gives no French");
    state.SetIterationTime(time);
  }
}
BENCHMARK(firstLookUps)->Name("load/gettext, first look-ups")->UseManualTime()->Iterations(200);

}  // namespace
}  // namespace tessaly::bench
