#include "bench/OtherProcess.h"

#include <poll.h>
#include <unistd.h>

#include <cstdio>
#include <map>
#include <string>

#include "bench/Folder.h"

namespace tessaly::bench {
namespace {

constexpr int kBetweenWrites = 100;
constexpr std::string_view kMode = "--write-to";

std::map<std::string, Writer, std::less<>>& writers() {
  static std::map<std::string, Writer, std::less<>> all;
  return all;
}

std::string shellWord(std::string_view text) { return " '" + std::string(text) + "'"; }

/// Whoever started this process reads its output until it shall end.
bool isWantedAfterAWhile() {
  pollfd output{STDOUT_FILENO, 0, 0};
  return poll(&output, 1, kBetweenWrites) == 0;
}

void tellThatItWrites() {
  std::puts("writing");
  std::fflush(stdout);
}

void write(const Writer& writer, const Store& store) {
  int asked = 0;
  writer(store, [&asked] {
    ++asked;
    if (asked == 2) tellThatItWrites();
    return asked == 1 || isWantedAfterAWhile();
  });
}

}  // namespace

void addWriter(std::string_view kind, Writer writer) { writers()[std::string(kind)] = std::move(writer); }

OtherProcess::OtherProcess(std::string_view kind, const Store& store) {
  const std::string program = shellWord(std::filesystem::read_symlink("/proc/self/exe").string());
  const std::string command = "exec" + program + shellWord(kMode) + shellWord(temporaryFolder().string()) +
                              shellWord(kind) + shellWord(store.name);
  // NOLINTNEXTLINE(cert-env33-c): the names in the command are this program's own.
  output_.reset(popen(command.c_str(), "re"));
  if (output_ == nullptr || std::fgetc(output_.get()) == EOF) fail("no other process: " + command);
}

bool runAsWriter(int argc, char** argv) {
  if (argc != 5 || argv[1] != kMode) return false;
  useTemporaryFolder(argv[2]);
  const auto writer = writers().find(std::string_view(argv[3]));
  if (writer == writers().end()) fail("nobody writes to " + std::string(argv[3]));
  write(writer->second, argv[4] == kFew.name ? kFew : kMany);
  return true;
}

}  // namespace tessaly::bench
