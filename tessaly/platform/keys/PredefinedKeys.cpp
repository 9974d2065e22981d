#include "tessaly/platform/keys/PredefinedKeys.h"

#include <array>

#include "tessaly/platform/Core.h"

namespace tessaly::platform {
namespace {

using namespace std::string_view_literals;

constexpr std::array kClasses = {u"Software"sv, u"Classes"sv};
constexpr std::array kConfig = {u"System"sv, u"CurrentControlSet"sv, u"Hardware Profiles"sv, u"Current"sv};

template <class Names>
std::vector<std::u16string_view> below(const Names& outer, const std::vector<std::u16string_view>& names) {
  std::vector<std::u16string_view> result(outer.begin(), outer.end());
  result.insert(result.end(), names.begin(), names.end());
  return result;
}

}  // namespace

bool PredefinedKeys::isPredefined(RegistryKey key) {
  return key == kClassesRoot || key == kCurrentUser || key == kLocalMachine || key == kUsers ||
         key == kCurrentConfig;
}

KeyPlace PredefinedKeys::place(RegistryKey root, std::vector<std::u16string_view> names) const {
  switch (root) {
    case kLocalMachine:
      return {machine_, KeyStore::kRoot, std::move(names)};
    case kCurrentUser:
      return {user_, KeyStore::kRoot, std::move(names)};
    case kClassesRoot:
      return {machine_, KeyStore::kRoot, below(kClasses, names)};
    case kCurrentConfig:
      return {machine_, KeyStore::kRoot, below(kConfig, names)};
    default:
      return placeOfUser(std::move(names));
  }
}

KeyPlace PredefinedKeys::placeOfUser(std::vector<std::u16string_view> names) const {
  Locale& locale = *core().locale;
  if (names.empty() || locale.CharUpperW(names.front()) != locale.CharUpperW(userName_)) return {};
  names.erase(names.begin());
  return {user_, KeyStore::kRoot, std::move(names)};
}

}  // namespace tessaly::platform
