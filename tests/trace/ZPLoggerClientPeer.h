#pragma once

#include <vector>

#include "tessaly/trace/ZPLoggerClient.h"
#include "tests/support/Slots.h"

namespace tessaly {

/// Sees of a client what its host does not.
class ZPLoggerClientPeer {
 public:
  static std::vector<std::size_t> slots() {
    using tests::slotOf;
    return {slotOf(&ZPLoggerClient::Init),       slotOf(&ZPLoggerClient::SendTrace),
            slotOf(&ZPLoggerClient::Connected),  slotOf(&ZPLoggerClient::CloseMapping),
            slotOf(&ZPLoggerClient::AddClient),  slotOf(&ZPLoggerClient::DeleteClient),
            slotOf(&ZPLoggerClient::FindLogger), slotOf(&ZPLoggerClient::WriteString)};
  }

  static void addClient(ZPLoggerClient& client) { client.AddClient(); }
  static void deleteClient(ZPLoggerClient& client) { client.DeleteClient(); }
  static void closeMapping(ZPLoggerClient& client) { client.CloseMapping(); }

  static void registered(ZPLoggerClient& client, Boolean value) { client.registered_ = value; }
  static Boolean registered(const ZPLoggerClient& client) { return client.registered_; }
  static bool hasView(const ZPLoggerClient& client) { return client.view_ != nullptr; }
  static bool hasMapping(const ZPLoggerClient& client) { return client.mapping_ != 0; }
  static platform::WindowHandle loggerWindow(const ZPLoggerClient& client) { return client.loggerWindow_; }
  static Long clientId(const ZPLoggerClient& client) { return client.clientId_; }

  /// The numbers of the messages: add client, delete client, add trace.
  static std::vector<std::uint32_t> messages(const ZPLoggerClient& client) {
    return {client.msgAddClient_, client.msgDeleteClient_, client.msgAddTrace_};
  }
};

}  // namespace tessaly
