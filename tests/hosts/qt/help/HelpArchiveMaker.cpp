#include "tests/hosts/qt/help/HelpArchiveMaker.h"

#include <stdexcept>
#include <vector>

#include "tests/support/pictures/Bytes.h"

namespace tessaly::tests {
namespace {

constexpr std::uint32_t kChunk = 4096;
constexpr std::uint32_t kNone = 0xFFFFFFFF;
constexpr std::size_t kIdentifierSize = 16;

/// The two of the header differ in their first byte.
std::string identifier(std::uint32_t first) {
  using namespace std::string_literals;
  return Bytes().byte(first).text("\xFD\x01\x7C\xAA\x7B\xD0\x11\x9E\x0C\0\xA0\xC9\x22\xE6\xEC"s).get();
}

/// Seven bits a byte, the highest first.
std::string packedNumber(std::size_t number) {
  std::string bytes(1, static_cast<char>(number & 0x7FU));
  for (number >>= 7U; number > 0; number >>= 7U) {
    bytes.insert(bytes.begin(), static_cast<char>((number & 0x7FU) | 0x80U));
  }
  return bytes;
}

std::string entryOf(const std::string& name, std::size_t offset, std::size_t size) {
  const std::string path = '/' + name;
  return packedNumber(path.size()) + path + packedNumber(0) + packedNumber(offset) + packedNumber(size);
}

/// A piece of the directory while it fills up.
class Chunk {
 public:
  bool add(const std::string& entry) {
    if (kHeader + entries_.size() + entry.size() + kCount > kChunk) return false;
    entries_ += entry;
    ++count_;
    return true;
  }

  std::string bytes(std::uint32_t number, bool isLast) const {
    const auto rest = static_cast<std::uint32_t>(kChunk - kHeader - entries_.size());
    return Bytes()
        .text("PMGL")
        .number(rest)
        .number(0)
        .number(number == 0 ? kNone : number - 1)
        .number(isLast ? kNone : number + 1)
        .text(entries_)
        .zeros(rest - kCount)
        .word(count_)
        .get();
  }

 private:
  static constexpr std::size_t kHeader = 20;
  static constexpr std::size_t kCount = 2;

  std::string entries_;
  std::uint32_t count_ = 0;
};

std::vector<Chunk> chunksOf(const std::map<std::string, std::string>& files) {
  std::vector<Chunk> chunks(1);
  std::size_t offset = 0;
  for (const auto& [name, content] : files) {
    const std::string entry = entryOf(name, offset, content.size());
    offset += content.size();
    if (chunks.back().add(entry)) continue;
    if (!chunks.emplace_back().add(entry)) throw std::runtime_error("The name is too long for an archive.");
  }
  return chunks;
}

std::string directoryOf(const std::vector<Chunk>& chunks) {
  const auto count = static_cast<std::uint32_t>(chunks.size());
  Bytes bytes;
  bytes.text("ITSP").number(1).number(0x54).number(10).number(kChunk).number(2).number(1).number(kNone);
  bytes.number(0).number(count - 1).number(kNone).number(count).number(0x409).zeros(kIdentifierSize);
  bytes.number(0x54).number(kNone).number(kNone).number(kNone);
  for (std::uint32_t i = 0; i < count; ++i) bytes.text(chunks[i].bytes(i, i + 1 == count));
  return bytes.get();
}

}  // namespace

std::string helpArchive(const std::map<std::string, std::string>& files) {
  constexpr std::uint32_t kHeader = 0x60;
  constexpr std::uint32_t kSizes = 0x18;
  const std::string directory = directoryOf(chunksOf(files));
  std::string content;
  for (const auto& file : files) content += file.second;
  const auto start = static_cast<std::uint32_t>(kHeader + kSizes + directory.size());
  const auto whole = static_cast<std::uint32_t>(start + content.size());
  Bytes bytes;
  bytes.text("ITSF").number(3).number(kHeader).number(1).number(0).number(0x409);
  bytes.text(identifier(0x10)).text(identifier(0x11));
  bytes.number(kHeader).number(0).number(kSizes).number(0);
  bytes.number(kHeader + kSizes).number(0).number(static_cast<std::uint32_t>(directory.size())).number(0);
  bytes.number(start).number(0);
  bytes.number(0x1FE).number(0).number(whole).number(0).number(0).number(0);
  return bytes.text(directory).text(content).get();
}

}  // namespace tessaly::tests
