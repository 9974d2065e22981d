#pragma once

#include <QString>
#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::qt {

/// The library's wide text as Qt's, and the way back; both are UTF-16, and nothing is lost.
inline QString toQString(std::u16string_view text) {
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}
inline String fromQString(const QString& text) { return text.toStdU16String(); }

}  // namespace tessaly::qt
