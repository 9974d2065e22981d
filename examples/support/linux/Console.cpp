#include "examples/support/Console.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "tessaly/base/Text.h"
#include "tessaly/base/Unicode.h"

namespace examples {
namespace {

/// A file's name may be any bytes: one that is no UTF-8 travels as a lone surrogate, and the file is found.
tessaly::String pathText(std::string_view bytes) {
  constexpr char32_t kShift = 0xDC00;
  tessaly::String text;
  tessaly::unicode::appendUtf8(text, bytes, [](unsigned char byte) { return kShift + byte; });
  return text;
}

}  // namespace

void write(std::u16string_view text) {
  const std::string bytes = tessaly::toUtf8(text);
  std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

bool finishWriting() { return std::fflush(stdout) == 0 && std::ferror(stdout) == 0; }

bool hasColours() {
  const char* terminal = std::getenv("TERM");
  return isatty(STDOUT_FILENO) == 1 && terminal != nullptr && std::string_view(terminal) != "dumb";
}

std::vector<tessaly::String> arguments(int argc, char** argv) {
  std::vector<tessaly::String> result;
  for (int i = 1; i < argc; ++i) result.push_back(pathText(argv[i]));
  return result;
}

}  // namespace examples
