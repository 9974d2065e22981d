#include "tools/tessaly-reg/ValueText.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "tessaly/base/Text.h"
#include "tools/support/Hex.h"
#include "tools/tessaly-reg/KeyName.h"

namespace tessaly::reg {
namespace {

using platform::KeyValue;
using platform::RegistryType;

struct TypeName {
  RegistryType type;
  std::u16string_view name;
};

// Where a type has two names, the first is shown.
constexpr std::array kTypeNames = {TypeName{platform::kNoType, u"REG_NONE"},
                                   TypeName{platform::kText, u"REG_SZ"},
                                   TypeName{platform::kExpandableText, u"REG_EXPAND_SZ"},
                                   TypeName{platform::kBinary, u"REG_BINARY"},
                                   TypeName{platform::kNumber, u"REG_DWORD"},
                                   TypeName{platform::kNumber, u"REG_DWORD_LITTLE_ENDIAN"},
                                   TypeName{kBigEndianNumber, u"REG_DWORD_BIG_ENDIAN"},
                                   TypeName{6, u"REG_LINK"},
                                   TypeName{platform::kTexts, u"REG_MULTI_SZ"},
                                   TypeName{8, u"REG_RESOURCE_LIST"},
                                   TypeName{9, u"REG_FULL_RESOURCE_DESCRIPTOR"},
                                   TypeName{10, u"REG_RESOURCE_REQUIREMENTS_LIST"},
                                   TypeName{kLongNumber, u"REG_QWORD"},
                                   TypeName{kLongNumber, u"REG_QWORD_LITTLE_ENDIAN"}};

String shownNumber(std::string_view bytes, bool isLowFirst) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i)
    number = (number << 8U) | static_cast<unsigned char>(bytes[isLowFirst ? bytes.size() - 1 - i : i]);
  return u"0x" + tools::hexDigits(number, 1, tools::HexLetters::Small);
}

String shownBytes(std::string_view bytes) {
  String result;
  result.reserve(bytes.size() * 2);
  for (const char byte : bytes)
    result += tools::hexDigits(static_cast<unsigned char>(byte), 2, tools::HexLetters::Capital);
  return result;
}

/// The list's own end, and the last text's, go.
String shownTexts(std::u16string_view text) {
  String result;
  for (const char16_t unit : withoutNul(withoutNul(text))) {
    if (unit == u'\0') {
      result += u"\\0";
    } else {
      result += unit;
    }
  }
  return result;
}

std::string numberBytes(std::uint64_t number, std::size_t size) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) bytes += static_cast<char>((number >> (8 * i)) & 0xFFU);
  return bytes;
}

bool numberValue(std::u16string_view data, std::size_t size, KeyValue& value, std::string& fault) {
  const auto number = data.empty() ? 0 : typedNumber(data);
  if (!number || (size < sizeof(*number) && *number >> (8 * size) != 0)) {
    fault = "it is no number of " + std::to_string(8 * size) + " bits, in decimal or 0x form";
    return false;
  }
  value.bytes = numberBytes(*number, size);
  if (value.type == kBigEndianNumber) std::reverse(value.bytes.begin(), value.bytes.end());
  return true;
}

bool bytesValue(std::u16string_view data, KeyValue& value, std::string& fault) {
  const std::string digits = toUtf8(data);
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
    unsigned char byte = 0;
    const char* const end = digits.data() + i + 2;
    if (std::from_chars(digits.data() + i, end, byte, 16).ptr != end) break;
    value.bytes += static_cast<char>(byte);
  }
  if (value.bytes.size() * 2 == digits.size()) return true;
  fault = "it is no row of bytes of two hexadecimal digits each, such as 00ff41";
  return false;
}

bool textsValue(std::u16string_view data, std::u16string_view separator, KeyValue& value,
                std::string& fault) {
  while (!data.empty()) {
    const std::size_t end = std::min(data.find(separator), data.size());
    if (end == 0) {
      fault = "there is an empty text in it, which would end the list";
      return false;
    }
    value.text += String(data.substr(0, end)) + u'\0';
    data.remove_prefix(std::min(end + separator.size(), data.size()));
  }
  value.text += u'\0';
  return true;
}

}  // namespace

String typeName(RegistryType type) {
  const auto* const found = std::find_if(kTypeNames.begin(), kTypeNames.end(),
                                         [&](const TypeName& known) { return known.type == type; });
  return found != kTypeNames.end() ? String(found->name)
                                   : u"0x" + tools::hexDigits(type, 1, tools::HexLetters::Small);
}

std::optional<RegistryType> typeNamed(std::u16string_view text) {
  const auto* const found = std::find_if(kTypeNames.begin(), kTypeNames.end(),
                                         [&](const TypeName& known) { return isWord(text, known.name); });
  if (found != kTypeNames.end()) return found->type;
  const auto number = typedNumber(text);
  if (!number || *number > UINT32_MAX) return std::nullopt;
  return static_cast<RegistryType>(*number);
}

String shownName(std::u16string_view name) { return name.empty() ? u"(Default)" : String(name); }

std::u16string_view withoutNul(std::u16string_view text) {
  if (text.ends_with(u'\0')) text.remove_suffix(1);
  return text;
}

String shownData(const KeyValue& value) {
  if (value.type == platform::kTexts) return shownTexts(value.text);
  if (value.isText()) return String(withoutNul(value.text));
  const std::size_t size = value.bytes.size();
  if (value.type == platform::kNumber && size == 4) return shownNumber(value.bytes, true);
  if (value.type == kLongNumber && size == 8) return shownNumber(value.bytes, true);
  if (value.type == kBigEndianNumber && size == 4) return shownNumber(value.bytes, false);
  return shownBytes(value.bytes);
}

std::optional<KeyValue> typedValue(RegistryType type, std::u16string_view data, std::u16string_view separator,
                                   std::string& fault) {
  KeyValue value;
  value.type = type;
  bool suits = true;
  if (type == platform::kNumber || type == kBigEndianNumber) {
    suits = numberValue(data, 4, value, fault);
  } else if (type == kLongNumber) {
    suits = numberValue(data, 8, value, fault);
  } else if (type == platform::kTexts) {
    suits = textsValue(data, separator, value, fault);
  } else if (value.isText()) {
    value.text = String(data) + u'\0';
  } else {
    suits = bytesValue(data, value, fault);
  }
  if (!suits) return std::nullopt;
  return value;
}

std::optional<std::uint64_t> typedNumber(std::u16string_view text) {
  const std::string digits = toUtf8(text);
  const bool isHex = digits.starts_with("0x") || digits.starts_with("0X");
  const char* const begin = digits.data() + (isHex ? 2 : 0);
  const char* const end = digits.data() + digits.size();
  std::uint64_t number = 0;
  const auto read = std::from_chars(begin, end, number, isHex ? 16 : 10);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return number;
}

}  // namespace tessaly::reg
