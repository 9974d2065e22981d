#include "tools/tessaly-reg/RegEncoding.h"

#include <algorithm>

#include "tessaly/platform/Core.h"
#include "tools/support/Utf8.h"

namespace tessaly::reg {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLowFirstMark = "\xFF\xFE";
constexpr std::string_view kHighFirstMark = "\xFE\xFF";
constexpr std::string_view kOldFormBytes = "REGEDIT4";

char16_t unitAt(std::string_view bytes, std::size_t low, std::size_t high) {
  return static_cast<char16_t>(static_cast<unsigned char>(bytes[low]) |
                               (static_cast<unsigned char>(bytes[high]) << 8));
}

String unitsHighFirst(std::string_view bytes) {
  String units(bytes.size() / 2, u'\0');
  for (std::size_t i = 0; i < units.size(); ++i) units[i] = unitAt(bytes, 2 * i + 1, 2 * i);
  return units;
}

/// The line of the last character of a text.
template <class Text>
std::size_t linesOf(const Text& text) {
  std::size_t line = 1;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if ((text[i] == '\n' || text[i] == '\r') && !isPair) ++line;
  }
  return line;
}

template <class Text>
std::optional<LineError> findNul(const Text& text) {
  const std::size_t nul = text.find('\0');
  if (nul == Text::npos) return std::nullopt;
  return LineError{linesOf(text.substr(0, nul)),
                   "a NUL character; a file in UTF-16 begins with a byte-order mark, other text has none"};
}

std::optional<LineError> decodeUtf16(std::string_view bytes, bool isLowFirst, String& text) {
  text = isLowFirst ? unitsOf(bytes) : unitsHighFirst(bytes);
  if (bytes.size() % 2 == 0) return std::nullopt;
  return LineError{linesOf(text), "the file ends within a character of UTF-16; it seems to be cut"};
}

std::optional<LineError> decodeUtf8(std::string_view bytes, String& text) {
  if (auto sound = tools::strictUtf8(bytes)) {
    text = std::move(*sound);
    return std::nullopt;
  }
  return LineError{linesOf(bytes.substr(0, tools::firstFaultOf(bytes))),
                   "these bytes are no UTF-8; save the file as UTF-8, or as UTF-16 with a byte-order mark"};
}

/// The old form: in the code page of 8-bit text, or in UTF-8 where a mark says so and it is true.
std::optional<LineError> decodeOldForm(std::string_view bytes, bool isMarked, String& text) {
  if (isMarked && tools::firstFaultOf(bytes) == bytes.size()) return decodeUtf8(bytes, text);
  platform::Locale& locale = *platform::core().locale;
  text = locale.MultiByteToWideChar(locale.GetACP(), bytes);
  return std::nullopt;
}

/// A NUL in 8-bit text is most likely half a character of UTF-16, so it is told before all else.
std::optional<LineError> decodeBytes(std::string_view bytes, bool isMarked, String& text) {
  if (auto nul = findNul(bytes)) return nul;
  if (bytes.starts_with(kOldFormBytes)) return decodeOldForm(bytes, isMarked, text);
  return decodeUtf8(bytes, text);
}

std::optional<LineError> decode(std::string_view bytes, String& text) {
  if (bytes.starts_with(kLowFirstMark)) return decodeUtf16(bytes.substr(2), true, text);
  if (bytes.starts_with(kHighFirstMark)) return decodeUtf16(bytes.substr(2), false, text);
  const bool isMarked = bytes.starts_with(kUtf8Mark);
  if (isMarked) bytes.remove_prefix(kUtf8Mark.size());
  return decodeBytes(bytes, isMarked, text);
}

}  // namespace

std::optional<LineError> decodeRegFile(std::string_view bytes, String& text) {
  if (auto error = decode(bytes, text)) return error;
  return findNul(std::u16string_view(text));
}

std::string encodeRegFile(std::u16string_view text) { return std::string(kLowFirstMark) + bytesOf(text); }

String unitsOf(std::string_view bytes) {
  String units(bytes.size() / 2, u'\0');
  for (std::size_t i = 0; i < units.size(); ++i) units[i] = unitAt(bytes, 2 * i, 2 * i + 1);
  return units;
}

std::string bytesOf(std::u16string_view units) {
  std::string bytes;
  bytes.reserve(units.size() * 2);
  for (const char16_t unit : units) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

}  // namespace tessaly::reg
