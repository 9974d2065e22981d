#include "tessaly/localisation/TextToLong.h"

#include "tessaly/base/NumberText.h"
#include "tessaly/base/Rounding.h"
#include "tessaly/base/RuntimeError.h"
#include "tessaly/platform/Core.h"

namespace tessaly {

Long textToLong(std::u16string_view text) {
  // Nearly every number is a plain one, and asking for the locale costs more than reading it.
  if (const auto plain = parsePlainLong(text)) return *plain;
  const auto number = parseNumber(text, platform::core().locale->decimalSeparator());
  if (!number) throw RuntimeError(RuntimeError::TypeMismatch);
  return roundToLong(*number);
}

}  // namespace tessaly
