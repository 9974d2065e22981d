#include "tessaly/hosts/qt/help/HelpText.h"

#include <algorithm>
#include <array>

#include "tessaly/base/Ascii.h"
#include "tessaly/base/Text.h"
#include "tessaly/platform/Core.h"

namespace tessaly::qt {
namespace {

constexpr std::string_view kMarkOfUtf8 = "\xEF\xBB\xBF";
constexpr std::string_view kMarkOfUtf16 = "\xFF\xFE";
constexpr std::size_t kHead = 4096;

String textOfPairs(std::string_view bytes) {
  String text;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const auto low = static_cast<unsigned char>(bytes[at]);
    const auto high = static_cast<unsigned char>(bytes[at + 1]);
    text += static_cast<char16_t>(low | high << 8U);
  }
  return text;
}

struct EncodingName {
  std::string_view name;
  Long codePage;
};

constexpr Long kUtf8 = 65001;

/// Beside the names that begin with "windows-" and "cp", which tell the number.
constexpr std::array kEncodings{
    EncodingName{"utf-8", kUtf8},     EncodingName{"utf8", kUtf8},      EncodingName{"us-ascii", 1252},
    EncodingName{"iso-8859-1", 1252}, EncodingName{"iso-8859-9", 1254}, EncodingName{"latin1", 1252},
    EncodingName{"shift_jis", 932},   EncodingName{"shift-jis", 932},   EncodingName{"x-sjis", 932},
    EncodingName{"windows-31j", 932}, EncodingName{"gb2312", 936},      EncodingName{"gbk", 936},
    EncodingName{"big5", 950},        EncodingName{"euc-kr", 949},      EncodingName{"ks_c_5601-1987", 949},
    EncodingName{"iso-8859-11", 874}, EncodingName{"tis-620", 874}};

std::optional<Long> numberedPage(std::string_view encoding) {
  constexpr std::array<Long, 14> kPages{874,  932,  936,  949,  950,  1250, 1251,
                                        1252, 1253, 1254, 1255, 1256, 1257, 1258};
  for (const Long page : kPages) {
    const std::string number = std::to_string(page);
    if (encoding == "windows-" + number || encoding == "cp" + number) return page;
  }
  return {};
}

}  // namespace

String helpText(std::string_view bytes, Long codePage) {
  if (bytes.starts_with(kMarkOfUtf16)) return textOfPairs(bytes.substr(kMarkOfUtf16.size()));
  if (bytes.starts_with(kMarkOfUtf8)) return fromUtf8(bytes.substr(kMarkOfUtf8.size()));
  String text = fromUtf8(bytes);
  if (toUtf8(text) == bytes) return text;
  return platform::core().locale->MultiByteToWideChar(codePage, bytes);
}

std::string declaredEncoding(std::string_view page) {
  constexpr std::string_view kName = "charset=";
  const std::string head = asciiLowerText(page.substr(0, kHead));
  const std::size_t at = head.find(kName);
  if (at == std::string::npos) return {};
  const std::size_t start = std::min(head.find_first_not_of("\"' ", at + kName.size()), head.size());
  const std::size_t end = head.find_first_of("\"' />;\r\n", start);
  return head.substr(start, end == std::string::npos ? end : end - start);
}

std::optional<Long> codePageOf(std::string_view encoding) {
  const auto* const known = std::find_if(kEncodings.begin(), kEncodings.end(),
                                         [&](const EncodingName& e) { return e.name == encoding; });
  return known == kEncodings.end() ? numberedPage(encoding) : known->codePage;
}

}  // namespace tessaly::qt
