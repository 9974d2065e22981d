#pragma once

#include <cstdint>
#include <string_view>

namespace tessaly::platform {

/// Whether the codes of a GIF's frame, in blocks behind the number of their bits, give this many pixels at
/// least. Some decoders leave out what is missing, others stumble.
bool holdsGifPixels(std::string_view content, std::int64_t count);

}  // namespace tessaly::platform
