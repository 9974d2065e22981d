#include "tessaly/platform/Files.h"

#include <windows.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "tessaly/base/Text.h"
#include "tessaly/platform/Bodies.h"

namespace tessaly::platform {
namespace {

struct CloseFile {
  using pointer = HANDLE;
  void operator()(HANDLE file) const { CloseHandle(file); }
};
using FileHandle = std::unique_ptr<HANDLE, CloseFile>;

struct CloseSearch {
  using pointer = HANDLE;
  void operator()(HANDLE search) const { FindClose(search); }
};
using SearchHandle = std::unique_ptr<HANDLE, CloseSearch>;

bool sameCharacters(std::wstring_view left, std::wstring_view right) {
  return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                              static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

bool endsWith(std::wstring_view name, std::wstring_view ending) {
  return name.size() >= ending.size() && sameCharacters(name.substr(name.size() - ending.size()), ending);
}

bool isShown(const WIN32_FIND_DATAW& entry) {
  constexpr DWORD notNormal = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  return (entry.dwFileAttributes & notNormal) == 0 && entry.cFileName[0] != L'.';
}

/// A link that leads nowhere, or to a folder, is no file.
bool leadsToFile(const WIN32_FIND_DATAW& entry, const std::wstring& folder) {
  if ((entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return true;
  const FileHandle file(CreateFileW((folder + entry.cFileName).c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (file.get() == INVALID_HANDLE_VALUE) return false;
  BY_HANDLE_FILE_INFORMATION target{};
  return GetFileInformationByHandle(file.get(), &target) &&
         (target.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

/// A file for reading; none where it is no file or can't be opened.
FileHandle openFile(std::u16string_view path) {
  if (path.find(u'\0') != path.npos) return nullptr;
  HANDLE const opened =
      CreateFileW(toWide(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return nullptr;
  FileHandle file(opened);
  return GetFileType(opened) == FILE_TYPE_DISK ? std::move(file) : nullptr;
}

class WindowsFiles final : public Files {
 public:
  char16_t separator() override { return u'\\'; }

  std::optional<std::string> read(std::u16string_view path) override {
    const FileHandle file = openFile(path);
    if (!file) return std::nullopt;
    LARGE_INTEGER size{};
    if (!GetFileSizeEx(file.get(), &size) || size.QuadPart > MAXLONG) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    DWORD count = 0;
    if (!ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr))
      return std::nullopt;
    bytes.resize(count);
    return bytes;
  }

  bool opens(std::u16string_view path) override { return openFile(path) != nullptr; }

  std::vector<String> list(std::u16string_view folder, std::u16string_view ending) override {
    std::wstring path = toWide(folder);
    if (path.empty() || (path.back() != L'\\' && path.back() != L'/')) path += L'\\';
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW entry{};
    const SearchHandle search(FindFirstFileW((path + L'*').c_str(), &entry));
    for (BOOL found = search.get() != INVALID_HANDLE_VALUE; found;
         found = FindNextFileW(search.get(), &entry)) {
      // The ending is looked at here, since the system's own mask also takes a file's short name.
      const bool wanted =
          isShown(entry) && endsWith(entry.cFileName, toWide(ending)) && leadsToFile(entry, path);
      if (wanted) names.emplace_back(entry.cFileName);
    }
    std::sort(names.begin(), names.end(), [](const std::wstring& left, const std::wstring& right) {
      return CompareStringOrdinal(left.c_str(), -1, right.c_str(), -1, TRUE) == CSTR_LESS_THAN;
    });
    std::vector<String> result;
    std::transform(names.begin(), names.end(), std::back_inserter(result),
                   [](const auto& name) { return fromWide(name); });
    return result;
  }
};

}  // namespace

Files& ownFiles() {
  static WindowsFiles files;
  return files;
}

}  // namespace tessaly::platform
