#include "tessaly/platform/Ansi.h"

#include <algorithm>
#include <type_traits>

#include "tessaly/platform/Core.h"

namespace tessaly::platform {
namespace {

constexpr Long kThai = 874;
constexpr Long kFirstOneByte = 1250;
constexpr Long kLastOneByte = 1258;

/// Goes on to the end whatever it meets, so that the compiler takes many characters at a time.
template <class Text>
bool isAllAscii(const Text& text) {
  using Unsigned = std::make_unsigned_t<typename Text::value_type>;
  Unsigned all = 0;
  for (const auto c : text) all = static_cast<Unsigned>(all | static_cast<Unsigned>(c));
  return all < kFirstNotAscii;
}

template <class Result, class Text>
Result widthChanged(const Text& text) {
  Result result(text.size(), '\0');
  std::transform(text.begin(), text.end(), result.begin(),
                 [](auto c) { return static_cast<typename Result::value_type>(c); });
  return result;
}

}  // namespace

bool isAscii(std::string_view text) { return isAllAscii(text); }

std::string toAnsi(std::u16string_view text) {
  if (isAllAscii(text)) return widthChanged<std::string>(text);
  Locale& locale = *core().locale;
  return locale.WideCharToMultiByte(locale.GetACP(), text);
}

String fromAnsi(std::string_view text) {
  if (isAllAscii(text)) return widthChanged<String>(text);
  Locale& locale = *core().locale;
  return locale.MultiByteToWideChar(locale.GetACP(), text);
}

bool isNegativeAnsi(char16_t unit) {
  if (unit < kFirstNotAscii) return false;
  const std::string bytes = toAnsi({&unit, 1});
  return bytes.size() > 1 && static_cast<unsigned char>(bytes.front()) >= kFirstNotAscii;
}

bool mayHaveNegativeAnsi() {
  const Long page = core().locale->GetACP();
  return page != kThai && (page < kFirstOneByte || page > kLastOneByte);
}

}  // namespace tessaly::platform
