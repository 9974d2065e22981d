// Stands for the desktop's opener: it tells the test what it was started with.

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "tests/contract/RecordingOpener.h"

namespace {

/// By looks that take no descriptor themselves.
std::string descriptorsOf(pid_t process) {
  std::string numbers;
  for (int number = 0; number < 1024; ++number) {
    std::error_code missing;
    const auto name = "/proc/" + std::to_string(process) + "/fd/" + std::to_string(number);
    const auto opened = std::filesystem::read_symlink(name, missing);
    if (!missing) numbers += std::to_string(number) + "=" + opened.string() + " ";
  }
  return numbers;
}

/// A line of what the system tells of this process.
std::string status(std::string_view name) {
  std::ifstream lines("/proc/self/status");
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(name)) return line.substr(line.find_last_of('\t') + 1);
  }
  return "unknown";
}

/// All at once, since a test reads as it comes.
void tell(const std::string& path, const std::string& fields) {
  const int pipe = open(path.c_str(), O_WRONLY);
  for (std::string_view rest = fields; !rest.empty();) {
    const ssize_t count = write(pipe, rest.data(), rest.size());
    if (count < 0) break;
    rest.remove_prefix(static_cast<std::size_t>(count));
  }
  close(pipe);
}

int codeFor(std::string_view text) {
  constexpr std::string_view told = "tessaly-code:";
  if (text.starts_with(told)) return std::stoi(std::string(text.substr(told.size())));
  if (text == tessaly::tests::kAddressOfNobody) return 3;
  return text == tessaly::tests::kMissingFile ? 2 : 0;
}

}  // namespace

int main(int count, char** words) {
  const std::string descriptors = descriptorsOf(getpid());
  std::string fields = std::to_string(count) + '\0';
  for (int i = 0; i < count; ++i) (fields += words[i]) += '\0';
  (fields += std::filesystem::current_path()) += '\0';
  (fields += descriptors) += '\0';
  (fields += descriptorsOf(getppid())) += '\0';
  (fields += status("SigBlk:")) += '\0';
  (fields += status("SigIgn:")) += '\0';
  (fields += getsid(0) == getpid() ? "leads" : "follows") += '\0';
  const char* const told = std::getenv("TESSALY_TESTS_OPENER");
  if (told == nullptr) return 1;
  const std::string path = told;
  tell(path, fields);
  const std::string_view text = count > 1 ? words[1] : "";
  if (text.starts_with("tessaly-held:")) {
    std::string released;
    std::ifstream(path + ".hold") >> released;
    tell(path, std::string("released") + '\0');
  }
  // By nothing that has a picture of the process written first.
  if (text == "tessaly-killed:") std::raise(SIGKILL);
  return codeFor(text);
}
