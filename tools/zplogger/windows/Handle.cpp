#include "tools/zplogger/windows/Handle.h"

#include <array>

#include "tessaly/base/Text.h"

namespace tessaly::zplogger {

const wchar_t* wide(const String& text) {
  static_assert(sizeof(wchar_t) == sizeof(char16_t));
  return reinterpret_cast<const wchar_t*>(text.c_str());
}

std::string lastError() {
  const DWORD error = GetLastError();
  std::array<wchar_t, 512> buffer{};
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK, nullptr,
      error, 0, buffer.data(), static_cast<DWORD>(buffer.size()), nullptr);
  std::string text = toUtf8(fromWide({buffer.data(), length}));
  // Texts of the system end as sentences do.
  while (!text.empty() && (text.back() == ' ' || text.back() == '.')) text.pop_back();
  return text.empty() ? "error " + std::to_string(error) : text;
}

}  // namespace tessaly::zplogger
