#include "tests/support/Platform.h"

#include <windows.h>

namespace tessaly::tests {

bool underWine() { return GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr; }

}  // namespace tessaly::tests
