#pragma once

#include <map>
#include <optional>

#include "tools/zplogger/Listener.h"
#include "tools/zplogger/LogPath.h"

namespace tessaly::zplogger {

/// What is known of a client.
struct Client {
  ClientRecord record;
  LogPath log;
  LogPath backup;
};

/// The clients that have told who they are. Clients of the library never tell that they go, so there is a
/// bound: beyond it, the one that has been silent for the longest time is forgotten.
class Clients {
 public:
  static constexpr std::size_t kMost = 1000;

  /// Whether something is new about the client.
  bool add(const Sender& sender, const ClientRecord& record);

  /// A client that sends something; null for one that is not known.
  const Client* find(const Sender& sender);

  /// The client that has gone; nothing where it was not known.
  std::optional<Client> remove(const Sender& sender);

 private:
  struct Entry {
    Client client;
    std::uint64_t lastUse = 0;
  };

  void forgetOldest();

  std::map<Sender, Entry> entries_;
  std::uint64_t uses_ = 0;
};

}  // namespace tessaly::zplogger
