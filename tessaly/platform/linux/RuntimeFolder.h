#pragma once

#include <sys/types.h>

#include <string>

#include "tessaly/platform/linux/ChannelDescriptor.h"

namespace tessaly::platform {

/// What users other than the owner may do with a file.
inline constexpr mode_t kOthersRights = 0077;

/// Where the channel's files of this user are: "tessaly" in `$XDG_RUNTIME_DIR`, where that is the absolute
/// path of a folder that the user owns, and otherwise "tessaly-" with the user's number in `$TMPDIR`, or in
/// /tmp where that is no absolute path. Slashes at the end of a variable don't count.
std::string channelFolderPath();

/// Opens the folder at that path, and makes it where it is missing. None where that fails, and where it is
/// not the user's own or others have any right in it.
ChannelDescriptor openChannelFolder(const std::string& path);

}  // namespace tessaly::platform
