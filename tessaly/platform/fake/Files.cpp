#include "tessaly/platform/fake/Files.h"

#include <algorithm>

#include "tessaly/platform/Bodies.h"

namespace tessaly::platform::fake {
namespace {

constexpr std::u16string_view kSeparators = u"\\/";

/// One spelling for each path.
String keyOf(std::u16string_view path) {
  String key(path);
  std::replace(key.begin(), key.end(), u'\\', u'/');
  return key;
}

String upperCased(std::u16string_view text) { return ownLocale().CharUpperW(text); }

}  // namespace

Files::Files(char16_t separator) : separator_(separator) {}
Files::Files() : Files(ownFiles().separator()) {}

void Files::put(std::u16string_view path, std::string bytes) { files_[keyOf(path)] = std::move(bytes); }
void Files::hide(std::u16string_view path) { hidden_.insert(keyOf(path)); }
void Files::remove(std::u16string_view path) { files_.erase(keyOf(path)); }
void Files::failRead(std::u16string_view path) { unreadable_.insert(keyOf(path)); }
void Files::failList() { listFails_ = true; }

std::optional<std::string> Files::read(std::u16string_view path) {
  const auto file = files_.find(keyOf(path));
  if (file == files_.end() || unreadable_.contains(file->first)) return std::nullopt;
  return file->second;
}

bool Files::opens(std::u16string_view path) { return read(path).has_value(); }

std::vector<String> Files::list(std::u16string_view folder, std::u16string_view ending) {
  String prefix = keyOf(folder);
  if (prefix.empty() || prefix.back() != u'/') prefix += u'/';
  std::vector<String> names;
  for (const auto& [path, bytes] : files_) {
    if (listFails_ || hidden_.contains(path) || !path.starts_with(prefix)) continue;
    String name = path.substr(prefix.size());
    const bool inFolder = !name.empty() && name.find_first_of(kSeparators) == String::npos;
    if (inFolder && name.front() != u'.' && upperCased(name).ends_with(upperCased(ending)))
      names.push_back(name);
  }
  std::sort(names.begin(), names.end(), [](const String& left, const String& right) {
    return std::pair(upperCased(left), left) < std::pair(upperCased(right), right);
  });
  return names;
}

}  // namespace tessaly::platform::fake
