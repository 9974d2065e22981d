#include "tests/tools/zplogger/Stage.h"

#include <algorithm>
#include <utility>

namespace tessaly::tests {

class MemoryDisk::File final : public zplogger::LogFile {
 public:
  File(MemoryDisk& disk, std::string path) : disk_(disk), path_(std::move(path)), bytes_(disk.place(path_)) {
    disk_.mostOpenFiles = std::max(disk_.mostOpenFiles, ++disk_.openFiles);
  }
  File(const File&) = delete;
  File& operator=(const File&) = delete;
  ~File() override { --disk_.openFiles; }

  std::uint64_t size() override { return bytes_->size(); }

  std::string append(std::string_view bytes) override {
    ++disk_.writes;
    *bytes_ += disk_.writeFault.empty() ? bytes : bytes.substr(0, disk_.tornAt);
    return disk_.writeFault;
  }

  bool isInPlace() override { return disk_.has(path_) && disk_.place(path_) == bytes_; }

 private:
  MemoryDisk& disk_;
  std::string path_;
  std::shared_ptr<std::string> bytes_;
};

std::shared_ptr<std::string>& MemoryDisk::place(const std::string& path) {
  auto& bytes = files_[path];
  if (!bytes) bytes = std::make_shared<std::string>();
  return bytes;
}

std::unique_ptr<zplogger::LogFile> MemoryDisk::open(const String& path, std::string& fault) {
  ++openings;
  fault = openFault;
  if (!fault.empty()) return nullptr;
  return std::make_unique<File>(*this, toUtf8(path));
}

std::string MemoryDisk::move(const String& from, const String& to) {
  ++moves;
  if (!moveFault.empty()) return moveFault;
  auto moved = files_.extract(toUtf8(from));
  moved.key() = toUtf8(to);
  files_.erase(moved.key());
  files_.insert(std::move(moved));
  return {};
}

std::vector<std::string> rest(zplogger::View& view) {
  std::vector<std::string> result;
  view.finish();
  for (bool isLast = false; !isLast;) {
    const zplogger::View::Work work = view.next();
    for (const zplogger::Entry& entry : work.entries) {
      if (const auto* line = std::get_if<zplogger::Line>(&entry)) {
        result.push_back(toUtf8(line->client) + '/' + std::to_string(line->process) + ": " +
                         toUtf8(line->record.text));
      } else if (const auto* missed = std::get_if<zplogger::Missed>(&entry)) {
        result.push_back(std::to_string(missed->count) + " missed");
      } else {
        result.push_back("# " + std::get<zplogger::Notice>(entry).text);
      }
    }
    isLast = work.isLast;
  }
  return result;
}

zplogger::Line lineOf(std::u16string_view text, std::uint8_t level) {
  return {{2026, 11, 21, 21, 40, 24, 123}, u"Host", 0, {0, 0xFFFFFF, true, level, String(text)}};
}

}  // namespace tessaly::tests
