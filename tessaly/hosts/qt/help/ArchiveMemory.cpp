#include "tessaly/hosts/qt/help/ArchiveMemory.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

namespace tessaly::qt {

struct ArchiveMemory::OpenFile : mspack_file {
  explicit OpenFile(ArchiveMemory& of) : mspack_file{}, memory(&of) {}

  ArchiveMemory* memory;
  std::size_t at = 0;
};

namespace {

/// Not a field: libmspack's own parts allocate with a copy of the system that they were given. No two
/// memories of a thread are in use at once.
thread_local std::size_t allocatedByThread = 0;

void ignoreMessage(mspack_file* /*file*/, const char* /*format*/, ...) {}
void copyBytes(void* from, void* to, std::size_t count) { std::memcpy(to, from, count); }

}  // namespace

ArchiveMemory::ArchiveMemory(std::string_view archive, std::size_t mostWritten)
    : mspack_system{}, archive_(archive), mostWritten_(mostWritten) {
  allocatedByThread = 0;
  open = openFile;
  close = closeFile;
  read = readFile;
  write = writeFile;
  seek = seekFile;
  tell = tellFile;
  message = ignoreMessage;
  alloc = allocate;
  free = std::free;
  copy = copyBytes;
}

mspack_file* ArchiveMemory::openFile(mspack_system* self, const char* /*name*/, int /*mode*/) {
  return new (std::nothrow) OpenFile(of(self));
}

void ArchiveMemory::closeFile(mspack_file* file) { delete static_cast<OpenFile*>(file); }

int ArchiveMemory::readFile(mspack_file* file, void* buffer, int count) {
  if (count < 0) return -1;
  auto& opened = *static_cast<OpenFile*>(file);
  const std::string_view rest = opened.memory->archive_.substr(opened.at);
  const std::size_t taken = std::min(rest.size(), static_cast<std::size_t>(count));
  if (taken > 0) std::memcpy(buffer, rest.data(), taken);
  opened.at += taken;
  return static_cast<int>(taken);
}

int ArchiveMemory::writeFile(mspack_file* file, void* buffer, int count) {
  if (count < 0) return -1;
  const auto& opened = *static_cast<OpenFile*>(file);
  return opened.memory->append({static_cast<const char*>(buffer), static_cast<std::size_t>(count)}) ? count
                                                                                                    : -1;
}

int ArchiveMemory::seekFile(mspack_file* file, off_t offset, int mode) {
  auto& opened = *static_cast<OpenFile*>(file);
  const auto size = static_cast<off_t>(opened.memory->archive_.size());
  off_t from = 0;
  if (mode == MSPACK_SYS_SEEK_CUR) from = static_cast<off_t>(opened.at);
  if (mode == MSPACK_SYS_SEEK_END) from = size;
  if (offset < -from || offset > size - from) return -1;
  opened.at = static_cast<std::size_t>(from + offset);
  return 0;
}

off_t ArchiveMemory::tellFile(mspack_file* file) {
  return static_cast<off_t>(static_cast<OpenFile*>(file)->at);
}

/// What is freed counts on: a memory serves for one file.
void* ArchiveMemory::allocate(mspack_system* /*self*/, std::size_t count) {
  if (count > kMostAllocated - allocatedByThread) return nullptr;
  allocatedByThread += count;
  return std::malloc(count);
}

bool ArchiveMemory::append(std::string_view bytes) noexcept try {
  if (bytes.size() > mostWritten_ - written_.size()) return false;
  written_ += bytes;
  return true;
} catch (const std::bad_alloc&) {
  return false;
}

}  // namespace tessaly::qt
