#include "bench/Folder.h"

#include <fcntl.h>
#include <mntent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>

namespace tessaly::bench {
namespace {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::path(TESSALY_BENCH_FOLDER) / "tessaly-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) fail("no temporary folder");
    path_ = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

std::optional<std::filesystem::path>& othersFolder() {
  static std::optional<std::filesystem::path> folder;
  return folder;
}

bool isBelow(const std::filesystem::path& path, const std::filesystem::path& folder) {
  const auto below = path.lexically_relative(folder);
  return !below.empty() && *below.begin() != "..";
}

struct CloseMounts {
  void operator()(FILE* mounts) const { endmntent(mounts); }
};

}  // namespace

void fail(const std::string& what) {
  std::cerr << program_invocation_short_name << ": " << what << '\n';
  std::exit(1);
}

const std::filesystem::path& temporaryFolder() {
  if (othersFolder()) return *othersFolder();
  static const TemporaryFolder folder;
  return folder.path();
}

void useTemporaryFolder(const std::filesystem::path& folder) { othersFolder() = folder; }

std::filesystem::path newFolder(std::string_view name) {
  std::filesystem::path path = temporaryFolder() / name;
  std::filesystem::create_directories(path);
  return path;
}

void writeFile(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

void runTool(const std::string& command) {
  // NOLINTNEXTLINE(cert-env33-c, concurrency-mt-unsafe): the names in the command are this program's own.
  if (std::system(command.c_str()) != 0) fail("this failed: " + command);
}

std::string readFile(const std::filesystem::path& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat status {};
  if (file < 0 || fstat(file, &status) != 0) fail("can't read " + path.string());
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  if (read(file, bytes.data(), bytes.size()) != status.st_size) fail("can't read " + path.string());
  close(file);
  return bytes;
}

std::string fileSystemOf(const std::filesystem::path& path) {
  const std::unique_ptr<FILE, CloseMounts> mounts(setmntent("/proc/self/mounts", "re"));
  std::size_t longest = 0;
  std::string kind = "unknown";
  for (const mntent* mount = nullptr; mounts != nullptr && (mount = getmntent(mounts.get())) != nullptr;) {
    const std::string_view place = mount->mnt_dir;
    if (place.size() < longest || !isBelow(path, place)) continue;
    longest = place.size();
    kind = mount->mnt_type;
  }
  return kind;
}

}  // namespace tessaly::bench
