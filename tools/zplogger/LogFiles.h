#pragma once

#include <functional>
#include <map>
#include <set>

#include "tools/zplogger/LogDisk.h"
#include "tools/zplogger/LogPath.h"

namespace tessaly::zplogger {

/// The files that clients have named, each open once however many clients name it. One that would grow past a
/// size is moved to its backup and begun anew. What fails or is refused is told once for each file and
/// reason, and the line is left out. For one thread.
class LogFiles {
 public:
  using Tell = std::function<void(std::string notice)>;

  /// How many files are open at most; beyond that the one that was not written to for the longest time is
  /// closed.
  static constexpr std::size_t kMostOpen = 64;

  LogFiles(LogDisk& disk, std::uint64_t maxSize, Tell tell);

  /// Appends a line, which has its end with it. Looks at most once a second, by these ticks, whether the file
  /// was moved away or can be opened now. Without a backup path, a file goes on growing.
  void write(const LogPath& log, const LogPath& backup, std::string_view line, std::int64_t ticks);

 private:
  /// What is known of one file; without a file it is not open now.
  struct Entry {
    std::unique_ptr<LogFile> file;
    std::uint64_t size = 0;
    std::uint64_t moveAt = 0;

    /// Whether a write that failed has left a part of its line.
    bool isTorn = false;
    std::int64_t nextLook = 0;
    std::uint64_t lastUse = 0;
    std::set<std::string> told;
  };

  Entry& entryOf(const LogPath& log, std::int64_t ticks);
  void forgetOldest();
  void closeOldest();
  void look(Entry& entry, const LogPath& log);
  void open(Entry& entry, const LogPath& log);
  void move(Entry& entry, const LogPath& log, const LogPath& backup);
  void append(Entry& entry, const LogPath& log, std::string_view line);
  void tellOnce(Entry& entry, const std::string& notice);

  LogDisk& disk_;
  std::uint64_t maxSize_;
  Tell tell_;
  std::map<String, Entry> entries_;
  std::uint64_t uses_ = 0;
};

}  // namespace tessaly::zplogger
