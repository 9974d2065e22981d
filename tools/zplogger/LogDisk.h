#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::zplogger {

/// A log file that is open. Bytes only come to its end; it is closed with this object.
struct LogFile {
  virtual ~LogFile() = default;

  virtual std::uint64_t size() = 0;

  /// Appends bytes by one write. Gives what failed, or an empty text; then a part may stand there.
  virtual std::string append(std::string_view bytes) = 0;

  /// Whether its path still leads to it.
  virtual bool isInPlace() = 0;
};

/// What log files may do on the disk. Paths are those of `LogPath`. They come from clients, so each is walked
/// without following a link, and only a normal file with one name is ever touched, on this side of a check
/// before it is opened and of another one behind. Texts of failures go behind "can't write to FILE: ".
struct LogDisk {
  virtual ~LogDisk() = default;

  /// Opens a file for appending, making it for the user alone where it is missing. Nothing where that fails
  /// or is refused, with the reason.
  virtual std::unique_ptr<LogFile> open(const String& path, std::string& fault) = 0;

  /// Gives a closed log another path. What stands there, and what is moved, must begin as a log of the tool's
  /// does: a client may name any file. What stood there goes. Gives the reason where that fails or is
  /// refused, or an empty text.
  virtual std::string move(const String& from, const String& to) = 0;
};

/// The platform's own.
LogDisk& ownLogDisk();

}  // namespace tessaly::zplogger
