#include "tests/support/Process.h"

namespace tessaly::tests {

std::optional<std::string> Process::readLine() {
  std::size_t end = unread_.find('\n');
  while (end == std::string::npos && readMore()) end = unread_.find('\n');
  if (unread_.empty()) return std::nullopt;
  std::string line = unread_.substr(0, end);
  unread_.erase(0, end == std::string::npos ? end : end + 1);
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

}  // namespace tessaly::tests
