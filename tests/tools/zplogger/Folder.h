#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "tests/support/TemporaryFolder.h"
#include "tools/zplogger/LogDisk.h"

namespace tessaly::tests {

/// A folder of log files on the disk.
class LogFolder {
 public:
  std::filesystem::path path(std::u16string_view name) const { return (root_ / name).make_preferred(); }

  /// Opens a log file and appends to it; gives what failed, or an empty text.
  std::string append(std::u16string_view name, std::string_view bytes) const {
    std::string fault;
    const auto file = zplogger::ownLogDisk().open(path(name).u16string(), fault);
    return file ? file->append(bytes) : fault;
  }

  std::string move(std::u16string_view from, std::u16string_view to) const {
    return zplogger::ownLogDisk().move(path(from).u16string(), path(to).u16string());
  }

  void write(std::u16string_view name, std::string_view bytes) const { folder_.write(name, bytes); }

  std::string read(std::u16string_view name) const {
    std::ifstream in(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }

 private:
  TemporaryFolder folder_;

  /// Temporary folders may lie behind a link, which log files may not.
  std::filesystem::path root_ = std::filesystem::canonical(folder_.path());
};

}  // namespace tessaly::tests
