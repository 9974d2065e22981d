#pragma once

#include <string>
#include <string_view>

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"

namespace tessaly {

/// UTF-8 as wide text. Bytes that are no UTF-8 become U+FFFD.
TESSALY_API String fromUtf8(std::string_view text);

/// Wide text as UTF-8. A surrogate without its partner becomes U+FFFD.
TESSALY_API std::string toUtf8(std::u16string_view text);

/// Wide text of the C++ library, in UTF-16 or UTF-32 as the platform has it, as wide text of this library.
/// A number that is no code point becomes U+FFFD.
TESSALY_API String fromWide(std::wstring_view text);

/// The way back. Where wchar_t is UTF-32, a surrogate without its partner becomes U+FFFD.
TESSALY_API std::wstring toWide(std::u16string_view text);

}  // namespace tessaly
