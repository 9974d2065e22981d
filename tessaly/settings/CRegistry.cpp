#include "tessaly/settings/CRegistry.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>

#include "tessaly/base/LeadingNumber.h"
#include "tessaly/base/RuntimeError.h"
#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/BufferText.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/LocalNumber.h"
#include "tessaly/platform/OpenedKey.h"
#include "tessaly/platform/RootSelector.h"

namespace tessaly {

using platform::OpenedKey;

namespace {

constexpr OpenedKey::Purpose kReading = OpenedKey::Purpose::Reading;
constexpr OpenedKey::Purpose kWriting = OpenedKey::Purpose::Writing;

/// Calls write into these as if they were full of spaces; to fill them would cost more than all else.
constexpr std::uint32_t kTextBuffer = 30000;
constexpr std::uint32_t kSmallBuffer = 1000;

constexpr double kBeforeDates = -657435;
constexpr double kBehindDates = 2958466;

/// A text that some program stored with its NUL ends there; one of ours is followed by the buffer's spaces.
String storedText(std::string_view bytes) {
  platform::BufferText stored(bytes);
  if (!stored.isCut) stored.text.erase(stored.text.find_last_not_of(u' ') + 1);
  return std::move(stored.text);
}

/// A name loses the spaces at its front and control characters at its end, but no spaces there.
String keyName(std::string_view bytes) {
  String name = platform::fromAnsi(bytes);
  name.erase(0, name.find_first_not_of(u' '));
  while (!name.empty() && name.back() < u' ') name.pop_back();
  return name;
}

}  // namespace

CRegistry::CRegistry() = default;
CRegistry::~CRegistry() = default;

Long CRegistry::root() const { return root_; }

void CRegistry::root(Long selector) {
  root_ = selector;
  GetRootHandle(selector, rootHandle_);
}

void CRegistry::rootPath(std::u16string_view path) { rootPath_ = path; }
String CRegistry::rootPath() const { return rootPath_; }
void CRegistry::subPath(std::u16string_view path) { subPath_ = path; }

String CRegistry::subPath() {
  rootPath_ = subPath_;
  return {};
}

Boolean CRegistry::LongKeyExists(std::u16string_view name) const {
  return OpenedKey(rootHandle_, keyPath(), kReading).readLong(name).has_value();
}

Boolean CRegistry::StringKeyExists(std::u16string_view name) const {
  std::array<char, kSmallBuffer> buffer;
  return OpenedKey(rootHandle_, keyPath(), kReading).read(name, buffer.data(), kSmallBuffer).has_value();
}

void CRegistry::SetString(std::u16string_view name, std::u16string_view text) {
  WriteStringValue(name, text);
}

String CRegistry::GetString(std::u16string_view name, std::u16string_view defaultText) const {
  String text;
  ReadStringValue(name, defaultText, text);
  return text;
}

void CRegistry::SetDate(std::u16string_view name, double date) {
  WriteStringValue(name, platform::localNumberText(date));
}

double CRegistry::GetDate(std::u16string_view name, std::u16string_view defaultText) const {
  String text;
  ReadStringValue(name, defaultText, text);
  const double date = leadingNumber(text);
  if (date <= kBeforeDates || date >= kBehindDates) throw RuntimeError(RuntimeError::Overflow);
  return date;
}

void CRegistry::SetLong(std::u16string_view name, Long value) { WriteLongValue(name, value); }

Long CRegistry::GetLong(std::u16string_view name, Long defaultValue) const {
  Long value = 0;
  ReadLongValue(name, defaultValue, value);
  return value;
}

void CRegistry::SetBool(std::u16string_view name, Boolean value) { WriteLongValue(name, value ? 1 : 0); }

Boolean CRegistry::GetBool(std::u16string_view name, Boolean defaultValue) const {
  Long value = 0;
  ReadLongValue(name, defaultValue, value);
  return value != 0;
}

void CRegistry::SetColor(std::u16string_view name, Long color) { WriteLongValue(name, color); }

Long CRegistry::GetColor(std::u16string_view name, Long defaultColor) const {
  Long color = 0;
  ReadLongValue(name, defaultColor, color);
  return color;
}

Variant CRegistry::GetSubkeysNumber(Long rootSelector, std::u16string_view path) const {
  const auto count = OpenedKey(handleOf(rootSelector), path, kReading).subkeys();
  return count ? Variant(*count) : Variant(std::int16_t{0});
}

String CRegistry::GetSubKeyName(Long rootSelector, std::u16string_view path, Long index) const {
  const OpenedKey key(handleOf(rootSelector), path, kReading);
  if (!key.isOpen()) return {};
  if (index == std::numeric_limits<Long>::min()) throw RuntimeError(RuntimeError::Overflow);
  std::array<char, kSmallBuffer> buffer;
  if (!key.subkeyName(static_cast<std::uint32_t>(index - 1), buffer.data(), kSmallBuffer)) return {};
  return keyName({buffer.begin(), std::find(buffer.begin(), buffer.end(), '\0')});
}

Variant CRegistry::DeletePath(Long rootSelector, std::u16string_view path) {
  // The platform reads a path up to its NUL, so what is put behind one would never be reached.
  path = path.substr(0, path.find(u'\0'));
  const Long count = GetSubkeysNumber(rootSelector, path).toLong();
  for (Long index = 1; index <= count; ++index) {
    const String name = GetSubKeyName(rootSelector, path, index);
    // The first subkey's name can be empty where it is nothing but spaces. The path with a backslash behind
    // it is the same key once more, and with two of them it would go on so for ever.
    const bool goesInCircles = index == 1 && name.empty() && path.ends_with(u'\\');
    if (goesInCircles || DeletePath(rootSelector, String(path) + u'\\' + name).toLong() != 0) return True;
  }
  const std::string ansi = platform::toAnsi(path);
  return platform::core().registry->RegDeleteKeyA(handleOf(rootSelector), ansi.c_str()) != 0;
}

void CRegistry::GetRootHandle(Long selector, Long& handle) const { handle = platform::rootOf(selector); }

void CRegistry::GetKeyPath(String& path) const {
  path = rootPath_;
  if (!subPath_.empty()) path.append(1, u'\\').append(subPath_);
}

void CRegistry::WriteStringValue(std::u16string_view name, std::u16string_view text) {
  OpenedKey key(rootHandle_, keyPath(), kWriting);
  std::string bytes = platform::toAnsi(text);
  // The size counts characters, so two-byte ones are cut. A space behind the end keeps the platform from
  // taking what it might find there for the text's NUL.
  bytes.resize(text.size(), ' ');
  bytes += ' ';
  key.write(name, platform::kText, bytes.data(), static_cast<std::uint32_t>(text.size()));
}

void CRegistry::WriteLongValue(std::u16string_view name, Long value) {
  OpenedKey(rootHandle_, keyPath(), kWriting).writeLong(name, value);
}

void CRegistry::ReadStringValue(std::u16string_view name, std::u16string_view defaultText,
                                String& text) const {
  std::array<char, kTextBuffer> buffer;
  const auto size = OpenedKey(rootHandle_, keyPath(), kReading).read(name, buffer.data(), kTextBuffer);
  text = size ? storedText({buffer.data(), *size}) : String(defaultText);
}

void CRegistry::ReadLongValue(std::u16string_view name, Long defaultValue, Long& value) const {
  value = OpenedKey(rootHandle_, keyPath(), kReading).readLong(name).value_or(defaultValue);
}

String CRegistry::keyPath() const {
  String path;
  GetKeyPath(path);
  return path;
}

Long CRegistry::handleOf(Long selector) const {
  Long handle = 0;
  GetRootHandle(selector, handle);
  return handle;
}

}  // namespace tessaly
