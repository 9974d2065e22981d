// Clients in processes of their own send numbered lines to a running logger, as fast as they can, and their
// logs are compared with what was sent. Exits with 1 where lines are missing that nothing explains.

#include <charconv>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#include "tests/soak/SoakClients.h"
#include "tests/soak/SoakTally.h"

namespace tessaly::soak {
namespace {

constexpr unsigned kMostClients = 9;

struct Arguments {
  std::filesystem::path folder;
  unsigned clients = 0;
  Amount amount;
};

std::optional<unsigned> number(std::string_view text) {
  unsigned result = 0;
  const auto [behind, error] = std::from_chars(text.data(), text.data() + text.size(), result);
  return error == std::errc() && behind == text.data() + text.size() ? std::optional(result) : std::nullopt;
}

std::optional<Arguments> readArguments(int argc, char** argv) {
  if (argc != 5 && argc != 6) return std::nullopt;
  const auto clients = number(argv[2]);
  const auto amount = number(argv[3]);
  const auto pause = number(argc == 6 ? argv[5] : "0");
  const std::string_view unit = argv[4];
  if (!clients || *clients == 0 || *clients > kMostClients || !amount || !pause) return std::nullopt;
  Arguments result{argv[1], *clients, {}};
  result.amount.pause = std::chrono::microseconds(*pause);
  if (unit == "lines") {
    result.amount.lines = *amount;
  } else if (unit == "seconds") {
    result.amount.time = std::chrono::seconds(*amount);
  } else {
    return std::nullopt;
  }
  return result;
}

SoakTally tally(const Arguments& arguments, const std::vector<std::uint64_t>& sent) {
  SoakTally result(sent);
  for (unsigned client = 0; client < arguments.clients; ++client) {
    std::ifstream log(logOf(arguments.folder, client), std::ios::binary);
    for (std::string line; std::getline(log, line);) result.add(client, line);
  }
  return result;
}

int run(const Arguments& arguments) {
  const auto sent = runClients(arguments.clients, arguments.folder, arguments.amount);
  if (!sent) {
    std::cerr << "trace-soak: no logger was there, or it has gone\n";
    return 1;
  }
  const SoakTally result = tally(arguments, *sent);
  result.print(std::cout);
  const bool isWell = arguments.clients == 1 ? result.isPerfect() : result.isExplained();
  if (!isWell) std::cerr << "trace-soak: lines are missing, and nothing explains it\n";
  return isWell ? 0 : 1;
}

}  // namespace
}  // namespace tessaly::soak

int main(int argc, char** argv) {
  const auto arguments = tessaly::soak::readArguments(argc, argv);
  if (!arguments) {
    std::cerr << "Usage: trace-soak <folder for the logs> <clients, 1 to 9> <amount> lines|seconds"
                 " [<average pause after a line, in microseconds>]\n";
    return 2;
  }
  return tessaly::soak::run(*arguments);
}
