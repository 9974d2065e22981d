#pragma once

#include <cstdint>
#include <string_view>
#include <tuple>

#include "tools/zplogger/Records.h"

namespace tessaly::zplogger {

/// Who has sent a message. All clients of the library have one id, so where the platform tells the number of
/// the sending process, that tells them apart; it is 0 where the platform does not.
struct Sender {
  std::uint32_t clientId = 0;
  std::uint32_t process = 0;

  bool operator<(const Sender& other) const {
    return std::tie(clientId, process) < std::tie(other.clientId, other.process);
  }
};

/// What is to be done with what clients send. Calls come on the receiver's thread while the client waits.
struct Listener {
  virtual ~Listener() = default;

  virtual void addClient(const Sender& sender, const ClientRecord& record) = 0;
  virtual void trace(const Sender& sender, const TraceRecord& record) = 0;
  virtual void deleteClient(const Sender& sender) = 0;

  /// A message whose block or record could not be read, and why.
  virtual void fault(const Sender& sender, std::string_view why) = 0;
};

}  // namespace tessaly::zplogger
