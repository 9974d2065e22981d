#include "tools/zplogger/LogFiles.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "tools/support/Visible.h"

namespace tessaly::zplogger {
namespace {

constexpr std::size_t kMostKnown = 1000;
constexpr std::size_t kMostToldOfAFile = 16;
constexpr std::int64_t kLookEvery = 1000;

std::uint64_t sum(std::uint64_t left, std::uint64_t right) {
  return left > std::numeric_limits<std::uint64_t>::max() - right ? std::numeric_limits<std::uint64_t>::max()
                                                                  : left + right;
}

std::string whyNotMoved(const LogPath& log, const LogPath& backup) {
  if (!backup.fault.empty()) return backup.fault;
  return backup.key == log.key ? "it is the same file" : std::string();
}

}  // namespace

LogFiles::LogFiles(LogDisk& disk, std::uint64_t maxSize, Tell tell)
    : disk_(disk), maxSize_(maxSize), tell_(std::move(tell)) {}

void LogFiles::write(const LogPath& log, const LogPath& backup, std::string_view line, std::int64_t ticks) {
  if (log.path.empty()) return;
  Entry& entry = entryOf(log, ticks);
  if (entry.nextLook <= ticks) {
    entry.nextLook = ticks + kLookEvery;
    look(entry, log);
  }
  if (entry.file && entry.size > 0 && sum(entry.size, line.size()) > entry.moveAt) move(entry, log, backup);
  if (entry.file) append(entry, log, line);
}

LogFiles::Entry& LogFiles::entryOf(const LogPath& log, std::int64_t ticks) {
  const auto [place, isNew] = entries_.try_emplace(log.key);
  Entry& entry = place->second;
  entry.lastUse = ++uses_;
  if (isNew) {
    entry.moveAt = maxSize_;
    entry.nextLook = ticks;
    if (entries_.size() > kMostKnown) forgetOldest();
  }
  return entry;
}

void LogFiles::forgetOldest() {
  const auto isOlder = [](const auto& left, const auto& right) {
    return left.second.lastUse < right.second.lastUse;
  };
  entries_.erase(std::min_element(entries_.begin(), entries_.end(), isOlder));
}

void LogFiles::closeOldest() {
  Entry* oldest = nullptr;
  std::size_t count = 0;
  for (auto& [key, entry] : entries_) {
    if (!entry.file) continue;
    ++count;
    if (oldest == nullptr || entry.lastUse < oldest->lastUse) oldest = &entry;
  }
  if (count < kMostOpen) return;
  oldest->file.reset();
  // It is opened again as soon as it has a line.
  oldest->nextLook = std::numeric_limits<std::int64_t>::min();
}

void LogFiles::look(Entry& entry, const LogPath& log) {
  if (entry.file && !entry.file->isInPlace()) entry.file.reset();
  if (entry.file) {
    entry.size = entry.file->size();
  } else {
    open(entry, log);
  }
}

void LogFiles::open(Entry& entry, const LogPath& log) {
  closeOldest();
  std::string fault;
  entry.file = disk_.open(log.path, fault);
  entry.size = entry.file ? entry.file->size() : 0;
  // What was torn is still, unless the file is another one now.
  if (entry.file && entry.size == 0) entry.isTorn = false;
  if (!entry.file) tellOnce(entry, "can't write to " + tools::visible(log.path) + ": " + fault);
}

void LogFiles::move(Entry& entry, const LogPath& log, const LogPath& backup) {
  std::string why = whyNotMoved(log, backup);
  if (why.empty() && entries_.contains(backup.key)) why = "it is a client's log file";
  if (why.empty() && !backup.path.empty()) {
    // Windows moves no open file.
    entry.file.reset();
    why = disk_.move(log.path, backup.path);
    open(entry, log);
  }
  const bool isMoved = why.empty() && !backup.path.empty();
  // A reason may pass, so it is tried again, but not with each line.
  entry.moveAt = isMoved ? maxSize_ : sum(entry.size, maxSize_);
  if (!why.empty()) {
    tellOnce(entry,
             "can't move " + tools::visible(log.path) + " to its backup: " + why + "; it goes on growing");
  }
}

void LogFiles::append(Entry& entry, const LogPath& log, std::string_view line) {
  const std::string fault =
      entry.isTorn ? entry.file->append('\n' + std::string(line)) : entry.file->append(line);
  if (fault.empty()) {
    entry.size += line.size() + (entry.isTorn ? 1 : 0);
    entry.isTorn = false;
    return;
  }
  const std::uint64_t size = entry.file->size();
  entry.isTorn = entry.isTorn || size != entry.size;
  entry.size = size;
  tellOnce(entry, "can't write to " + tools::visible(log.path) + ": " + fault);
}

void LogFiles::tellOnce(Entry& entry, const std::string& notice) {
  if (entry.told.size() < kMostToldOfAFile && entry.told.insert(notice).second) tell_(notice);
}

}  // namespace tessaly::zplogger
