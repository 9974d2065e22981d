#include "tessaly/platform/linux/Hive.h"

#include "tessaly/platform/linux/HiveCopy.h"
#include "tessaly/platform/linux/HiveLock.h"
#include "tessaly/platform/linux/HiveSoundness.h"

namespace tessaly::platform {
namespace {

using namespace registry_result;

constexpr int kMostTries = 3;

/// One look at the file serves the opening of a key and the read that follows at once. It can't miss a write
/// that has returned: from the moment that the file shows a change to the writer's return there are several
/// system calls, which take longer.
constexpr std::chrono::microseconds kLookLasts(1);

/// There is no hive, or it has no tables yet.
constexpr Long kNothing = -1;

/// What a call for a key gives where there is no hive: only the root is there, and it has nothing.
Long withoutHive(Long result, KeyStore::Id key, Long ofRoot) {
  if (result != kNothing) return result;
  return key == KeyStore::kRoot ? ofRoot : kKeyDeleted;
}

}  // namespace

/// Within a transaction that changes; what was not committed at its end is taken back.
class Hive::Changing {
 public:
  explicit Changing(Hive& hive) : hive_(&hive) { hive_->isInTransaction_ = true; }
  Changing(const Changing&) = delete;
  Changing& operator=(const Changing&) = delete;
  ~Changing() {
    hive_->isInTransaction_ = false;
    hive_->rows_->rollback();
    hive_->changed();
  }

