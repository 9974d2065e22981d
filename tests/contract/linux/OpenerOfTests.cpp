#include "tests/contract/linux/OpenerOfTests.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace tessaly::tests {
namespace {

constexpr const char* kTelling = "TESSALY_TESTS_OPENER";

std::filesystem::path program() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path() / "tests-opener";
}

std::string variableOf(const char* name) {
  const char* const value = std::getenv(name);
  return value != nullptr ? value : "";
}

}  // namespace

SearchPath::SearchPath(const char* path) : before_(variableOf("PATH")) {
  if (path != nullptr) {
    setenv("PATH", path, 1);
  } else {
    unsetenv("PATH");
  }
}

SearchPath::~SearchPath() { setenv("PATH", before_.c_str(), 1); }

OpenerOfTests::OpenerOfTests() {
  std::filesystem::create_symlink(program(), folder() / "xdg-open");
  const std::string told = folder() / "told";
  if (mkfifo(told.c_str(), 0600) != 0 || mkfifo((told + ".hold").c_str(), 0600) != 0)
    throw std::runtime_error("no pipe");
  // For both ends, so that it has no end between one that tells and the next.
  told_ = open(told.c_str(), O_RDWR | O_CLOEXEC);
  setenv(kTelling, told.c_str(), 1);
  path_.emplace(folder().c_str());
}

OpenerOfTests::~OpenerOfTests() {
  unsetenv(kTelling);
  close(told_);
}

std::string OpenerOfTests::readField() const {
  std::string field;
  for (char c = 0; read(told_, &c, 1) == 1 && c != '\0';) field += c;
  return field;
}

OpenerOfTests::Start OpenerOfTests::nextStart() {
  Start start;
  start.words.resize(std::stoul(readField()));
  for (std::string& word : start.words) word = readField();
  start.folder = readField();
  start.descriptors = readField();
  start.descriptorsOfStarter = readField();
  start.blockedSignals = readField();
  start.ignoredSignals = readField();
  start.leadsItsSession = readField() == "leads";
  return start;
}

void OpenerOfTests::release() {
  std::ofstream(folder() / "told.hold") << "on";
  if (readField() != "released") throw std::runtime_error("it was not held");
}

std::unique_ptr<RecordingOpener> RecordingOpener::make() { return std::make_unique<OpenerOfTests>(); }

}  // namespace tessaly::tests
