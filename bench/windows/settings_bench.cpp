// CRegistry beside the platform's own calls, which it is made of: a key is opened, a value read, the key
// closed. Reads with 200 and with 200,000 values below the user's root, and writes, which reach no disk here.

#include <windows.h>

#include <cstdio>
#include <string>

#include "bench/SettingsPlaces.h"
#include "bench/windows/Compare.h"
#include "tessaly/base/Text.h"
#include "tessaly/settings/CRegistry.h"

namespace tessaly::bench {
namespace {

constexpr Long kUserRoot = 2;

CRegistry settings(std::size_t key) {
  CRegistry result;
  result.root(kUserRoot);
  result.rootPath(fromUtf8(keyName(key, "\\")));
  return result;
}

void fill(std::size_t from, std::size_t to) {
  for (std::size_t key = from; key < to; ++key) {
    CRegistry into = settings(key);
    for (std::size_t n = 0; n < kNumbersOfKey; ++n) into.SetLong(fromUtf8(numberName(n)), numberAt({key, n}));
    for (std::size_t n = 0; n < kTextsOfKey; ++n)
      into.SetString(fromUtf8(textName(n)), fromUtf8(textAt({key, n})));
  }
}

void clear(std::size_t keys) {
  for (std::size_t key = 0; key < keys; ++key) RegDeleteKeyA(HKEY_CURRENT_USER, keyName(key, "\\").c_str());
}

void readByPlatform(const std::string& path, const std::string& name) {
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) return;
  char data[64];
  DWORD type = 0;
  DWORD size = sizeof data;
  RegQueryValueExA(key, name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(data), &size);
  RegCloseKey(key);
}

void writeByPlatform(const std::string& path, const std::string& name, DWORD value) {
  HKEY key = nullptr;
  RegCreateKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
  RegSetValueExA(key, name.c_str(), 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof value);
  RegCloseKey(key);
}

bool isFilled(const CRegistry& key, const Place& place) {
  return key.GetLong(fromUtf8(numberName(place.value)), kDefault) == numberAt(place) &&
         toUtf8(key.GetString(fromUtf8(textName(place.value)), u"")) == textAt(place);
}

bool measure(const Store& store) {
  const Place place = onePlace(store).front();
  CRegistry key = settings(place.key);
  if (!isFilled(key, place)) return false;
  const std::string path = keyName(place.key, "\\");
  const std::string values = ", " + std::string(store.values);
  const auto compareReads = [&](const std::string& what, const std::string& name, auto read) {
    compare(what + values,
            {{"limit: open, query, close", [&] { readByPlatform(path, name); }, {}}, {"Tessaly", read, {}}});
  };
  const String number = fromUtf8(numberName(place.value));
  const String text = fromUtf8(textName(place.value));
  compareReads("number", toUtf8(number), [&] { key.GetLong(number, kDefault); });
  compareReads("text", toUtf8(text), [&] { key.GetString(text, u""); });
  compareReads("missing value", "None", [&] { key.GetLong(u"None", kDefault); });
  compare("write" + values,
          {{"limit: create, set, close", [&] { writeByPlatform(path, toUtf8(number), 1); }, {}},
           {"Tessaly", [&] { key.SetLong(number, 1); }, {}}});
  return true;
}

}  // namespace
}  // namespace tessaly::bench

int main() {
  using namespace tessaly::bench;
  fill(0, kFew.keys);
  bool isDone = measure(kFew);
  fill(kFew.keys, kMany.keys);
  isDone = measure(kMany) && isDone;
  clear(kMany.keys);
  if (!isDone) std::fputs("settings-bench: the settings can't be written\n", stderr);
  return isDone ? 0 : 1;
}
