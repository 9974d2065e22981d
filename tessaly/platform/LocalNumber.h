#pragma once

#include "tessaly/base/Export.h"
#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// The number's plain decimal text with up to 15 digits and the user's decimal separator. Raises error 6 for
/// an infinite value and for what is no number.
TESSALY_API String localNumberText(double number);

}  // namespace tessaly::platform
