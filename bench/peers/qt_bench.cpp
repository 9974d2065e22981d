// Qt: the English text is the key, what comes out is a QString that owns its characters.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

#include "bench/Workplace.h"

namespace tessaly::bench {
namespace {

constexpr const char* kContext = "showcase";

/// Qt's translators hang on it.
void needApplication() {
  static int argc = 1;
  static std::string name = "localisation-bench";
  static char* argv[] = {name.data(), nullptr};
  static const QCoreApplication application(argc, argv);
}

QString escaped(const String& text) { return QString::fromStdU16String(text).toHtmlEscaped(); }

QString compiled() {
  const std::filesystem::path folder = newFolder("qt");
  QString ts =
      R"(<!DOCTYPE TS><TS version="2.1" language="fr"><context><name>)" + QString(kContext) + "</name>";
  for (std::size_t n = 0; n < englishTexts().size(); ++n) {
    ts += "<message><source>" + escaped(englishTexts()[n]) + "</source><translation>" +
          escaped(frenchTexts()[n]) + "</translation></message>\n";
  }
  writeFile(folder / "fr.ts", (ts + "</context></TS>\n").toStdString());
  const std::string compiledFile = (folder / "fr.qm").string();
  runTool(TESSALY_LRELEASE " -silent '" + (folder / "fr.ts").string() + "' -qm '" + compiledFile + "'");
  return QString::fromStdString(compiledFile);
}

const QString& compiledFile() {
  static const QString file = compiled();
  return file;
}

void lookUp(benchmark::State& state) {
  needApplication();
  QTranslator translator;
  if (!translator.load(compiledFile()) || !QCoreApplication::installTranslator(&translator))
    state.SkipWithError("Qt gives no French");
  const auto english = inUtf8(englishTexts());
  for (auto _ : state) {
    for (const std::string& key : english) {
      QString text = QCoreApplication::translate(kContext, key.c_str());
      benchmark::DoNotOptimize(text);
    }
  }
  if (QCoreApplication::translate(kContext, "&Cancel") != "&Annuler") state.SkipWithError("not French");
}
BENCHMARK(lookUp)->Name("res/Qt translate");

void load(benchmark::State& state) {
  const QString& file = compiledFile();
  const auto english = inUtf8(englishTexts());
  for (auto _ : state) {
    QTranslator translator;
    if (!translator.load(file)) state.SkipWithError("Qt gives no French");
    for (const std::string& key : english) {
      QString text = translator.translate(kContext, key.c_str());
      benchmark::DoNotOptimize(text);
    }
  }
}
BENCHMARK(load)->Name("load/QTranslator, 175 look-ups");

void numbers(benchmark::State& state) {
  const QString pattern = "Page %1 sur %2";
  int page = 3;
  int pages = 9;
  benchmark::DoNotOptimize(page);
  benchmark::DoNotOptimize(pages);
  for (auto _ : state) {
    QString text = pattern.arg(page).arg(pages);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(numbers)->Name("resWithArg, numbers/QString::arg");

void texts(benchmark::State& state) {
  QString pattern = QString::fromStdU16String(frenchTexts()[157]);
  pattern.replace("%a", "%");
  const QString file = "Quarterly.report";
  const QString reason = "access denied";
  for (auto _ : state) {
    QString text = pattern.arg(file, reason);
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(texts)->Name("resWithArg, texts/QString::arg");

}  // namespace
}  // namespace tessaly::bench
