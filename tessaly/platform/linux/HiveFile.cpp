#include "tessaly/platform/linux/HiveFile.h"

#include <endian.h>
#include <fcntl.h>

#include <array>
#include <cerrno>
#include <thread>

#include "tessaly/platform/linux/HiveFolder.h"

namespace tessaly::platform {
namespace {

using namespace registry_result;
using Clock = std::chrono::steady_clock;

constexpr int kCounterPlace = 24;
constexpr int kVersionsPlace = 18;
constexpr char kJournalVersion = 1;
constexpr const char* kSettings =
    "PRAGMA journal_mode=PERSIST; PRAGMA synchronous=FULL; PRAGMA journal_size_limit=1048576; "
    "PRAGMA secure_delete=ON";

/// The counter stands in the file with its high byte first.
std::uint32_t numberOf(std::uint32_t counter) { return be32toh(counter); }

bool isSameFile(const struct stat& left, const struct stat& right) {
  return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

}  // namespace

HiveFile::HiveFile(std::filesystem::path path, HiveReaders readers)
    : path_(std::move(path)), readers_(readers) {}

Long HiveFile::open() {
  if (database_ != nullptr && !isInPlace()) close();
  Long result = database_ != nullptr ? kSuccess : kBusy;
  // The file may be replaced between the two times that it is opened.
  for (int tries = 0; result == kBusy && tries < kMostTries; ++tries) result = openDatabase();
  return result;
}

Long HiveFile::makeFolder() {
  return isOpen() ? kSuccess : platform::makeFolder(path_.parent_path(), readers_);
}

Long HiveFile::make() { return makeFile(path_, mode()); }

std::filesystem::path HiveFile::realPath() const {
  return isOpen() ? realPath_ : std::filesystem::weakly_canonical(path_);
}

Long HiveFile::openDatabase() {
  // A descriptor that only stands for the file: closing any other would drop SQLite's locks on it.
  place_ = Descriptor(::open(path_.c_str(), O_PATH | O_CLOEXEC));
  struct stat status {};
  if (!place_.isOpen() || fstat(place_.get(), &status) != 0) return resultOfErrno(errno);
  Long failure = S_ISREG(status.st_mode) ? kSuccess : kNotAHive;
  if (failure == kSuccess) failure = sqlite::resultOf(sqlite::open(path_, SQLITE_OPEN_READWRITE, database_));
  if (failure == kSuccess && !isInPlace()) failure = kBusy;
  if (failure != kSuccess) {
    close();
    return failure;
  }
  sqlite3_file_control(database_.get(), "main", SQLITE_FCNTL_FILE_POINTER, &file_);
  sqlite3_busy_handler(database_.get(), &HiveFile::wait, this);
  realPath_ = sqlite3_db_filename(database_.get(), "main");
  return kSuccess;
}

bool HiveFile::hasJournalModeOfHives() const {
  std::array<char, 2> versions{};
  file_->pMethods->xRead(file_, versions.data(), static_cast<int>(versions.size()), kVersionsPlace);
  return versions[0] <= kJournalVersion && versions[1] <= kJournalVersion;
}

Long HiveFile::prepareToWrite() {
  if (isPrepared_) return kSuccess;
  const int code = sqlite::run(database_.get(), kSettings);
  isPrepared_ = code == SQLITE_OK;
  return sqlite::resultOf(code);
}

void HiveFile::close() {
  file_ = nullptr;
  isPrepared_ = false;
  database_.reset();
  place_ = Descriptor();
}

void HiveFile::abandon() {
  file_ = nullptr;
  isPrepared_ = false;
  static_cast<void>(database_.release());
  place_ = Descriptor();
  unmark();
}

bool HiveFile::isInPlace() const {
  struct stat open {};
  struct stat there {};
  return fstat(place_.get(), &open) == 0 && stat(path_.c_str(), &there) == 0 && isSameFile(open, there);
}

HiveFile::State HiveFile::state() const {
  struct stat status {};
  const int failed = file_ != nullptr ? fstat(place_.get(), &status) : stat(path_.c_str(), &status);
  // A file without a name was replaced or removed. One that got another name has another time of change.
  if (failed != 0 || status.st_nlink == 0) return {};
  return {status.st_ino, status.st_size, status.st_ctim.tv_sec, status.st_ctim.tv_nsec, counter()};
}

/// SQLite moves this number with each commit in this journal mode. It is read through SQLite's own
/// descriptor.
std::uint32_t HiveFile::counter() const {
  std::uint32_t counter = 0;
  if (file_ != nullptr) file_->pMethods->xRead(file_, &counter, sizeof counter, kCounterPlace);
  return counter;
}

bool HiveFile::isAsMarked() const { return isMarked_ && state() == marked_; }

void HiveFile::mark() {
  marked_ = state();
  isMarked_ = true;
}

bool HiveFile::changedWithoutCount() const {
  const State now = state();
  return now != marked_ && now.counter == marked_.counter;
}

bool HiveFile::markNext() {
  const State before = marked_;
  mark();
  return marked_.inode == before.inode && numberOf(marked_.counter) == numberOf(before.counter) + 1;
}

bool HiveFile::mayWrite() const { return mayWriteFile(path_); }

/// SQLite's own way of waiting sleeps up to a tenth of a second, and a commit takes a hundredth of that.
int HiveFile::wait(void* file, int count) {
  auto* self = static_cast<HiveFile*>(file);
  const bool isChanging = self->changeEnd_ != Clock::time_point();
  if (count == 0) self->waitEnd_ = isChanging ? self->changeEnd_ : Clock::now() + kLongestRead;
  std::this_thread::sleep_for(std::chrono::microseconds(count < 20 ? 100 : 1000));
  return Clock::now() < self->waitEnd_ ? 1 : 0;
}

}  // namespace tessaly::platform
