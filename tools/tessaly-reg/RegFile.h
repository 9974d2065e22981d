#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "tessaly/platform/keys/KeyStore.h"
#include "tools/tessaly-reg/KeyName.h"
#include "tools/tessaly-reg/LineError.h"

/// .reg files, in both of their text forms: what they ask for.
namespace tessaly::reg {

/// One change, as a line of the file asks for it.
struct RegChange {
  enum class Kind : std::uint8_t { MakeKey, DeleteKey, SetValue, DeleteValue };

  Kind kind = Kind::MakeKey;

  /// Which of the file's keys.
  std::uint32_t key = 0;
  std::size_t line = 0;

  /// The value's; empty is the unnamed one.
  String name;
  platform::KeyValue value;
};

struct RegFile {
  std::vector<KeyName> keys;

  /// In the file's order; changes of values stand behind the one that makes their key.
  std::vector<RegChange> changes;

  /// What is wrong, at most `kMostErrors`, in the order of lines. Where there is anything, the rest is not to
  /// be used.
  std::vector<LineError> errors;
};

/// Reads the bytes of a .reg file. The effort grows with the size and no faster, whatever the file holds.
RegFile parseRegFile(std::string_view bytes);

}  // namespace tessaly::reg
