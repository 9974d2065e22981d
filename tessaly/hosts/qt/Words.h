#pragma once

#include <QString>

namespace tessaly::qt {

/// Words of the library's own for the user, in his language where a translator of the host's has them, in the
/// context "Tessaly". Those are English that have none.
QString said(const char* english);

}  // namespace tessaly::qt
