#include "tessaly/platform/LocalNumber.h"

#include "tessaly/base/NumberText.h"
#include "tessaly/platform/Core.h"

namespace tessaly::platform {

String localNumberText(double number) {
  String text = numberText(number);
  const auto point = text.find(u'.');
  if (point != String::npos) text.replace(point, 1, core().locale->decimalSeparator());
  return text;
}

}  // namespace tessaly::platform
