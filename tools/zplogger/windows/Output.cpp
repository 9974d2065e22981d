#include "tools/zplogger/Output.h"

#include <windows.h>

#include <algorithm>

#include "tessaly/base/Text.h"
#include "tessaly/base/Unicode.h"

namespace tessaly::zplogger {
namespace {

/// A console takes so many characters at once.
constexpr std::size_t kMostUnitsAtOnce = 8000;

/// A character of two units stays whole.
std::size_t sizeOfPart(std::wstring_view text) {
  if (text.size() <= kMostUnitsAtOnce) return text.size();
  return kMostUnitsAtOnce - (unicode::isLowSurrogate(text[kMostUnitsAtOnce]) ? 1 : 0);
}

class HandleOutput final : public Output {
 public:
  explicit HandleOutput(DWORD which) : handle_(GetStdHandle(which)) {
    DWORD mode = 0;
    isConsole_ = GetConsoleMode(handle_, &mode) != 0;
    hasColours_ = isConsole_ && SetConsoleMode(handle_, mode | ENABLE_PROCESSED_OUTPUT |
                                                            ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
  }

  Written write(std::string_view text) override {
    // A program that was started without an output has nobody to write to.
    if (handle_ == nullptr) return Written::Done;
    return isConsole_ ? writeWide(toWide(fromUtf8(text))) : writeBytes(text);
  }

  std::size_t columns() override {
    CONSOLE_SCREEN_BUFFER_INFO info = {};
    if (!isConsole_ || GetConsoleScreenBufferInfo(handle_, &info) == 0) return 0;
    return static_cast<std::size_t>(std::max(info.srWindow.Right - info.srWindow.Left + 1, 1));
  }

  bool hasTrueColour() override {
    return hasColours_ && GetEnvironmentVariableW(L"NO_COLOR", nullptr, 0) <= 1;
  }

 private:
  Written writeWide(std::wstring_view text) {
    while (!text.empty()) {
      DWORD count = 0;
      const auto size = static_cast<DWORD>(sizeOfPart(text));
      if (WriteConsoleW(handle_, text.data(), size, &count, nullptr) == 0) return Written::Failed;
      text.remove_prefix(count);
    }
    return Written::Done;
  }

  Written writeBytes(std::string_view text) {
    while (!text.empty()) {
      DWORD count = 0;
      if (WriteFile(handle_, text.data(), static_cast<DWORD>(text.size()), &count, nullptr) == 0) {
        const DWORD error = GetLastError();
        return error == ERROR_BROKEN_PIPE || error == ERROR_NO_DATA ? Written::ReaderGone : Written::Failed;
      }
      text.remove_prefix(count);
    }
    return Written::Done;
  }

  HANDLE handle_;
  bool isConsole_ = false;
  bool hasColours_ = false;
};

}  // namespace

Output& standardOutput() {
  static HandleOutput output(STD_OUTPUT_HANDLE);
  return output;
}

Output& standardErrors() {
  static HandleOutput errors(STD_ERROR_HANDLE);
  return errors;
}

}  // namespace tessaly::zplogger
