#pragma once

#include <mspack.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace tessaly::qt {

/// What libmspack has in the place of a file system: the one file to be read is an archive in memory, and
/// the one to be written is a text. A write beyond its bound fails, and so does an allocation beyond what an
/// archive may cost, so a hostile one does not take all that the machine has. A thread uses one at a time.
class ArchiveMemory : public mspack_system {
 public:
  static constexpr std::size_t kMostAllocated = std::size_t{128} << 20U;

  explicit ArchiveMemory(std::string_view archive, std::size_t mostWritten = 0);
  ArchiveMemory(const ArchiveMemory&) = delete;
  ArchiveMemory& operator=(const ArchiveMemory&) = delete;

  std::string& written() { return written_; }

 private:
  struct OpenFile;

  static ArchiveMemory& of(mspack_system* self) { return *static_cast<ArchiveMemory*>(self); }
  static mspack_file* openFile(mspack_system* self, const char* name, int mode);
  static void closeFile(mspack_file* file);
  static int readFile(mspack_file* file, void* buffer, int count);
  static int writeFile(mspack_file* file, void* buffer, int count);
  static int seekFile(mspack_file* file, off_t offset, int mode);
  static off_t tellFile(mspack_file* file);
  static void* allocate(mspack_system* self, std::size_t count);

  bool append(std::string_view bytes) noexcept;

  std::string_view archive_;
  std::size_t mostWritten_;
  std::string written_;
};

}  // namespace tessaly::qt
