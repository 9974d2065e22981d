#include "tools/tessaly-reg/KeyName.h"

#include <algorithm>
#include <array>

namespace tessaly::reg {
namespace {

using platform::RegistryKey;

struct Root {
  RegistryKey key;
  std::u16string_view longName;
  std::u16string_view shortName;
};

constexpr std::array kRoots = {Root{platform::kLocalMachine, u"HKEY_LOCAL_MACHINE", u"HKLM"},
                               Root{platform::kCurrentUser, u"HKEY_CURRENT_USER", u"HKCU"},
                               Root{platform::kClassesRoot, u"HKEY_CLASSES_ROOT", u"HKCR"},
                               Root{platform::kUsers, u"HKEY_USERS", u"HKU"},
                               Root{platform::kCurrentConfig, u"HKEY_CURRENT_CONFIG", u"HKCC"}};

char16_t upper(char16_t unit) {
  return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - u'a' + u'A') : unit;
}

}  // namespace

bool isWord(std::u16string_view text, std::u16string_view word) {
  return std::equal(text.begin(), text.end(), word.begin(), word.end(),
                    [](char16_t left, char16_t right) { return upper(left) == upper(right); });
}

std::optional<KeyName> keyNamed(std::u16string_view text) {
  const std::size_t end = std::min(text.find(u'\\'), text.size());
  const std::u16string_view word = text.substr(0, end);
  const auto* const found = std::find_if(kRoots.begin(), kRoots.end(), [&](const Root& root) {
    return isWord(word, root.longName) || isWord(word, root.shortName);
  });
  if (found == kRoots.end()) return std::nullopt;
  // Backslashes that a shell or a programmer has doubled count as one.
  text.remove_prefix(std::min(text.find_first_not_of(u'\\', end), text.size()));
  return KeyName{found->key, String(text)};
}

std::u16string_view longName(RegistryKey root) {
  const auto* const found =
      std::find_if(kRoots.begin(), kRoots.end(), [&](const Root& known) { return known.key == root; });
  return found != kRoots.end() ? found->longName : std::u16string_view();
}

}  // namespace tessaly::reg
