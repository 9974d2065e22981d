#include "tessaly/platform/AnsiCodePage.h"

#include <algorithm>
#include <array>

namespace tessaly::platform {
namespace {

/// Western Europe's. Windows has no page for some languages, such as Hindi and Georgian. None of them was
/// ever a system's own, so their users have the page of a system in another language, and this is the most
/// common.
constexpr Long kWesternEurope = 1252;

struct Row {
  Long number;
  Long page;
};

/// Languages, without the country, whose page is another.
constexpr std::array kLanguages{
    Row{0x01, 1256}, Row{0x02, 1251}, Row{0x04, 936},  Row{0x05, 1250}, Row{0x08, 1253}, Row{0x0D, 1255},
    Row{0x0E, 1250}, Row{0x11, 932},  Row{0x12, 949},  Row{0x15, 1250}, Row{0x18, 1250}, Row{0x19, 1251},
    Row{0x1A, 1250}, Row{0x1B, 1250}, Row{0x1C, 1250}, Row{0x1E, 874},  Row{0x1F, 1254}, Row{0x20, 1256},
    Row{0x22, 1251}, Row{0x23, 1251}, Row{0x24, 1250}, Row{0x25, 1257}, Row{0x26, 1257}, Row{0x27, 1257},
    Row{0x28, 1251}, Row{0x29, 1256}, Row{0x2A, 1258}, Row{0x2C, 1254}, Row{0x2F, 1251}, Row{0x40, 1251},
    Row{0x42, 1250}, Row{0x43, 1254}, Row{0x44, 1251}, Row{0x50, 1251}, Row{0x59, 1256}, Row{0x6D, 1251},
    Row{0x80, 1256}, Row{0x85, 1251}, Row{0x8C, 1256}, Row{0x92, 1256}};

/// Languages in a country, where the script is not the language's usual one.
constexpr std::array kCountries{Row{0x0404, 950},
                                Row{0x0C04, 950},
                                Row{0x1404, 950},
                                Row{0x7C04, 950},
                                Row{0x0C1A, 1251},
                                Row{0x1C1A, 1251},
                                Row{0x201A, 1251},
                                Row{0x281A, 1251},
                                Row{0x301A, 1251},
                                Row{0x641A, 1251},
                                Row{0x6C1A, 1251},
                                Row{0x082C, 1251},
                                Row{0x742C, 1251},
                                Row{0x0843, 1251},
                                Row{0x7843, 1251},
                                Row{0x0846, 1256},
                                Row{0x7C46, 1256},
                                Row{0x0459, kWesternEurope},
                                Row{0x0850, kWesternEurope},
                                Row{0x0C50, kWesternEurope},
                                Row{0x7C50, kWesternEurope}};

template <class Rows>
Long pageIn(const Rows& rows, Long number, Long otherwise) {
  const auto row = std::find_if(rows.begin(), rows.end(), [&](const Row& r) { return r.number == number; });
  return row != rows.end() ? row->page : otherwise;
}

}  // namespace

Long ansiCodePage(Long lcid) {
  return pageIn(kCountries, lcid & 0xFFFF, pageIn(kLanguages, lcid & 0x3FF, kWesternEurope));
}

}  // namespace tessaly::platform
