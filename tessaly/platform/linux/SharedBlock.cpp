#include "tessaly/platform/linux/SharedBlock.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cinttypes>
#include <cstdio>

#include "tessaly/base/Fnv.h"
#include "tessaly/platform/linux/FileLock.h"
#include "tessaly/platform/linux/RuntimeFolder.h"

namespace tessaly::platform {
namespace {

constexpr mode_t kBlockMode = 0600;

/// Each try fails only because another holder came or went meanwhile.
constexpr int kMostSteps = 1000;

/// The channel's folder is in the name, so users and sessions don't meet.
std::string pathOf(const std::string& name) {
  std::array<char, 64> front{};
  std::snprintf(front.data(), front.size(), "/tessaly-%u-%016" PRIx64 "-", geteuid(),
                fnv64(channelFolderPath()));
  return front.data() + name;
}

struct stat statusOf(const Descriptor& file) {
  struct stat status {};
  fstat(file.get(), &status);
  return status;
}

bool isRemoved(const Descriptor& file) { return statusOf(file).st_nlink == 0; }

/// A file that somebody else might have put there is left alone.
bool isOwnBlock(const Descriptor& file) {
  const struct stat status = statusOf(file);
  return S_ISREG(status.st_mode) && status.st_uid == geteuid() && (status.st_mode & kOthersRights) == 0 &&
         status.st_nlink <= 1;
}

/// Looks for a block, and makes its file where it may.
class Search {
 public:
  enum class Step { Found, Failed, Again };

  /// A size of 0 makes none.
  Search(const std::string& path, std::size_t size) : path_(path), size_(size) {}

  Step step() {
    file_ = openFile();
    if (!file_.isOpen()) return mayPass(errno) ? Step::Again : Step::Failed;
    if (!isOwnBlock(file_)) return Step::Failed;
    if (lockFile(file_.get(), LOCK_EX | LOCK_NB)) {
      if (isRemoved(file_)) return Step::Again;
      if (!renew()) return Step::Failed;
    }
    if (!lockFile(file_.get(), LOCK_SH)) return Step::Failed;
    // A lock changes by being given back first: what was unlocked meanwhile may be gone.
    const bool isWhole = !isRemoved(file_) && statusOf(file_).st_size > 0;
    return isWhole ? Step::Found : Step::Again;
  }

  Descriptor take() { return std::move(file_); }

 private:
  bool makes() const { return size_ > 0; }

  Descriptor openFile() const {
    if (makes()) {
      Descriptor made(shm_open(path_.c_str(), O_RDWR | O_CREAT | O_EXCL, kBlockMode));
      if (made.isOpen()) fchmod(made.get(), kBlockMode);
      if (made.isOpen() || errno != EEXIST) return made;
    }
    return Descriptor(shm_open(path_.c_str(), O_RDWR, 0));
  }

  /// One that was there is gone, or one that is just being made has not got its mode yet.
  bool mayPass(int error) const { return makes() && (error == ENOENT || error == EACCES); }

  /// Nobody has the block. All of its memory is taken now: where it were missing later, a write would kill.
  bool renew() const {
    if (makes() && ftruncate(file_.get(), 0) == 0 && allocate()) return true;
    shm_unlink(path_.c_str());
    return false;
  }

  bool allocate() const {
    int error = EINTR;
    while (error == EINTR) error = posix_fallocate(file_.get(), 0, static_cast<off_t>(size_));
    return error == 0;
  }

  const std::string& path_;
  std::size_t size_;
  Descriptor file_;
};

std::shared_ptr<const SharedBlock> find(const std::string& name, std::size_t size) {
  if (name.empty() || name.find('/') != std::string::npos) return nullptr;
  const std::string path = pathOf(name);
  Search search(path, size);
  for (int tries = 0; tries < kMostSteps; ++tries) {
    const Search::Step step = search.step();
    if (step == Search::Step::Found) return std::make_shared<const SharedBlock>(path, search.take());
    if (step == Search::Step::Failed) return nullptr;
  }
  return nullptr;
}

}  // namespace

std::shared_ptr<const SharedBlock> SharedBlock::made(const std::string& name, std::size_t size) {
  return size > 0 ? find(name, size) : nullptr;
}

std::shared_ptr<const SharedBlock> SharedBlock::existing(const std::string& name) { return find(name, 0); }

/// The own lock goes first, and only then is the exclusive one asked for: a process that was forked has the
/// own one too and keeps it. What got another holder or another file in its place stays.
void SharedBlock::letGo() const {
  if (!file_.isOpen()) return;
  { const Descriptor closed = std::move(file_); }
  const Descriptor last(shm_open(path_.c_str(), O_RDWR, 0));
  if (last.isOpen() && isOwnBlock(last) && lockFile(last.get(), LOCK_EX | LOCK_NB) && !isRemoved(last))
    shm_unlink(path_.c_str());
}

std::size_t SharedBlock::size() const { return static_cast<std::size_t>(statusOf(file_).st_size); }

void* SharedBlock::map(std::size_t size, int protection) const {
  if (size == 0 || size > this->size()) return nullptr;
  void* view = mmap(nullptr, size, protection, MAP_SHARED, file_.get(), 0);
  return view == MAP_FAILED ? nullptr : view;
}

}  // namespace tessaly::platform
