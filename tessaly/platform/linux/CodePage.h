#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// 8-bit text in one code page of Windows, by tables. They are made of ICU's and of what Windows's own have
/// beside it, without the replacements that merely look alike.
class CodePage {
 public:
  /// The page of a number, 1252 where there is no such page. It is made at the first call, which takes up
  /// to some milliseconds, and lives as long as the program. Any thread may call.
  static const CodePage& of(Long number);

  std::string bytesOf(std::u16string_view text) const;
  String textOf(std::string_view bytes) const;

 private:
  class Converter;
  struct Source;
  static const std::array<Source, 14> kSources;

  explicit CodePage(const Source& source);
  void readBytes(const Converter& icu);
  void readPairs(const Converter& icu, unsigned lead);
  void putOwnBytes(Long number);
  void put(unsigned byte, char16_t unit);
  void readCodes(const Converter& icu);
  void readCode(const Converter& icu, char16_t unit);
  char16_t unitOf(unsigned code) const;
  static std::size_t pairAt(unsigned lead, unsigned trail) { return (lead - 0x80) << 8 | trail; }

  char16_t unknown_;
  std::array<bool, 256> leads_{};
  std::array<char16_t, 256> singles_{};
  /// By lead and trail byte; empty in a one-byte page.
  std::vector<char16_t> pairs_;
  /// By unit, the lead byte in the upper half; '?' where the page lacks it.
  std::vector<std::uint16_t> codes_;
};

}  // namespace tessaly::platform
