#include "tools/zplogger/LogDisk.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <utility>

#include "tools/zplogger/LogLine.h"
#include "tools/zplogger/linux/Folder.h"

namespace tessaly::zplogger {
namespace {

using tools::Descriptor;

/// Opening waits for nobody, should a pipe have come into the file's place since it was looked at.
constexpr int kLogFlags = O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
constexpr int kReadFlags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;

class OpenLog final : public LogFile {
 public:
  OpenLog(String path, Descriptor file) : path_(std::move(path)), file_(std::move(file)) {}

  std::uint64_t size() override {
    struct stat status = {};
    return fstat(file_.number(), &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
  }

  std::string append(std::string_view bytes) override {
    ssize_t count = 0;
    do {
      count = write(file_.number(), bytes.data(), bytes.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0) return lastError();
    return static_cast<std::size_t>(count) == bytes.size() ? "" : "the disk is full";
  }

  bool isInPlace() override;

 private:
  String path_;
  Descriptor file_;
};

/// A folder above it may have been moved too, so the whole path is walked.
bool OpenLog::isInPlace() {
  const Place place = placeOf(path_);
  struct stat own = {};
  struct stat there = {};
  return place.fault.empty() && fstat(file_.number(), &own) == 0 &&
         fstatat(place.folder.number(), place.name.c_str(), &there, AT_SYMLINK_NOFOLLOW) == 0 &&
         own.st_dev == there.st_dev && own.st_ino == there.st_ino;
}

/// Whether what stands there, if anything does, may be moved or go.
std::string checkLog(const Place& place, const char* whyNot) {
  const FileCheck check = checkFile(place);
  if (check.isMissing || !check.fault.empty()) return check.fault;
  const Descriptor file(openat(place.folder.number(), place.name.c_str(), kReadFlags));
  if (!file.isOpen()) return lastError();
  std::string fault = checkOpenFile(file.number());
  if (!fault.empty()) return fault;
  std::array<char, kStampSize> front{};
  const ssize_t count = read(file.number(), front.data(), front.size());
  if (count < 0) return lastError();
  const bool isLog = beginsAsLog({front.data(), static_cast<std::size_t>(count)});
  return isLog ? "" : whyNot;
}

struct OwnLogDisk final : LogDisk {
  std::unique_ptr<LogFile> open(const String& path, std::string& fault) override {
    const Place place = placeOf(path);
    fault = place.fault.empty() ? checkFile(place).fault : place.fault;
    if (!fault.empty()) return nullptr;
    Descriptor file(openat(place.folder.number(), place.name.c_str(), kLogFlags, 0600));
    fault = file.isOpen() ? checkOpenFile(file.number()) : lastError();
    if (!fault.empty()) return nullptr;
    return std::make_unique<OpenLog>(path, std::move(file));
  }

  std::string move(const String& from, const String& to) override {
    const Place log = placeOf(from);
    const Place backup = placeOf(to);
    std::string fault = log.fault.empty() ? backup.fault : log.fault;
    if (fault.empty()) fault = checkLog(log, "it is no log");
    if (fault.empty()) fault = checkLog(backup, "what stands in its place is no log");
    if (!fault.empty()) return fault;
    const bool isMoved =
        renameat(log.folder.number(), log.name.c_str(), backup.folder.number(), backup.name.c_str()) == 0;
    if (isMoved) return {};
    return errno == EXDEV ? "it is on another disk" : lastError();
  }
};

}  // namespace

LogDisk& ownLogDisk() {
  static OwnLogDisk disk;
  return disk;
}

}  // namespace tessaly::zplogger
