// spdlog, with its own form of line: into a file with a flush after each line, and with the level off.

#include <benchmark/benchmark.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>

#include "bench/Folder.h"
#include "bench/RoundTrips.h"

namespace tessaly::bench {
namespace {

std::shared_ptr<spdlog::logger> loggerTo(const std::string& file) {
  const auto sink =
      std::make_shared<spdlog::sinks::basic_file_sink_mt>((newFolder("spdlog") / file).string());
  return std::make_shared<spdlog::logger>("bench", sink);
}

LineSender open() {
  const auto logger = loggerTo("log");
  logger->flush_on(spdlog::level::info);
  return {[logger] { logger->info(kLine); }, {}};
}

void logNowhere(benchmark::State& state) {
  const auto logger = loggerTo("nothing");
  logger->set_level(spdlog::level::off);
  for (auto _ : state) {
    logger->info("Opened the document, 3 pages, 17 fields");
    benchmark::ClobberMemory();
  }
}

bool addAll() {
  addLineSender("spdlog to a file, with flush", &open);
  benchmark::RegisterBenchmark("a line to nowhere/spdlog, level off", &logNowhere);
  return true;
}
const bool added = addAll();

}  // namespace
}  // namespace tessaly::bench
