#pragma once

#include <string_view>

#include "tessaly/platform/keys/KeyStore.h"

/// Writes the text of .reg files, in the form of version 5.00.
namespace tessaly::reg {

class RegText {
 public:
  /// Lines end as told.
  explicit RegText(std::u16string_view lineEnd);

  /// Begins a key, by its full name. False where a .reg file can't hold the name: it has a line break or a
  /// NUL.
  bool key(std::u16string_view name);

  /// Adds a value to the key. False where a .reg file can't hold its name: it has a NUL.
  bool value(const platform::NamedValue& value);

  /// All that was written, and the blank line at the end.
  String finish();

 private:
  void data(const platform::KeyValue& value);
  void plain(std::u16string_view text);
  void hex(std::u16string_view prefix, std::string_view bytes);

  std::u16string_view lineEnd_;
  String text_;
  std::size_t lineBegin_ = 0;
};

/// Whether a text can't be shown as text, as invisible characters, or might not come back as it is from a
/// file that went through many hands, as line breaks: then it is written as bytes.
bool needsBytes(std::u16string_view text);

}  // namespace tessaly::reg
