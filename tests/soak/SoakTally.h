#pragma once

#include <cstdint>
#include <iosfwd>
#include <string_view>
#include <vector>

namespace tessaly::soak {

/// Compares what clients have sent with what stands in their log files. The logger writes one line for each
/// message into the log of the client that the message came from. So the file has as many lines as the client
/// has sent, and its nth line is the client's nth, unless another client has written into the block between
/// the record and its message: then it is the other's line, or parts of both.
class SoakTally {
 public:
  /// How many lines each client has sent; clients are numbered from 0 on.
  explicit SoakTally(const std::vector<std::uint64_t>& sent);

  /// The next line of a client's log.
  void add(unsigned client, std::string_view logLine);

  /// Whether no message was lost and every line that is missing has another's, or a mixed one, in its place.
  bool isExplained() const;

  /// Whether each log holds its client's lines, all of them and in order.
  bool isPerfect() const;

  void print(std::ostream& out) const;

 private:
  struct Client {
    std::uint64_t sent = 0;

    /// What stands in its log.
    std::uint64_t lines = 0;
    std::uint64_t inPlace = 0;
    std::uint64_t others = 0;
    std::uint64_t mixed = 0;
    std::uint64_t wrong = 0;

    /// How often each of its lines stands in a log, whichever, twice at most.
    std::vector<unsigned char> seen;
  };

  static void print(std::ostream& out, const Client& client);
  static std::uint64_t countOf(const Client& client, unsigned char times);

  std::vector<Client> clients_;
};

}  // namespace tessaly::soak
