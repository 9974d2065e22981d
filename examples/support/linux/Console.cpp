#include "examples/support/Console.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "tessaly/base/Text.h"

namespace examples {

void write(std::u16string_view text) {
  const std::string bytes = tessaly::toUtf8(text);
  std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

bool hasColours() {
  const char* terminal = std::getenv("TERM");
  return isatty(STDOUT_FILENO) == 1 && terminal != nullptr && std::string_view(terminal) != "dumb";
}

std::vector<tessaly::String> arguments(int argc, char** argv) {
  std::vector<tessaly::String> result;
  for (int i = 1; i < argc; ++i) result.push_back(tessaly::fromUtf8(argv[i]));
  return result;
}

}  // namespace examples
