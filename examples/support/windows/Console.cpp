#include "examples/support/Console.h"

#include <windows.h>

#include <memory>
#include <string>

#include "tessaly/base/Text.h"

namespace examples {
namespace {

struct FreeLocally {
  void operator()(wchar_t** memory) const { LocalFree(memory); }
};

bool& hasFailed() {
  static bool failed = false;
  return failed;
}

bool isConsole(HANDLE output) {
  DWORD mode = 0;
  return GetConsoleMode(output, &mode) != 0;
}

COORD cursorOf(HANDLE output) {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  GetConsoleScreenBufferInfo(output, &info);
  return info.dwCursorPosition;
}

/// Whether a console that took the mode for it also acts on sequences, instead of giving each its characters'
/// places: then the cursor stands where it stood.
bool actsOnSequences(HANDLE output) {
  constexpr std::wstring_view kNothing = L"\x1b[0m";
  const COORD before = cursorOf(output);
  DWORD written = 0;
  WriteConsoleW(output, kNothing.data(), static_cast<DWORD>(kNothing.size()), &written, nullptr);
  const COORD after = cursorOf(output);
  SetConsoleCursorPosition(output, before);
  return after.X == before.X && after.Y == before.Y;
}

}  // namespace

void write(std::u16string_view text) {
  HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD written = 0;
  if (isConsole(output)) {
    // Wide text needs no code page, and so the console's own stays as the user has it.
    const std::wstring wide = tessaly::toWide(text);
    WriteConsoleW(output, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
    if (written != wide.size()) hasFailed() = true;
  } else {
    const std::string bytes = tessaly::toUtf8(text);
    WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    if (written != bytes.size()) hasFailed() = true;
  }
}

bool finishWriting() { return !hasFailed(); }

bool hasColours() {
  HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(output, &mode) != 0 &&
         SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0 && actsOnSequences(output);
}

std::vector<tessaly::String> arguments(int /*argc*/, char** /*argv*/) {
  // What `main` is given went through the code page, which does not have every file's name.
  int count = 0;
  const std::unique_ptr<wchar_t*, FreeLocally> words(CommandLineToArgvW(GetCommandLineW(), &count));
  std::vector<tessaly::String> result;
  for (int i = 1; words && i < count; ++i) result.push_back(tessaly::fromWide(words.get()[i]));
  return result;
}

}  // namespace examples
