#pragma once

#include <chrono>
#include <memory>

#include "tessaly/platform/keys/KeyStore.h"
#include "tessaly/platform/linux/HiveFile.h"
#include "tessaly/platform/linux/HiveRows.h"

namespace tessaly::platform {

/// The key store of a hive file.
class Hive final : public KeyStore {
 public:
  Hive(std::filesystem::path path, HiveReaders readers);
  ~Hive() override;

  /// For the child of a fork, which must not touch what its parent has open.
  void abandon();

  std::uint64_t revision() override;
  std::uint64_t keyRevision() override;
  bool isWritable() override { return file_.mayWrite(); }
  Long find(Id from, KeyPath path, Id& key) override;
  Long create(Id from, KeyPath path, Id& key) override;
  Long remove(Id from, KeyPath path) override;
  Long subkeys(Id key, std::vector<String>& names) override;
  Long value(Id key, std::u16string_view name, KeyValue& value) override;
  Long setValue(Id key, std::u16string_view name, const KeyValue& value) override;
  Long removeValue(Id key, std::u16string_view name) override;
  Long values(Id key, std::vector<NamedValue>& values) override;
  Long transact(const std::function<Long()>& changes) override;

  /// Within this class: there is no hive, or it has no tables yet.
  static constexpr Long kNothing = -1;

 private:
  using Clock = std::chrono::steady_clock;
  class Changing;
  using Work = std::function<Long()>;
  enum class Touches { Keys, Values };

  void look();
  void changed();
  void mark();
  void disconnect();
  bool isStale() const;
  Long connect();
  Long openFile();
  Long lookForTables();
  Long connectToCopy();
  Long read(const Work& work);
  Long readNow(const Work& work);
  Long write(const Work& work, Touches touches);
  Long writeNow(const Work& work, Touches touches);
  Long change(const Work& work, Touches touches);
  Long checkSoundness();
  Long descend(Id from, KeyPath path, Id& key);
  Long descendAndMake(Id from, KeyPath path, Id& key);

  HiveFile file_;
  sqlite::Database copy_;
  std::unique_ptr<HiveRows> rows_;
  std::uint64_t revision_ = 1;
  std::uint64_t keyRevision_ = 1;
  Clock::time_point looked_;
  Clock::time_point lookedAtPlace_;
  bool isEmpty_ = false;
  bool isSound_ = false;
  bool isInTransaction_ = false;
};

}  // namespace tessaly::platform
