#include "tests/support/OwnRuntime.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "tests/support/TemporaryFolder.h"
#include "tests/support/linux/BlockFiles.h"

namespace tessaly::tests {
namespace {

/// Programs that a test has killed could not remove their blocks.
void removeBlocksOf(const std::filesystem::path& channel) {
  const std::string front = frontOfBlocks(channel);
  std::error_code ignored;
  for (const auto& block : std::filesystem::directory_iterator("/dev/shm", ignored)) {
    if (block.path().filename().string().starts_with(front)) std::filesystem::remove(block.path(), ignored);
  }
}

/// A program that a test starts has this variable, and the test's folder.
constexpr const char* kMark = "TESSALY_TESTS_HAVE_RUNTIME";

class OwnRuntime {
 public:
  OwnRuntime() {
    if (getenv(kMark) != nullptr) return;
    owner_ = getpid();
    folder_ = new TemporaryFolder;
    setenv("XDG_RUNTIME_DIR", folder_->path().c_str(), 1);
    setenv(kMark, "1", 1);
  }
  OwnRuntime(const OwnRuntime&) = delete;
  OwnRuntime& operator=(const OwnRuntime&) = delete;

  /// A child of a fork that exits leaves the folder to its parent.
  ~OwnRuntime() {
    if (getpid() != owner_) return;
    removeBlocksOf(folder_->path() / "tessaly");
    delete folder_;
  }

 private:
  pid_t owner_ = 0;
  TemporaryFolder* folder_ = nullptr;
};

// Made before any test runs: what the program starts shall have the same.
const OwnRuntime runtime;

}  // namespace

void useOwnRuntime() {}

}  // namespace tessaly::tests