 private:
  Hive* hive_;
};

Hive::Hive(std::filesystem::path path, HiveReaders readers) : file_(std::move(path), readers) {}
Hive::~Hive() = default;

void Hive::abandon() {
  static_cast<void>(rows_.release());
  static_cast<void>(copy_.release());
  file_.abandon();
}

std::uint64_t Hive::revision() {
  const auto now = Clock::now();
  if (now - looked_ < kLookLasts) return revision_;
  if (file_.isAsMarked()) {
    looked_ = now;
  } else {
    changed();
  }
  return revision_;
}

void Hive::changed() {
  ++revision_;
  file_.unmark();
  looked_ = {};
}

void Hive::disconnect() {
  rows_.reset();
  copy_.reset();
  file_.close();
}

/// Opens the hive where it is not open, or is another one by now. `kNothing` where there is none.
Long Hive::connect() {
  const bool isStale = copy_ != nullptr ? !file_.isAsMarked() : !file_.isInPlace();
  if (rows_ == nullptr || isStale) {
    disconnect();
    if (const Long failure = openFile(); failure != kSuccess) return failure;
  }
  return isEmpty_ ? lookForTables() : kSuccess;
}

Long Hive::openFile() {
  file_.mark();
  const Long failure = file_.open();
  if (failure != kSuccess) return failure == kNotFound ? kNothing : failure;
  if (!file_.hasJournalModeOfHives()) {
    file_.close();
    return kNotAHive;
  }
  rows_ = std::make_unique<HiveRows>(file_.database());
  isEmpty_ = true;
  isSound_ = false;
  return kSuccess;
}

Long Hive::lookForTables() {
  file_.mark();
  int code = rows_->beginReading();
  if (code == SQLITE_READONLY_ROLLBACK) return connectToCopy();
  if (code != SQLITE_OK) return sqlite::resultOf(code);
  const Long found = hive::checkTables(file_.database());
  rows_->rollback();
  if (found == kNotFound) return kNothing;
  if (found == kSuccess) {
    isEmpty_ = false;
  } else {
    disconnect();
  }
  return found;
}

/// A writer was killed in the middle, and this process may not put the file right.
Long Hive::connectToCopy() {
  Long result = kBusy;
  for (int tries = 0; result == kBusy && tries < kMostTries; ++tries) {
    file_.mark();
    rows_.reset();
    result = openPrivateCopy(*file_.file(), file_.path(), copy_);
    if (result == kSuccess && !file_.isAsMarked()) result = kBusy;
  }
  if (result == kSuccess) result = hive::checkTables(copy_.get());
  if (result != kSuccess) return result;
  rows_ = std::make_unique<HiveRows>(copy_.get());
  isEmpty_ = false;
  return kSuccess;
}

Long Hive::read(const Work& work) {
  if (isInTransaction_) return work();
  const Long failure = connect();
  return failure == kSuccess ? readNow(work) : failure;
}

Long Hive::readNow(const Work& work) {
  const int code = rows_->beginReading();
  if (code == SQLITE_READONLY_ROLLBACK) {
    const Long failure = connectToCopy();
    return failure == kSuccess ? readNow(work) : failure;
  }
  if (code != SQLITE_OK) return sqlite::resultOf(code);
  const Long result = work();
  if (copy_ == nullptr) markWithin();
  rows_->rollback();
  return result;
}

/// While the transaction lasts nobody can change the file.
void Hive::markWithin() {
  if (file_.isAsMarked()) return;
  if (file_.isMarked()) ++revision_;
  file_.mark();
}

Long Hive::write(const Work& work) {
  if (isInTransaction_) return work();
  Long result = writeNow(work);
  // What went into a file that was replaced meanwhile belongs into the new one.
  for (int tries = 1; rows_ != nullptr && !file_.isInPlace() && tries < kMostTries; ++tries) {
    result = writeNow(work);
  }
  return result;
}

Long Hive::writeNow(const Work& work) {
  if (rows_ == nullptr || copy_ != nullptr || !file_.isInPlace()) {
    disconnect();
    if (const Long failure = file_.make(); failure != kSuccess) return failure;
  }
  const HiveLock turn(file_.path().native() + "-lock", file_.mode(), kLongestWrite);
  if (!turn.isOpen()) return kAccessDenied;
  if (!turn.isHeld()) return kNoResources;
  Long result = connect();
  if (result != kSuccess && result != kNothing) return result;
  if (result == kSuccess) result = checkSoundness();
  return result == kSuccess || result == kNothing ? change(work) : result;
}

Long Hive::change(const Work& work) {
  file_.waitFor(kLongestWrite);
  Long result = file_.prepareToWrite();
  if (result == kSuccess) result = sqlite::resultOf(rows_->beginWriting());
  file_.waitFor(kLongestRead);
  if (result != kSuccess) return result;
  const Changing changing(*this);
  if (isEmpty_) result = sqlite::resultOf(hive::makeTables(file_.database()));
  if (result == kSuccess) result = work();
  return result == kSuccess ? rows_->commit() : result;
}

/// Once for each file that is opened: a change in a damaged one could damage more.
Long Hive::checkSoundness() {
  if (!isSound_) isSound_ = faultsOf(file_.database(), 1).empty();
  return isSound_ ? kSuccess : kCorrupt;
}

Long Hive::descend(Id from, KeyPath path, Id& key) {
  key = from;
  for (const std::u16string_view name : path) {
    if (const Long result = rows_->subkey(key, name, key); result != kSuccess)
      return result == kNotFound && rows_->exists(from) == kKeyDeleted ? kKeyDeleted : result;
  }
  return path.empty() ? rows_->exists(from) : kSuccess;
}

Long Hive::descendAndMake(Id from, KeyPath path, Id& key) {
  if (const Long failure = rows_->exists(from); failure != kSuccess) return failure;
  key = from;
  for (const std::u16string_view name : path) {
    Long result = rows_->subkey(key, name, key);
    if (result == kNotFound) result = rows_->addSubkey(key, name, key);
    if (result != kSuccess) return result;
  }
  return kSuccess;
}

Long Hive::find(Id from, KeyPath path, Id& key) {
  if (from == kRoot && path.empty()) {
    key = kRoot;
    return kSuccess;
  }
  return withoutHive(read([&] { return descend(from, path, key); }), from, kNotFound);
}

Long Hive::create(Id from, KeyPath path, Id& key) {
  const Long found = find(from, path, key);
  return found == kNotFound ? write([&] { return descendAndMake(from, path, key); }) : found;
}

Long Hive::remove(Id from, KeyPath path) {
  Id key = 0;
  if (const Long failure = find(from, path, key); failure != kSuccess) return failure;
  if (key == kRoot) return kAccessDenied;
  return write([&] {
    const Long failure = descend(from, path, key);
    return failure == kSuccess ? rows_->removeKey(key) : failure;
  });
}

Long Hive::subkeys(Id key, std::vector<String>& names) {
  names.clear();
  const auto work = [&] {
    const Long failure = rows_->exists(key);
    return failure == kSuccess ? rows_->subkeys(key, names) : failure;
  };
  return withoutHive(read(work), key, kSuccess);
}

Long Hive::value(Id key, std::u16string_view name, KeyValue& value) {
  const auto work = [&] {
    const Long result = rows_->value(key, name, value);
    return result == kNotFound && rows_->exists(key) == kKeyDeleted ? kKeyDeleted : result;
  };
  return withoutHive(read(work), key, kNotFound);
}

Long Hive::values(Id key, std::vector<NamedValue>& values) {
  values.clear();
  const auto work = [&] {
    const Long failure = rows_->exists(key);
    return failure == kSuccess ? rows_->values(key, values) : failure;
  };
  return withoutHive(read(work), key, kSuccess);
}

Long Hive::setValue(Id key, std::u16string_view name, const KeyValue& value) {
  return write([&] {
    const Long failure = rows_->exists(key);
    return failure == kSuccess ? rows_->setValue(key, name, value) : failure;
  });
}

Long Hive::removeValue(Id key, std::u16string_view name) {
  KeyValue before;
  if (const Long failure = value(key, name, before); failure != kSuccess) return failure;
  return write([&] { return rows_->removeValue(key, name); });
}

Long Hive::transact(const std::function<Long()>& changes) { return write(changes); }

std::unique_ptr<KeyStore> hiveAt(std::filesystem::path path, HiveReaders readers) {
  return std::make_unique<Hive>(std::move(path), readers);
}

}  // namespace tessaly::platform
