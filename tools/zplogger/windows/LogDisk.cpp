#include "tools/zplogger/LogDisk.h"

#include <array>

#include "tools/zplogger/LogLine.h"
#include "tools/zplogger/windows/Handle.h"

namespace tessaly::zplogger {
namespace {

constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// The form in which a path may be long and no name means anything but a file.
String verbatim(const String& path) {
  return path.starts_with(u"\\\\") ? u"\\\\?\\UNC\\" + path.substr(2) : u"\\\\?\\" + path;
}

/// Opens what stands at a path itself, be it a link or a folder, only to look at it.
Handle lookAt(const String& path) {
  return Handle(CreateFileW(wide(path), FILE_READ_ATTRIBUTES, kShared, nullptr, OPEN_EXISTING,
                            FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

/// Whether it leads elsewhere. Other such points, as those of files in a cloud, do not.
bool isLink(HANDLE file) {
  FILE_ATTRIBUTE_TAG_INFO info = {};
  if (GetFileInformationByHandleEx(file, FileAttributeTagInfo, &info, sizeof info) != 0)
    return (info.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           IsReparseTagNameSurrogate(info.ReparseTag);
  // A disk that does not tell the kind of such a point may have any.
  BY_HANDLE_FILE_INFORMATION plain = {};
  return GetFileInformationByHandle(file, &plain) == 0 ||
         (plain.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

/// Where the names behind the drive or the share begin.
std::size_t endOfRoot(const String& path) {
  return path.starts_with(u"\\\\") ? path.find(u'\\', path.find(u'\\', 2) + 1) : 2;
}

/// Looks for links among the folders of a path.
std::string checkFolders(const String& path) {
  for (std::size_t end = path.find(u'\\', endOfRoot(path) + 1); end != String::npos;
       end = path.find(u'\\', end + 1)) {
    const Handle folder = lookAt(verbatim(path.substr(0, end)));
    if (!folder.isOpen()) {
      const DWORD error = GetLastError();
      const bool isMissing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
      return isMissing ? "its folder is not there" : lastError();
    }
    if (isLink(folder.get())) return "there is a link in its path";
  }
  return {};
}

std::string checkFile(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION info = {};
  if (GetFileType(file) != FILE_TYPE_DISK) return "it is no normal file";
  if (GetFileInformationByHandle(file, &info) == 0) return lastError();
  if (isLink(file)) return "it is a link";
  if ((info.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return "it is a folder";
  return info.nNumberOfLinks > 1 ? "it has more than one name" : "";
}

struct Check {
  bool isMissing = false;
  std::string fault;
};

Check check(const String& path) {
  std::string fault = checkFolders(path);
  if (!fault.empty()) return {false, fault};
  const Handle file = lookAt(verbatim(path));
  if (file.isOpen()) return {false, checkFile(file.get())};
  return GetLastError() == ERROR_FILE_NOT_FOUND ? Check{true, {}} : Check{false, lastError()};
}

class OpenLog final : public LogFile {
 public:
  OpenLog(String path, Handle file) : path_(std::move(path)), file_(std::move(file)) {}

  std::uint64_t size() override {
    LARGE_INTEGER size = {};
    return GetFileSizeEx(file_.get(), &size) != 0 ? static_cast<std::uint64_t>(size.QuadPart) : 0;
  }

  std::string append(std::string_view bytes) override {
    DWORD count = 0;
    const auto size = static_cast<DWORD>(bytes.size());
    if (WriteFile(file_.get(), bytes.data(), size, &count, nullptr) == 0) return lastError();
    return count == size ? "" : "the disk is full";
  }

  bool isInPlace() override {
    const Handle there = lookAt(verbatim(path_));
    BY_HANDLE_FILE_INFORMATION own = {};
    BY_HANDLE_FILE_INFORMATION other = {};
    return there.isOpen() && GetFileInformationByHandle(file_.get(), &own) != 0 &&
           GetFileInformationByHandle(there.get(), &other) != 0 &&
           own.dwVolumeSerialNumber == other.dwVolumeSerialNumber &&
           own.nFileIndexHigh == other.nFileIndexHigh && own.nFileIndexLow == other.nFileIndexLow;
  }

 private:
  String path_;
  Handle file_;
};

/// Whether what stands there, if anything does, may be moved or go.
std::string checkLog(const String& path, const char* whyNot) {
  const Check found = check(path);
  if (found.isMissing || !found.fault.empty()) return found.fault;
  const Handle file(CreateFileW(wide(verbatim(path)), GENERIC_READ, kShared, nullptr, OPEN_EXISTING,
                                FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
  if (!file.isOpen()) return lastError();
  std::string fault = checkFile(file.get());
  if (!fault.empty()) return fault;
  std::array<char, kStampSize> front{};
  DWORD count = 0;
  if (ReadFile(file.get(), front.data(), static_cast<DWORD>(front.size()), &count, nullptr) == 0)
    return lastError();
  return beginsAsLog({front.data(), count}) ? "" : whyNot;
}

struct OwnLogDisk final : LogDisk {
  std::unique_ptr<LogFile> open(const String& path, std::string& fault) override {
    fault = check(path).fault;
    if (!fault.empty()) return nullptr;
    Handle file(CreateFileW(wide(verbatim(path)), FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE,
                            FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    fault = file.isOpen() ? checkFile(file.get()) : lastError();
    // The folders again, should one have become a link since.
    if (fault.empty()) fault = checkFolders(path);
    if (!fault.empty()) return nullptr;
    return std::make_unique<OpenLog>(path, std::move(file));
  }

  std::string move(const String& from, const String& to) override {
    std::string fault = checkLog(from, "it is no log");
    if (fault.empty()) fault = checkLog(to, "what stands in its place is no log");
    if (!fault.empty()) return fault;
    const bool isMoved =
        MoveFileExW(wide(verbatim(from)), wide(verbatim(to)), MOVEFILE_REPLACE_EXISTING) != 0;
    if (isMoved) return {};
    return GetLastError() == ERROR_NOT_SAME_DEVICE ? "it is on another disk" : lastError();
  }
};

}  // namespace

LogDisk& ownLogDisk() {
  static OwnLogDisk disk;
  return disk;
}

}  // namespace tessaly::zplogger
