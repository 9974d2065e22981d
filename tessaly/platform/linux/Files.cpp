#include "tessaly/platform/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <filesystem>
#include <utility>

#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/linux/Descriptor.h"
#include "tessaly/platform/linux/Path.h"
#include "tessaly/platform/linux/UpperCase.h"

namespace tessaly::platform {
namespace {

/// Reads to the end or until the buffer is full; the count, or -1.
ssize_t readAll(int descriptor, char* buffer, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t count = ::read(descriptor, buffer + done, size - done);
    if (count == 0) break;
    if (count > 0) done += static_cast<std::size_t>(count);
    if (count < 0 && errno != EINTR) return -1;
  }
  return static_cast<ssize_t>(done);
}

/// A file for reading with its status; none where it is no file or can't be opened.
Descriptor openFile(std::u16string_view path, struct stat& status) {
  const auto native = pathBytes(path);
  if (!native) return Descriptor();
  // Not blocking, since a pipe in a file's place would hold the caller until somebody writes.
  Descriptor file(open(native->c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
  const bool isFile = file.isOpen() && fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode);
  return isFile ? std::move(file) : Descriptor();
}

struct Name {
  String text;
  String upper;
  bool operator<(const Name& other) const {
    return upper != other.upper ? upper < other.upper : text < other.text;
  }
};

class LinuxFiles final : public Files {
 public:
  char16_t separator() override { return u'/'; }

  std::optional<std::string> read(std::u16string_view path) override {
    struct stat status {};
    const Descriptor file = openFile(path, status);
    if (!file.isOpen() || status.st_size > INT_MAX) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    const ssize_t count = readAll(file.get(), bytes.data(), bytes.size());
    if (count < 0) return std::nullopt;
    bytes.resize(static_cast<std::size_t>(count));
    return bytes;
  }

  bool opens(std::u16string_view path) override {
    struct stat status {};
    return openFile(path, status).isOpen();
  }

  std::vector<String> list(std::u16string_view folder, std::u16string_view ending) override {
    const auto native = pathBytes(folder.empty() ? u"/" : folder);
    if (!native) return {};
    const String upperEnding = upperCased(ending);
    std::vector<Name> names;
    std::error_code error;
    std::filesystem::directory_iterator entry(*native, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
      std::error_code unknown;
      String text = pathText(entry->path().filename().native());
      String upper = upperCased(text);
      if (text.front() == u'.' || !upper.ends_with(upperEnding) || !entry->is_regular_file(unknown)) continue;
      names.push_back({std::move(text), std::move(upper)});
    }
    std::sort(names.begin(), names.end());
    std::vector<String> result;
    result.reserve(names.size());
    for (Name& name : names) result.push_back(std::move(name.text));
    return result;
  }
};

}  // namespace

Files& ownFiles() {
  static LinuxFiles files;
  return files;
}

}  // namespace tessaly::platform
