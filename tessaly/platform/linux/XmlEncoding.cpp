#include "tessaly/platform/linux/XmlEncoding.h"

#include <strings.h>
#include <unicode/ucnv.h>

#include <algorithm>
#include <memory>
#include <string_view>

namespace tessaly::platform {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::size_t kLongestDeclaration = 1024;
/// A character takes at most this many times the bytes in UTF-8 that it takes elsewhere.
constexpr std::size_t kGrowth = 3;

struct CloseConverter {
  void operator()(UConverter* converter) const { ucnv_close(converter); }
};

bool sameName(std::string_view left, std::string_view right) {
  return left.size() == right.size() && strncasecmp(left.data(), right.data(), left.size()) == 0;
}

/// The encoding that an XML declaration names, in a text of ASCII's kind; empty where it names none.
std::string_view declaredEncoding(std::string_view document) {
  // A blank must follow, or it is an instruction such as <?xml-stylesheet?>.
  if (!document.starts_with("<?xml") || document.substr(5, 1).find_first_of(" \t\r\n") != 0) return {};
  std::string_view rest = document.substr(0, kLongestDeclaration);
  rest = rest.substr(0, rest.find("?>"));
  const auto word = rest.find("encoding");
  if (word == std::string_view::npos) return {};
  rest.remove_prefix(word);
  const auto open = rest.find_first_of("\"'");
  if (open == std::string_view::npos) return {};
  const auto close = rest.find(rest[open], open + 1);
  return close == std::string_view::npos ? std::string_view() : rest.substr(open + 1, close - open - 1);
}

/// Whether a name is one that XML allows; ICU passes over other characters, and takes options behind a comma.
bool isEncodingName(std::string_view name) {
  constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  constexpr std::string_view others = "0123456789._-";
  return letters.find(name.front()) != std::string_view::npos &&
         std::all_of(name.begin(), name.end(), [&](char c) {
           return letters.find(c) != std::string_view::npos || others.find(c) != std::string_view::npos;
         });
}

/// Whether a converter is for text that a document may be declared in: no ISO 2022, UTF-7 or the like, whose
/// bytes mean something else from place to place and can hide markup.
bool mayBeDeclared(const UConverter* converter) {
  switch (ucnv_getType(converter)) {
    case UCNV_SBCS:
    case UCNV_DBCS:
    case UCNV_MBCS:
    case UCNV_LATIN_1:
    case UCNV_US_ASCII:
    case UCNV_UTF16_LittleEndian:
    case UCNV_UTF16_BigEndian:
      return true;
    default:
      return false;
  }
}

std::optional<std::string> converted(std::string_view text, const char* encoding) {
  if (text.size() > INT32_MAX / kGrowth) return std::nullopt;
  UErrorCode error = U_ZERO_ERROR;
  const std::unique_ptr<UConverter, CloseConverter> converter(ucnv_open(encoding, &error));
  if (U_FAILURE(error) || !mayBeDeclared(converter.get())) return std::nullopt;
  ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
  std::string result(text.size() * kGrowth, '\0');
  const std::int32_t length =
      ucnv_toAlgorithmic(UCNV_UTF8, converter.get(), result.data(), static_cast<std::int32_t>(result.size()),
                         text.data(), static_cast<std::int32_t>(text.size()), &error);
  if (U_FAILURE(error)) return std::nullopt;
  result.resize(static_cast<std::size_t>(length));
  return result;
}

/// A document in UTF-16, which may declare itself as any of the UTF family, as the Windows parser takes it.
std::optional<std::string> fromUtf16(std::string_view text, const char* encoding) {
  auto document = converted(text, encoding);
  if (!document) return std::nullopt;
  const std::string_view declared = declaredEncoding(*document);
  return declared.empty() || sameName(declared.substr(0, 4), "UTF-") ? document : std::nullopt;
}

std::optional<std::string> fromDeclared(std::string bytes, bool marked) {
  const std::string_view text = std::string_view(bytes).substr(marked ? kUtf8Mark.size() : 0);
  const std::string declared(declaredEncoding(text));
  if (declared.empty() || sameName(declared, "UTF-8")) {
    // Expat takes a second mark, and UTF-16 that shows by nothing, even where it is told that this is UTF-8.
    if (text.starts_with(kUtf8Mark) || text.substr(0, 2).find('\0') != std::string_view::npos)
      return std::nullopt;
    if (marked) bytes.erase(0, kUtf8Mark.size());
    return bytes;
  }
  if (!isEncodingName(declared) || sameName(declared.substr(0, 6), "UTF-16")) return std::nullopt;
  // Windows means its code page 936 by this name, which has more characters than the standard.
  return converted(text, sameName(declared, "gb2312") ? "GBK" : declared.c_str());
}

}  // namespace

std::optional<std::string> xmlInUtf8(std::string bytes) {
  const std::string_view text = bytes;
  if (text.starts_with("\xFF\xFE"sv)) return fromUtf16(text.substr(2), "UTF-16LE");
  if (text.starts_with("\xFE\xFF"sv)) return fromUtf16(text.substr(2), "UTF-16BE");
  // Without a mark, UTF-16 shows by its declaration.
  if (text.starts_with("<\0?\0"sv)) return fromUtf16(text, "UTF-16LE");
  if (text.starts_with("\0<\0?"sv)) return fromUtf16(text, "UTF-16BE");
  const bool marked = text.starts_with(kUtf8Mark);
  return fromDeclared(std::move(bytes), marked);
}

}  // namespace tessaly::platform
