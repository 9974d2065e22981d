#pragma once

namespace tessaly::bench {

/// Lets the library find its settings and the trace channel in the temporary folder, nobody else's, and
/// switches tracing on there. To be called before its first use.
void useOwnChannel();

/// What `Trace` sends to, as `StartLogger` makes it, until this object goes.
class Client {
 public:
  Client();
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;
  ~Client();
};

}  // namespace tessaly::bench
