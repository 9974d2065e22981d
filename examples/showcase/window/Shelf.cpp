#include "examples/showcase/window/Shelf.h"

#include <algorithm>

#include "examples/showcase/window/Paths.h"

namespace showcase {
namespace {

using tessaly::String;

constexpr std::u16string_view kEnding = u".rep";
constexpr std::u16string_view kForbidden = u"<>:\"/\\|?*";
constexpr std::size_t kLongest = 80;

String nameIn(const std::filesystem::path& path) {
  const auto bytes = path.filename().u8string();
  return tessaly::fromUtf8({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

}  // namespace

std::vector<String> Shelf::names() const {
  std::vector<String> names;
  std::error_code fault;
  for (std::filesystem::directory_iterator entry(pathOf(folder_), fault), end; !fault && entry != end;
       entry.increment(fault)) {
    String name = nameIn(entry->path());
    if (name.ends_with(kEnding)) names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end());
  return names;
}

bool Shelf::has(std::u16string_view name) const {
  std::error_code fault;
  return std::filesystem::exists(pathOf(pathTo(name)), fault);
}

bool Shelf::remove(std::u16string_view name) const {
  std::error_code fault;
  return std::filesystem::remove(pathOf(pathTo(name)), fault);
}

String Shelf::fileName(std::u16string_view written) {
  String name(written.substr(0, kLongest));
  std::replace_if(
      name.begin(), name.end(),
      [](char16_t c) { return c < u' ' || kForbidden.find(c) != std::u16string_view::npos; }, u'_');
  if (name.ends_with(kEnding)) name.resize(name.size() - kEnding.size());
  while (name.starts_with(u' ')) name.erase(0, 1);
  while (name.ends_with(u' ') || name.ends_with(u'.')) name.pop_back();
  return name.empty() ? name : name + String(kEnding);
}

}  // namespace showcase
