#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "tessaly/base/Text.h"
#include "tools/zplogger/Clock.h"
#include "tools/zplogger/LogDisk.h"
#include "tools/zplogger/View.h"

namespace tessaly::tests {

/// A clock that a test sets.
struct StoppedClock final : zplogger::Clock {
  zplogger::Moment now() override { return moment; }

  zplogger::Moment moment{0, {2026, 11, 21, 21, 40, 24, 123}};
};

/// Log files in memory, with failures by a test's choice.
class MemoryDisk final : public zplogger::LogDisk {
 public:
  std::unique_ptr<zplogger::LogFile> open(const String& path, std::string& fault) override;
  std::string move(const String& from, const String& to) override;

  std::string& at(const std::string& path) { return *place(path); }
  bool has(const std::string& path) const { return files_.contains(path); }

  /// What stands at a path goes away, though it may be open.
  void remove(const std::string& path) { files_.erase(path); }

  /// What fails from now on; nothing fails while they are empty.
  std::string openFault;
  std::string moveFault;
  std::string writeFault;

  /// How much of a write that fails still arrives.
  std::size_t tornAt = 0;

  int openings = 0;
  int moves = 0;
  std::size_t openFiles = 0;
  std::size_t mostOpenFiles = 0;
  int writes = 0;

 private:
  class File;
  std::shared_ptr<std::string>& place(const std::string& path);

  std::map<std::string, std::shared_ptr<std::string>> files_;
};

/// All that waits in a view that is finished by this, notices with a '#' before them.
std::vector<std::string> rest(zplogger::View& view);

/// A line of a client named Host.
zplogger::Line lineOf(std::u16string_view text, std::uint8_t level = 0);

}  // namespace tessaly::tests
