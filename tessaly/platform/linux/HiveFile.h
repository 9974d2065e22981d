#pragma once

#include <sys/stat.h>

#include <chrono>
#include <cstdint>
#include <filesystem>

#include "tessaly/platform/keys/HiveFile.h"
#include "tessaly/platform/linux/Descriptor.h"
#include "tessaly/platform/linux/Sqlite.h"

namespace tessaly::platform {

/// How long a reader waits for a writer to end, and a writer for all others together.
inline constexpr std::chrono::seconds kLongestRead(5);
inline constexpr std::chrono::seconds kLongestWrite(30);

/// How often work on a hive is tried that fails only because the file was changed or replaced meanwhile.
inline constexpr int kMostTries = 3;

/// A hive's file while it is open: which file it is, and the state that it was in when it was read.
class HiveFile {
 public:
  HiveFile(std::filesystem::path path, HiveReaders readers);

  sqlite3* database() const { return database_.get(); }

  bool isOpen() const { return database_ != nullptr; }

  /// The path without links, beside which SQLite has its journal.
  std::filesystem::path realPath() const;

  /// SQLite's own object of the open file.
  sqlite3_file* file() const { return file_; }

  /// Opens the file. `kNotFound` where there is none.
  Long open();

  /// Makes the folder where it is missing.
  Long makeFolder();

  /// Makes an empty file where none is.
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

  /// Remembers the state, and tells whether one commit alone has led to it from the one remembered before.
  bool markNext();

  /// Whether the file has changed since it was last remembered, and its change counter has not: it was put
  /// back, and SQLite would take what it has kept of it for good.
  bool changedWithoutCount() const;

  /// Forgets the state: from now on the file counts as changed.
  void unmark() { isMarked_ = false; }

  /// Whether the file may be written, or made where it is missing.
  bool mayWrite() const;

  /// The mode of files that are made.
  unsigned mode() const { return readers_ == HiveReaders::Owner ? 0600 : 0644; }

  /// When SQLite's waiting for locks ends from now on; without a time it is `kLongestRead` for each.
  void waitUntil(std::chrono::steady_clock::time_point end) { changeEnd_ = end; }

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
  std::filesystem::path realPath_;
  std::chrono::steady_clock::time_point waitEnd_;
  std::chrono::steady_clock::time_point changeEnd_;
};

}  // namespace tessaly::platform
