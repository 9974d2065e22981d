#include "tools/tessaly-reg/FileBytes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <system_error>

#include "tools/support/linux/Descriptor.h"

namespace tessaly::reg {
namespace {

using tools::Descriptor;

std::string lastError() { return std::generic_category().message(errno); }

/// Reads until the end, but no more than one byte over the limit.
std::string readAll(int file, std::string& bytes) {
  constexpr std::size_t step = std::size_t{1} << 16U;
  while (bytes.size() <= kLargestRegFile) {
    const std::size_t before = bytes.size();
    bytes.resize(before + step);
    const ssize_t count = ::read(file, bytes.data() + before, step);
    bytes.resize(before + static_cast<std::size_t>(count > 0 ? count : 0));
    if (count == 0) return {};
    if (count < 0 && errno != EINTR) return lastError();
  }
  return "it is larger than 16 MiB";
}

std::string writeAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(file, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) return lastError();
    bytes.remove_prefix(static_cast<std::size_t>(count > 0 ? count : 0));
  }
  return fsync(file) == 0 ? std::string() : lastError();
}

/// The mode that a new file gets.
mode_t modeOfNewFile() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

/// Makes a rename last.
void syncFolder(const std::filesystem::path& folder) {
  const Descriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (open.isOpen()) fsync(open.number());
}

/// A template for the name of a new file.
std::string hiddenBeside(const std::filesystem::path& target) {
  std::filesystem::path name = ".";
  name += target.filename();
  name += ".XXXXXX";
  return (target.parent_path() / name).string();
}

/// A file beside another one, which goes unless it takes the other's place.
class Beside {
 public:
  explicit Beside(const std::filesystem::path& target)
      : target_(target), name_(hiddenBeside(target)), file_(mkostemp(name_.data(), O_CLOEXEC)) {}
  Beside(const Beside&) = delete;
  Beside& operator=(const Beside&) = delete;
  ~Beside() {
    if (isThere_) unlink(name_.c_str());
  }

  std::string fill(std::string_view bytes, mode_t mode) {
    if (!isThere_) return lastError();
    if (fchmod(file_.number(), mode) != 0) return lastError();
    std::string fault = writeAll(file_.number(), bytes);
    if (fault.empty() && !file_.close()) fault = lastError();
    return fault;
  }

  std::string takePlace() {
    if (std::rename(name_.c_str(), target_.c_str()) != 0) return lastError();
    isThere_ = false;
    syncFolder(target_.parent_path());
    return {};
  }

 private:
  std::filesystem::path target_;
  std::string name_;
  Descriptor file_;
  bool isThere_ = file_.isOpen();
};

}  // namespace

std::string readFile(const std::filesystem::path& path, std::string& bytes) {
  if (path == "-") return readAll(STDIN_FILENO, bytes);
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  return file.isOpen() ? readAll(file.number(), bytes) : lastError();
}

std::string writeFile(const std::filesystem::path& path, std::string_view bytes, bool mayReplace) {
  // A link stays, and what it leads to is replaced.
  std::error_code error;
  const std::filesystem::path target = std::filesystem::weakly_canonical(path, error);
  if (error) return error.message();
  if (std::filesystem::is_symlink(target, error)) return "it is a link to a file that is not there";
  struct stat status = {};
  const bool exists = stat(target.c_str(), &status) == 0;
  if (exists && !S_ISREG(status.st_mode)) return "it is no normal file; - writes to the standard output";
  if (exists && !mayReplace) return "the file exists; /y replaces it";
  Beside beside(target);
  std::string fault = beside.fill(bytes, exists ? status.st_mode & 0777 : modeOfNewFile());
  return fault.empty() ? beside.takePlace() : fault;
}

}  // namespace tessaly::reg
