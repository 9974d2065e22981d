#include "tools/zplogger/LogPath.h"

#include <windows.h>

#include <array>

#include "tessaly/platform/Core.h"

namespace tessaly::zplogger {
namespace {

constexpr std::u16string_view kImpossible = u"<>\"|?*";

LogPath refused(const char* why) { return {{}, {}, why}; }

bool isLetter(char16_t c) { return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z'); }

/// X:\ and more.
bool isOnDrive(std::u16string_view path) {
  return path.size() > 3 && isLetter(path[0]) && path[1] == u':' && path[2] == u'\\';
}

/// \\server\share\ and more. A dot or a question mark for a server leads around the rules for names.
bool isOnServer(std::u16string_view path) {
  if (!path.starts_with(u"\\\\") || path.size() < 3 || path[2] == u'.' || path[2] == u'?' || path[2] == u'\\')
    return false;
  const auto share = path.find(u'\\', 2);
  if (share == std::u16string_view::npos || path.substr(share + 1).starts_with(u'\\')) return false;
  const auto file = path.find(u'\\', share + 1);
  return file != std::u16string_view::npos && file + 1 < path.size();
}

/// The share that is no disk.
bool isPipe(std::u16string_view path) {
  const auto share = path.find(u'\\', 2) + 1;
  const String name =
      platform::core().locale->CharUpperW(path.substr(share, path.find(u'\\', share) - share));
  return name == u"PIPE" || name == u"MAILSLOT" || name == u"IPC$";
}

bool hasImpossible(std::u16string_view path) {
  for (const char16_t c : path) {
    if (c < u' ' || kImpossible.find(c) != std::u16string_view::npos) return true;
  }
  return false;
}

/// The path without dots, doubled backslashes and blanks at its end, as the system understands it.
String fullPath(const String& text) {
  std::array<wchar_t, 32768> buffer{};
  const DWORD length = GetFullPathNameW(reinterpret_cast<const wchar_t*>(text.c_str()),
                                        static_cast<DWORD>(buffer.size()), buffer.data(), nullptr);
  if (length == 0 || length >= buffer.size()) return {};
  return {buffer.begin(), buffer.begin() + length};
}

}  // namespace

LogPath logPath(std::u16string_view text) {
  if (text.empty()) return {};
  if (!isOnDrive(text) && !isOnServer(text)) return refused("it is no absolute path");
  if (hasImpossible(text)) return refused("its name is none that a file can have");
  if (text.find(u':', 2) != std::u16string_view::npos) return refused("it is a stream within a file");
  const String path = fullPath(String(text));
  // Where a name is a device's, the system gives the device.
  if (!isOnDrive(path) && !isOnServer(path)) return refused("it is a device");
  if (isOnServer(path) && isPipe(path)) return refused("it is a pipe");
  if (path.ends_with(u'\\')) return refused("it is a folder");
  return {path, platform::core().locale->CharUpperW(path), {}};
}

}  // namespace tessaly::zplogger
