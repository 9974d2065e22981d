#pragma once

namespace tessaly::tests {

/// Whether the Windows build runs under Wine, where some of Windows is done otherwise.
bool underWine();

}  // namespace tessaly::tests
