#include "tessaly/platform/linux/CodePage.h"

#include <unicode/ucnv.h>

#include <algorithm>
#include <memory>
#include <mutex>

#include "tessaly/platform/Ansi.h"

namespace tessaly::platform {
namespace {

constexpr unsigned kBytes = 0x100;
constexpr std::size_t kUnits = 0x10000;

/// Bytes that Windows's tables have otherwise than ICU's: most are left open by the page, and Windows gives
/// each a private character, so that any byte comes back as itself.
struct OwnBytes {
  Long page;
  unsigned first;
  unsigned last;
  char16_t unit;
};
constexpr std::array kOwnBytes{OwnBytes{932, 0x80, 0x80, 0x0080},  OwnBytes{932, 0xA0, 0xA0, 0xF8F0},
                               OwnBytes{932, 0xFD, 0xFF, 0xF8F1},  OwnBytes{1253, 0xAA, 0xAA, 0xF8F9},
                               OwnBytes{1253, 0xD2, 0xD2, 0xF8FA}, OwnBytes{1253, 0xFF, 0xFF, 0xF8FB},
                               OwnBytes{1255, 0xCA, 0xCA, 0x05BA}, OwnBytes{1255, 0xD9, 0xDF, 0xF88D},
                               OwnBytes{1255, 0xFB, 0xFC, 0xF894}, OwnBytes{1255, 0xFF, 0xFF, 0xF896},
                               OwnBytes{1257, 0xA1, 0xA1, 0xF8FC}, OwnBytes{1257, 0xA5, 0xA5, 0xF8FD}};

}  // namespace

struct CodePage::Source {
  Long number;
  /// By which ICU knows it.
  const char* name;
  /// What a pair of bytes that the page lacks becomes.
  char16_t unknown;
};

/// The first stands for any that is not here.
const std::array<CodePage::Source, 14> CodePage::kSources{{{1252, "ibm-5348_P100-1997", u'?'},
                                                           {874, "windows-874-2000", u'?'},
                                                           {932, "ibm-943_P15A-2003", u'\x30FB'},
                                                           {936, "windows-936-2000", u'?'},
                                                           {949, "windows-949-2000", u'?'},
                                                           {950, "windows-950-2000", u'?'},
                                                           {1250, "ibm-5346_P100-1998", u'?'},
                                                           {1251, "ibm-5347_P100-1998", u'?'},
                                                           {1253, "ibm-5349_P100-1998", u'?'},
                                                           {1254, "ibm-5350_P100-1998", u'?'},
                                                           {1255, "ibm-9447_P100-2002", u'?'},
                                                           {1256, "ibm-9448_X100-2005", u'?'},
                                                           {1257, "ibm-9449_P100-2002", u'?'},
                                                           {1258, "ibm-5354_P100-1998", u'?'}}};

/// ICU's converter of a page, asked for one character at a time. Its answer is 0 where there is none.
class CodePage::Converter {
 public:
  explicit Converter(const char* name) {
    UErrorCode error = U_ZERO_ERROR;
    converter_.reset(ucnv_open(name, &error));
    if (!converter_) return;
    ucnv_setToUCallBack(converter_.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    ucnv_setFromUCallBack(converter_.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    ucnv_setFallback(converter_.get(), false);
  }

  bool isOpen() const { return converter_ != nullptr; }

  std::array<bool, kBytes> leads() const {
    std::array<UBool, kBytes> flags{};
    UErrorCode error = U_ZERO_ERROR;
    ucnv_getStarters(converter_.get(), flags.data(), &error);
    std::array<bool, kBytes> result{};
    std::transform(flags.begin(), flags.end(), result.begin(), [](UBool flag) { return flag != 0; });
    return result;
  }

  char16_t unitOf(unsigned code) const {
    const std::array<char, 2> bytes{static_cast<char>(code >> 8), static_cast<char>(code)};
    const bool isPair = code >= kBytes;
    std::array<char16_t, 2> units{};
    UErrorCode error = U_ZERO_ERROR;
    const auto length = ucnv_toUChars(converter_.get(), units.data(), 2, bytes.data() + (isPair ? 0 : 1),
                                      isPair ? 2 : 1, &error);
    return U_SUCCESS(error) && length == 1 ? units[0] : u'\0';
  }

  unsigned codeOf(char16_t unit) const {
    std::array<char, 4> bytes{};
    UErrorCode error = U_ZERO_ERROR;
    const auto length = ucnv_fromUChars(converter_.get(), bytes.data(), 4, &unit, 1, &error);
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    if (U_FAILURE(error) || length < 1 || length > 2) return 0;
    return length == 1 ? byte(0) : static_cast<unsigned>(byte(0) << 8 | byte(1));
  }

 private:
  struct Close {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
  };
  std::unique_ptr<UConverter, Close> converter_;
};

CodePage::CodePage(const Source& source) : unknown_(source.unknown), codes_(kUnits, u'?') {
  const Converter icu(source.name);
  singles_.fill(unknown_);
  // An ICU that was built without the page leaves ASCII.
  if (icu.isOpen()) readBytes(icu);
  putOwnBytes(source.number);
  if (icu.isOpen()) readCodes(icu);
}

void CodePage::readBytes(const Converter& icu) {
  leads_ = icu.leads();
  const bool hasPairs = std::find(leads_.begin(), leads_.end(), true) != leads_.end();
  if (hasPairs) pairs_.assign(std::size_t{kBytes - kFirstNotAscii} << 8, unknown_);
  for (unsigned byte = kFirstNotAscii; byte < kBytes; ++byte) {
    if (leads_[byte]) {
      readPairs(icu, byte);
    } else if (const char16_t unit = icu.unitOf(byte)) {
      singles_[byte] = unit;
    }
  }
}

void CodePage::readPairs(const Converter& icu, unsigned lead) {
  for (unsigned trail = 1; trail < kBytes; ++trail) {
    if (const char16_t unit = icu.unitOf(lead << 8 | trail)) pairs_[pairAt(lead, trail)] = unit;
  }
}

void CodePage::putOwnBytes(Long number) {
  for (unsigned byte = 0; byte < kFirstNotAscii; ++byte) put(byte, static_cast<char16_t>(byte));
  for (const OwnBytes& own : kOwnBytes) {
    if (own.page != number) continue;
    for (unsigned i = 0; i <= own.last - own.first; ++i)
      put(own.first + i, static_cast<char16_t>(own.unit + i));
  }
}

void CodePage::put(unsigned byte, char16_t unit) {
  singles_[byte] = unit;
  codes_[unit] = static_cast<std::uint16_t>(byte);
}

void CodePage::readCodes(const Converter& icu) {
  for (const char16_t unit : singles_) readCode(icu, unit);
  for (const char16_t unit : pairs_) readCode(icu, unit);
}

/// Several pairs may stand for one unit, and ICU knows which of them Windows writes.
void CodePage::readCode(const Converter& icu, char16_t unit) {
  if (codes_[unit] != u'?') return;
  const unsigned code = icu.codeOf(unit);
  if (unitOf(code) == unit) codes_[unit] = static_cast<std::uint16_t>(code);
}

char16_t CodePage::unitOf(unsigned code) const {
  return code < kBytes ? singles_[code] : pairs_[pairAt(code >> 8, code & 0xFF)];
}

const CodePage& CodePage::of(Long number) {
  struct Place {
    std::once_flag made;
    std::unique_ptr<const CodePage> page;
  };
  // Never destroyed, since a host's own statics may still need it when the program ends.
  static auto& places = *new std::array<Place, kSources.size()>;
  const auto* const named = std::find_if(kSources.begin(), kSources.end(),
                                         [&](const Source& source) { return source.number == number; });
  const Source& source = named != kSources.end() ? *named : kSources.front();
  Place& place = places[static_cast<std::size_t>(&source - kSources.data())];
  std::call_once(place.made, [&] { place.page.reset(new CodePage(source)); });
  return *place.page;
}

std::string CodePage::bytesOf(std::u16string_view text) const {
  std::string result(pairs_.empty() ? text.size() : 2 * text.size(), '\0');
  std::size_t length = 0;
  for (const char16_t unit : text) {
    const unsigned code = codes_[unit];
    if (code >= kBytes) result[length++] = static_cast<char>(code >> 8);
    result[length++] = static_cast<char>(code);
  }
  result.resize(length);
  return result;
}

String CodePage::textOf(std::string_view bytes) const {
  String result(bytes.size(), u'\0');
  std::size_t length = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const auto byte = static_cast<unsigned char>(bytes[i]);
    const bool isPair = leads_[byte] && i + 1 < bytes.size() && bytes[i + 1] != '\0';
    result[length++] = isPair ? pairs_[pairAt(byte, static_cast<unsigned char>(bytes[++i]))] : singles_[byte];
  }
  result.resize(length);
  return result;
}

}  // namespace tessaly::platform
