#pragma once

#include <sys/stat.h>

#include <chrono>
#include <cstdint>
#include <filesystem>

#include "tessaly/platform/keys/HiveFile.h"
#include "tessaly/platform/linux/Descriptor.h"
#include "tessaly/platform/linux/Sqlite.h"

namespace tessaly::platform {

/// How long a reader waits for a writer to end, and a writer for all others.
inline constexpr std::chrono::seconds kLongestRead(5);
inline constexpr std::chrono::seconds kLongestWrite(30);

/// A hive's file while it is open: which file it is, and the state that it was in when it was read.
class HiveFile {
 public:
  HiveFile(std::filesystem::path path, HiveReaders readers);

  const std::filesystem::path& path() const { return path_; }
  sqlite3* database() const { return database_.get(); }

  /// SQLite's own object of the open file.
  sqlite3_file* file() const { return file_; }

  /// Opens the file. `kNotFound` where there is none.
  Long open();

  /// Makes the folder and an empty file where they are missing.
  Long make();

  /// A file of SQLite's other journal mode would have files made beside it by being looked at.
  bool hasJournalModeOfHives() const;

  /// Settles how changes reach the disk; before the first change.
  Long prepareToWrite();

  /// Lets go of the file.
  void close();

  /// Lets go of a file that the process before the fork has open, without a word to it.
  void abandon();

  /// Whether the file is the one that stands at the path.
  bool isInPlace() const;

  /// Whether the file, or there being none, is as it was when `mark` was called.
  bool isAsMarked() const;

  /// Remembers the state that the file is in. A reader calls it within its transaction, when none can write.
  void mark();

  bool isMarked() const { return isMarked_; }

  /// Forgets the state: from now on the file counts as changed.
  void unmark() { isMarked_ = false; }

  /// Whether the file may be written, or made where it is missing.
  bool mayWrite() const;

  /// The mode of files that are made.
  unsigned mode() const { return readers_ == HiveReaders::Owner ? 0600 : 0644; }

  /// How long SQLite waits for locks from now on.
  void waitFor(std::chrono::milliseconds longest);

 private:
  /// What changes when a file does.
  struct State {
    std::uint64_t inode = 0;
    std::int64_t size = -1;
    std::int64_t changed = 0;
    std::int64_t changedPart = 0;
    std::uint32_t counter = 0;
    bool operator==(const State&) const = default;
  };

  State state() const;
  std::uint32_t counter() const;
  Long openDatabase();
  static int wait(void* file, int count);

  std::filesystem::path path_;
  HiveReaders readers_;
  Descriptor place_;
  sqlite::Database database_;
  sqlite3_file* file_ = nullptr;
  State marked_;
  bool isMarked_ = false;
  bool isPrepared_ = false;
  std::chrono::steady_clock::time_point waitEnd_;
  std::chrono::milliseconds longestWait_{kLongestRead};
};

}  // namespace tessaly::platform
