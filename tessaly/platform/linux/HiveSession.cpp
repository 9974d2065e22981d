// How a hive is opened, read and changed: each within a transaction, and knowing which state was read.

#include "tessaly/platform/linux/Hive.h"
#include "tessaly/platform/linux/HiveCopy.h"
#include "tessaly/platform/linux/HiveLock.h"
#include "tessaly/platform/linux/HiveSoundness.h"

namespace tessaly::platform {
namespace {

using namespace registry_result;

/// One look at the file serves the opening of a key and the read that follows at once. It can't miss a write
/// that has returned: from the moment that the file shows a change to the writer's return there are several
/// system calls, which take longer.
constexpr std::chrono::microseconds kLookLasts(1);

/// A look at the file itself does not see that the folder it is in was exchanged; one at the path costs twice
/// as much.
constexpr std::chrono::milliseconds kPlaceLasts(10);

/// Ends a transaction that was begun for reading.
class Reading {
 public:
  explicit Reading(HiveRows& rows) : rows_(&rows) {}
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;
  ~Reading() { rows_->rollback(); }

 private:
  HiveRows* rows_;
};

}  // namespace

/// Within a transaction that changes; what was not committed at its end is taken back.
class Hive::Changing {
 public:
  Changing(Hive& hive, Touches touches)
      : hive_(&hive), knowsKeys_(touches == Touches::Values && hive.file_.isAsMarked()) {
    hive_->isInTransaction_ = true;
  }
  Changing(const Changing&) = delete;
  Changing& operator=(const Changing&) = delete;
  ~Changing() {
    hive_->isInTransaction_ = false;
    hive_->rows_->rollback();
    // Where nobody but this change came between, the keys are those that were there before.
    const bool isNext = hive_->file_.markNext();
    hive_->looked_ = {};
    if (knowsKeys_ && isCommitted_ && isNext) {
      ++hive_->revision_;
    } else {
      hive_->changed();
    }
  }

  Long commit() {
    const Long result = hive_->rows_->commit();
    isCommitted_ = result == kSuccess;
    return result;
  }

 private:
  Hive* hive_;
  bool knowsKeys_;
  bool isCommitted_ = false;
};

Hive::Hive(std::filesystem::path path, HiveReaders readers) : file_(std::move(path), readers) {}
Hive::~Hive() = default;

void Hive::abandon() {
  static_cast<void>(rows_.release());
  static_cast<void>(copy_.release());
  file_.abandon();
}

void Hive::look() {
  const auto now = Clock::now();
  if (now - looked_ < kLookLasts) return;
  const bool looksAtPlace = now - lookedAtPlace_ >= kPlaceLasts;
  if (looksAtPlace) lookedAtPlace_ = now;
  if (!file_.isAsMarked() || (looksAtPlace && file_.isOpen() && !file_.isInPlace())) {
    changed();
  } else {
    looked_ = now;
  }
}

std::uint64_t Hive::revision() {
  look();
  return revision_;
}

std::uint64_t Hive::keyRevision() {
  look();
  return keyRevision_;
}

/// What was read before counts no longer.
void Hive::changed() {
  ++revision_;
  ++keyRevision_;
  file_.unmark();
  looked_ = {};
}

/// Remembers the state that is read from now on. What was read in another one counts no longer.
void Hive::mark() {
  if (file_.isAsMarked()) return;
  if (file_.isMarked()) changed();
  file_.mark();
}

void Hive::disconnect() {
  rows_.reset();
  copy_.reset();
  file_.close();
}

/// Whether what is open is no longer what stands at the path, or SQLite could take it for what it was before.
bool Hive::isStale() const {
  if (copy_ != nullptr) return !file_.isAsMarked();
  return !file_.isInPlace() || file_.changedWithoutCount();
}

/// Opens the hive where it is not open, or is another one by now. `kNothing` where there is none.
Long Hive::connect() {
  if (rows_ != nullptr && isStale()) {
    changed();
    disconnect();
  }
  if (rows_ == nullptr) {
    if (const Long failure = openFile(); failure != kSuccess) return failure;
  }
  return isEmpty_ ? lookForTables() : kSuccess;
}

Long Hive::openFile() {
  mark();
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
  mark();
  const int code = rows_->beginReading();
  if (code == SQLITE_READONLY_ROLLBACK) return connectToCopy();
  if (code != SQLITE_OK) return sqlite::resultOf(code);
  Long found = kSuccess;
  {
    const Reading reading(*rows_);
    found = hive::checkTables(file_.database());
  }
  isEmpty_ = found == kNotFound;
  if (isEmpty_) return kNothing;
  if (found != kSuccess) disconnect();
  return found;
}

/// A writer was killed in the middle, and this process may not put the file right.
Long Hive::connectToCopy() {
  Long result = kBusy;
  for (int tries = 0; result == kBusy && tries < kMostTries; ++tries) {
    mark();
    rows_.reset();
    result = openPrivateCopy(file_, copy_);
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
  const Reading reading(*rows_);
  if (!rows_->hasVersion()) return kNotAHive;
  const Long result = work();
  // While the transaction lasts nobody can change the file.
  if (copy_ == nullptr) mark();
  return result;
}

Long Hive::write(const Work& work, Touches touches) {
  if (isInTransaction_) return work();
  for (int tries = 1;; ++tries) {
    const Long result = writeNow(work, touches);
    // What went into a file that was replaced meanwhile belongs into the new one.
    const bool isVain = result == kNothing || (rows_ != nullptr && !file_.isInPlace());
    if (!isVain) return result;
    if (tries == kMostTries) return kIoFailed;
  }
}

Long Hive::writeNow(const Work& work, Touches touches) {
  const auto end = Clock::now() + kLongestWrite;
  if (const Long failure = file_.makeFolder(); failure != kSuccess) return failure;
  const HiveLock turn(file_.realPath(), file_.mode(), end);
  if (turn.failure() != kSuccess) return turn.failure();
  if (rows_ == nullptr || copy_ != nullptr || isStale()) {
    changed();
    disconnect();
    if (const Long failure = file_.make(); failure != kSuccess) return failure;
  }
  Long result = connect();
  const bool isNew = result == kNothing && rows_ != nullptr;
  if (result != kSuccess && !isNew) return result;
  if (!isNew) result = checkSoundness();
  if (result != kSuccess && !isNew) return result;
  file_.waitUntil(end);
  result = change(work, touches);
  file_.waitUntil({});
  return result;
}

Long Hive::change(const Work& work, Touches touches) {
  Long result = file_.prepareToWrite();
  if (result == kSuccess) result = sqlite::resultOf(rows_->beginWriting());
  if (result != kSuccess) return result;
  Changing changing(*this, touches);
  if (isEmpty_) {
    result = sqlite::resultOf(hive::makeTables(file_.database()));
  } else if (!rows_->hasVersion()) {
    return kNotAHive;
  }
  if (result == kSuccess) result = work();
  return result == kSuccess ? changing.commit() : result;
}

/// Once for each file that is opened: a change in a damaged one could damage more.
Long Hive::checkSoundness() {
  if (!isSound_) isSound_ = faultsOf(file_.database(), 1).empty();
  return isSound_ ? kSuccess : kCorrupt;
}

}  // namespace tessaly::platform
