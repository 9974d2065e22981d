#include "tests/soak/SoakTally.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

#include "tests/soak/SoakLine.h"

namespace tessaly::soak {
namespace {

/// Date, time, level and client stand before the text, each with a blank behind it.
constexpr int kFieldsBefore = 4;

std::string_view textOf(std::string_view logLine) {
  for (int n = 0; n < kFieldsBefore; ++n) {
    const std::size_t blank = logLine.find(' ');
    if (blank == std::string_view::npos) return {};
    logLine.remove_prefix(blank + 1);
  }
  return logLine;
}

void printRow(std::ostream& out, const char* what, std::uint64_t count, std::uint64_t of) {
  out << "  " << std::left << std::setw(44) << what << std::right << std::setw(12) << count;
  if (of > 0)
    out << std::fixed << std::setprecision(4) << std::setw(10)
        << 100.0 * static_cast<double>(count) / static_cast<double>(of) << " %";
  out << '\n';
}

}  // namespace

SoakTally::SoakTally(const std::vector<std::uint64_t>& sent) {
  for (const std::uint64_t count : sent) {
    Client& client = clients_.emplace_back();
    client.sent = count;
    client.seen.resize(count);
  }
}

void SoakTally::add(unsigned client, std::string_view logLine) {
  Client& of = clients_.at(client);
  ++of.lines;
  const auto line = wholeLine(textOf(logLine));
  if (!line) {
    ++of.mixed;
    return;
  }
  const bool wasSent =
      line->client < clients_.size() && line->number >= 1 && line->number <= clients_[line->client].sent;
  if (!wasSent || (line->client == client && line->number != of.lines)) {
    ++of.wrong;
    return;
  }
  ++(line->client == client ? of.inPlace : of.others);
  unsigned char& seen = clients_[line->client].seen[line->number - 1];
  if (seen < 2) ++seen;
}

bool SoakTally::isExplained() const {
  return std::all_of(clients_.begin(), clients_.end(),
                     [](const Client& client) { return client.lines == client.sent && client.wrong == 0; });
}

bool SoakTally::isPerfect() const {
  return isExplained() && std::all_of(clients_.begin(), clients_.end(),
                                      [](const Client& client) { return client.inPlace == client.sent; });
}

std::uint64_t SoakTally::countOf(const Client& client, unsigned char times) {
  return static_cast<std::uint64_t>(std::count(client.seen.begin(), client.seen.end(), times));
}

void SoakTally::print(std::ostream& out) const {
  std::uint64_t sent = 0;
  std::uint64_t lost = 0;
  for (std::size_t n = 0; n < clients_.size(); ++n) {
    const Client& client = clients_[n];
    sent += client.sent;
    lost += countOf(client, 0);
    out << "client " << n << '\n';
    print(out, client);
  }
  out << "all clients\n";
  printRow(out, "lines sent", sent, 0);
  printRow(out, "lines lost", lost, sent);
}

void SoakTally::print(std::ostream& out, const Client& client) {
  printRow(out, "lines sent", client.sent, 0);
  printRow(out, "messages that arrived", client.lines, 0);
  printRow(out, "  with its line, whole and in order", client.inPlace, client.sent);
  printRow(out, "  with another client's line", client.others, client.sent);
  printRow(out, "  with parts of several lines", client.mixed, client.sent);
  printRow(out, "  with a line that can't be there", client.wrong, client.sent);
  printRow(out, "lines lost: they stand whole in no log", countOf(client, 0), client.sent);
  printRow(out, "lines doubled: they stand in several", countOf(client, 2), client.sent);
}

}  // namespace tessaly::soak
