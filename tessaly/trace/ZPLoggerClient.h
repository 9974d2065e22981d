#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"
#include "tessaly/platform/Messages.h"

namespace tessaly {

namespace platform {
struct SharedMemory;
}  // namespace platform

/// The library's end of the channel to the logger, a process of its own: a record goes into a block of memory
/// that both have, and a message has the logger read it before the call returns. There is no queue and no
/// answer. All clients of a user, on Windows of a session, share one block and nothing is locked, so a record
/// may be overwritten by another process's before it was read. A logger that is missing or lost is not
/// reported. One thread uses an object. Most hosts need no object of their own but `StartLogger` and `Trace`.
class TESSALY_API ZPLoggerClient {
 public:
  /// A client without a channel: it sends nothing until `Init`.
  ZPLoggerClient();
  ZPLoggerClient(const ZPLoggerClient&) = delete;
  ZPLoggerClient& operator=(const ZPLoggerClient&) = delete;

  /// Opens the channel, looks for the logger, and tells it the client's name and the files that it is to
  /// write for it. The library touches neither file. Without a logger nothing is sent, and each `SendTrace`
  /// looks again; without a block nothing will ever be sent.
  virtual void Init(std::u16string_view clientName, std::u16string_view logFile,
                    std::u16string_view backupFile);

  /// Sends a line in a text and a background colour (red in the low byte, then green, then blue), and returns
  /// when the logger has handled it, however long that takes. A logger that has gone is looked for again, and
  /// is told the client's name before the line; where there is none, the line is lost. The text goes out in
  /// the system's 8-bit code page, cut to as many bytes as it has characters and to 4986 bytes. Error 6 for a
  /// level outside 0 to 255, where there is somebody to send it to.
  virtual void SendTrace(std::u16string_view text, Long foreColor, Long backColor, Long level, Boolean flag);

  /// Whether a logger was there when it was last looked for.
  virtual Boolean Connected() const;

 private:
  friend class ZPLoggerClientPeer;

  virtual void CloseMapping();
  virtual void AddClient();

  /// Takes the client's leave of the logger. Nothing calls it: a logger is not told that a client goes.
  virtual void DeleteClient();
  virtual void FindLogger();
  virtual void WriteString(std::u16string_view text, char*& cursor);

 public:
  virtual ~ZPLoggerClient();

 private:
  std::uint32_t msgAddClient_ = 0;
  std::uint32_t msgDeleteClient_ = 0;
  std::uint32_t msgAddTrace_ = 0;
  Long clientId_ = 0;
  std::intptr_t mapping_ = 0;
  Boolean registered_;
  char* view_ = nullptr;
  platform::WindowHandle loggerWindow_ = 0;
  String clientName_;
  String logFile_;
  String backupFile_;

  /// Where the block came from, and goes back to.
  platform::SharedMemory* memory_;
};

}  // namespace tessaly
