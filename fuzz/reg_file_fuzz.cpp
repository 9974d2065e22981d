// Any bytes as a .reg file: it is refused by line, or what it asks for comes back from an export of it.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/keys/KeyLimits.h"
#include "tessaly/platform/keys/MemoryKeys.h"
#include "tools/tessaly-reg/RegEncoding.h"
#include "tools/tessaly-reg/RegExport.h"
#include "tools/tessaly-reg/RegImport.h"

namespace {

using tessaly::String;
using tessaly::platform::KeyStore;
using tessaly::platform::KeyValue;
using tessaly::platform::MemoryKeys;
using tessaly::platform::NamedValue;
using namespace tessaly::reg;

void require(bool condition) {
  if (!condition) std::abort();
}

struct World {
  MemoryKeys machine;
  MemoryKeys user;
  Keys keys{machine, user, u"User"};
};

/// Whether the file was taken.
bool import(std::string_view bytes, World& world) {
  const RegFile file = parseRegFile(bytes);
  const RegImport import(file, world.keys);
  const std::vector<LineError> faults = import.faults();
  for (const LineError& error : file.errors) require(error.line >= 1 && error.line <= bytes.size() + 1);
  require(file.errors.size() <= kMostErrors && faults.size() <= kMostErrors);
  if (!file.errors.empty() || !faults.empty()) return false;
  require(import.apply(world.machine, world.user).result == 0);
  return true;
}

std::string exported(World& world, tessaly::platform::RegistryKey root) {
  FoundKey key;
  Exported result;
  require(world.keys.find({root, {}}, key) == 0);
  require(exportTree(world.keys, key, ExportNames::All, u"\r\n", result) == 0 && result.culprit.empty());
  return encodeRegFile(result.text);
}

/// The one difference that an export makes: a text gets the NUL that it lacks.
KeyValue withNul(KeyValue value) {
  if (value.type == tessaly::platform::kText && !value.text.ends_with(u'\0')) value.text += u'\0';
  return value;
}

void requireSameValues(KeyStore& left, KeyStore::Id leftKey, KeyStore& right, KeyStore::Id rightKey) {
  std::vector<NamedValue> leftValues;
  std::vector<NamedValue> rightValues;
  require(left.values(leftKey, leftValues) == 0 && right.values(rightKey, rightValues) == 0);
  require(leftValues.size() == rightValues.size());
  for (std::size_t i = 0; i < leftValues.size(); ++i) {
    require(leftValues[i].name == rightValues[i].name);
    require(tessaly::platform::checkValueName(leftValues[i].name) == 0);
    require(withNul(leftValues[i].value) == withNul(rightValues[i].value));
  }
}

void requireSame(KeyStore& left, KeyStore::Id leftKey, KeyStore& right, KeyStore::Id rightKey) {
  requireSameValues(left, leftKey, right, rightKey);
  std::vector<String> leftNames;
  std::vector<String> rightNames;
  require(left.subkeys(leftKey, leftNames) == 0 && right.subkeys(rightKey, rightNames) == 0);
  require(leftNames == rightNames);
  for (const std::u16string_view name : leftNames) {
    require(tessaly::platform::checkPath({&name, 1}) == 0);
    KeyStore::Id leftSubkey = 0;
    KeyStore::Id rightSubkey = 0;
    require(left.find(leftKey, {&name, 1}, leftSubkey) == 0 &&
            right.find(rightKey, {&name, 1}, rightSubkey) == 0);
    requireSame(left, leftSubkey, right, rightSubkey);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tessaly::platform::fake::Locale locale(1041, u".", size % 2 == 0 ? 932 : 1252);
  const tessaly::platform::Override localeInForce(locale);
  World first;
  if (!import({reinterpret_cast<const char*>(data), size}, first)) return 0;
  World second;
  require(import(exported(first, tessaly::platform::kLocalMachine), second));
  require(import(exported(first, tessaly::platform::kCurrentUser), second));
  requireSame(first.machine, KeyStore::kRoot, second.machine, KeyStore::kRoot);
  requireSame(first.user, KeyStore::kRoot, second.user, KeyStore::kRoot);
  return 0;
}
