#pragma once

#include "tools/tessaly-reg/Keys.h"
#include "tools/tessaly-reg/RegFile.h"

namespace tessaly::reg {

/// How an import went: a number of `registry_result`, and where it failed, the store that gave it.
struct ImportResult {
  Long result = 0;
  const platform::KeyStore* failed = nullptr;

  /// Whether the user's part has been kept all the same.
  bool isUserDone = false;
};

/// Brings the changes of a .reg file into the stores. File and keys must outlive it.
class RegImport {
 public:
  RegImport(const RegFile& file, const Keys& keys);

  /// What can't be done of it, by lines: names too long or broken, data too large, keys that can't be made.
  std::vector<LineError> faults() const;

  /// Whether there is something for a store.
  bool concerns(const platform::KeyStore& store) const;

  /// Does all of it or nothing, unless the machine's store fails in the very last step. For a file without
  /// faults.
  ImportResult apply(platform::KeyStore& machine, platform::KeyStore& user) const;

 private:
  std::string faultOf(const RegChange& change) const;
  std::string faultOfKey(const RegChange& change) const;
  Long applyTo(platform::KeyStore& store) const;
  Long applyOne(const RegChange& change, platform::KeyStore::Id& key) const;

  const RegFile& file_;
  const Keys& keys_;
  std::vector<platform::KeyPlace> places_;
};

}  // namespace tessaly::reg
