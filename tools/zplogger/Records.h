#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "tessaly/base/Types.h"

/// What a client puts into the shared block. Its bytes come from anybody.
namespace tessaly::zplogger {

inline constexpr std::size_t kBlockSize = 5000;

/// Who a client is and where its lines go.
struct ClientRecord {
  String name;
  String logFile;
  String backupFile;
  bool operator==(const ClientRecord&) const = default;
};

/// One line, with the colours of its text: red in the low byte, then green, then blue.
struct TraceRecord {
  std::uint32_t foreColor = 0;
  std::uint32_t backColor = 0;
  bool flag = false;
  std::uint8_t level = 0;
  String text;
  bool operator==(const TraceRecord&) const = default;
};

/// Read the record at the front of a block's bytes; nothing where it does not end within them, or within the
/// size of a block. Texts are in the system's code page. A client counts its characters in place of its
/// bytes, so a text may end within a character of two bytes: what is left of that becomes one unknown
/// character.
std::optional<ClientRecord> readClientRecord(std::string_view block);
std::optional<TraceRecord> readTraceRecord(std::string_view block);

}  // namespace tessaly::zplogger
