#include "tessaly/hosts/qt/help/ArchiveReader.h"

#include <memory>
#include <utility>

#include "tessaly/hosts/qt/help/ArchiveMemory.h"

namespace tessaly::qt {
namespace {

/// What lies before a file may have to be unpacked too, so this bounds the time.
constexpr off_t kFarthestByte = off_t{512} << 20U;

/// The header names two kinds of table by two identifiers that differ in their first byte. Some compilers
/// write the first one twice, which the platform's own viewer reads and libmspack does not.
constexpr std::size_t kFirstIdentifier = 0x18;
constexpr std::size_t kSecondIdentifier = 0x28;
constexpr std::size_t kIdentifierSize = 16;
constexpr char kFirstByteOfSecond = '\x11';

bool hasIdentifierTwice(const std::string& bytes) {
  return bytes.size() >= kSecondIdentifier + kIdentifierSize &&
         bytes.compare(kFirstIdentifier, kIdentifierSize, bytes, kSecondIdentifier, kIdentifierSize) == 0;
}

/// An archive while it is being read. One that has met damage keeps its error, and one that is before a file
/// unpacks all that lies between; so each file gets a new one.
class OpenedArchive {
 public:
  explicit OpenedArchive(ArchiveMemory& memory)
      : decompressor_(mspack_create_chm_decompressor(&memory), mspack_destroy_chm_decompressor) {
    // It is told names of files, which have no meaning to a memory.
    if (decompressor_) header_ = decompressor_->open(decompressor_.get(), "archive");
  }
  OpenedArchive(const OpenedArchive&) = delete;
  OpenedArchive& operator=(const OpenedArchive&) = delete;
  ~OpenedArchive() {
    if (header_ != nullptr) decompressor_->close(decompressor_.get(), header_);
  }

  bool isOpen() const { return header_ != nullptr; }
  mschmd_file* files() const { return isOpen() ? header_->files : nullptr; }
  bool extract(mschmd_file& file) const {
    return decompressor_->extract(decompressor_.get(), &file, "file") == MSPACK_ERR_OK;
  }

 private:
  std::unique_ptr<mschm_decompressor, decltype(&mspack_destroy_chm_decompressor)> decompressor_;
  mschmd_header* header_ = nullptr;
};

bool isWithinBounds(const mschmd_file& file) {
  constexpr auto kLargest = static_cast<off_t>(ArchiveReader::kLargestFile);
  return file.length >= 0 && file.length <= kLargest && file.offset >= 0 &&
         file.offset <= kFarthestByte - file.length;
}

}  // namespace

ArchiveReader::ArchiveReader(std::string bytes) : bytes_(std::move(bytes)) {
  if (hasIdentifierTwice(bytes_)) bytes_[kSecondIdentifier] = kFirstByteOfSecond;
}

std::optional<std::vector<std::string>> ArchiveReader::names() const {
  ArchiveMemory memory(bytes_);
  const OpenedArchive archive(memory);
  if (!archive.isOpen()) return {};
  std::vector<std::string> names;
  for (const mschmd_file* file = archive.files(); file != nullptr; file = file->next) {
    names.emplace_back(file->filename);
  }
  return names;
}

std::optional<std::string> ArchiveReader::read(std::size_t place) const {
  ArchiveMemory memory(bytes_, kLargestFile);
  const OpenedArchive archive(memory);
  mschmd_file* file = archive.files();
  for (std::size_t i = 0; i < place && file != nullptr; ++i) file = file->next;
  if (file == nullptr || !isWithinBounds(*file) || !archive.extract(*file)) return {};
  return std::move(memory.written());
}

}  // namespace tessaly::qt
