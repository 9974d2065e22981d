// A hive that is cut or changed anywhere: what is read of it is what was written, or nothing; a change that
// is refused leaves every byte as it is; and it can be told what is wrong, and repaired.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "tessaly/platform/linux/HiveSalvage.h"
#include "tests/platform/linux/HiveSupport.h"
#include "tests/support/TemporaryFolder.h"

namespace tessaly::tests {
namespace {

using namespace platform;
using namespace registry_result;
using std::filesystem::path;

constexpr std::u16string_view kKeys[] = {u"Alpha", u"Beta", u"Gamma"};
constexpr int kValues = 3;

String nameOf(int i) { return u"value " + String(1, static_cast<char16_t>(u'a' + i)); }
String textOf(std::u16string_view key, int i) {
  // The last one is long enough to need pages of its own.
  const bool isLong = i == kValues - 1 && key == kKeys[0];
  return String(key) + u" holds " + nameOf(i) + String(isLong ? 1500U : 20U, u'.');
}

class HiveDamageTest : public testing::Test {
 protected:
  HiveDamageTest() {
    const auto hive = open();
    for (const auto key : kKeys) {
      for (int i = 0; i < kValues; ++i) put(*hive, {u"Software", key}, nameOf(i), textOf(key, i));
    }
    sound_ = bytesOf(file());
  }

  path file() const { return temporary_.path() / "user.hive"; }
  std::unique_ptr<KeyStore> open() const { return hiveAt(file(), HiveReaders::Owner); }

  /// How many of the texts are there; every one that is must be the true one.
  std::size_t countTrue(KeyStore& hive) const {
    std::size_t count = 0;
    for (const auto key : kKeys) {
      for (int i = 0; i < kValues; ++i) {
        const auto text = get(hive, {u"Software", key}, nameOf(i));
        if (text && *text != textOf(key, i)) ADD_FAILURE() << "a read gave what was never written";
        count += text ? 1U : 0U;
      }
    }
    return count;
  }

  static constexpr std::size_t kAll = std::size(kKeys) * kValues;

  /// Changes a letter of one value, and gives the bytes of the hive.
  std::string damageValue() const {
    std::string damaged = sound_;
    damaged[damaged.find("Beta holds value c")] = 'X';
    writeBytes(file(), damaged);
    return damaged;
  }

  /// Reads and writes a hive of these bytes.
  void expectHarmless(const std::string& bytes) {
    writeBytes(file(), bytes);
    std::size_t count = 0;
    {
      const auto hive = open();
      count = countTrue(*hive);
    }
    const auto hive = open();
    const Long written = put(*hive, {u"New"}, u"value", u"text");
    if (written == kSuccess) {
      EXPECT_EQ(get(*hive, {u"New"}, u"value"), u"text");
      EXPECT_EQ(countTrue(*open()), kAll) << "a hive of which something is lost took a change";
    } else {
      EXPECT_TRUE(bytesOf(file()) == bytes) << "a refused change has changed something";
      EXPECT_FALSE(hiveFaults(file()).empty());
    }
    if (count != kAll) {
      EXPECT_NE(written, kSuccess);
    }
    std::filesystem::remove(path(file()) += "-journal");
  }

  TemporaryFolder temporary_;
  std::string sound_;
};

TEST_F(HiveDamageTest, IsSoundAtFirst) {
  EXPECT_EQ(countTrue(*open()), kAll);
  EXPECT_TRUE(hiveFaults(file()).empty());
}

TEST_F(HiveDamageTest, EachByteChangedIsReadTrulyOrNotAtAll) {
  for (std::size_t place = 0; place < sound_.size(); ++place) {
    std::string damaged = sound_;
    damaged[place] = static_cast<char>(~damaged[place]);
    writeBytes(file(), damaged);
    countTrue(*open());
    ASSERT_FALSE(HasFailure()) << "at " << place;
  }
}

TEST_F(HiveDamageTest, NoChangeIsTakenThatCouldDamageMore) {
  for (std::size_t place = 0; place < sound_.size(); place += 23) {
    std::string damaged = sound_;
    damaged[place] = static_cast<char>(damaged[place] ^ (1 << place % 8));
    expectHarmless(damaged);
    ASSERT_FALSE(HasFailure()) << "at " << place;
  }
}

TEST_F(HiveDamageTest, CutAnywhereItIsReadTrulyOrNotAtAll) {
  // A file of one byte is an empty one to SQLite.
  for (std::size_t size = 2; size < sound_.size(); size += 61) {
    expectHarmless(sound_.substr(0, size));
    ASSERT_FALSE(HasFailure()) << "cut at " << size;
  }
}

TEST_F(HiveDamageTest, BlocksOfOtherBytesDoNoHarm) {
  for (const char filling : {'\0', '\xFF', 'x', '\x0A'}) {
    for (std::size_t place = 0; place < sound_.size(); place += 512) {
      std::string damaged = sound_;
      damaged.replace(place, 512, 512, filling);
      expectHarmless(damaged);
      ASSERT_FALSE(HasFailure()) << "at " << place;
    }
  }
}

TEST_F(HiveDamageTest, AnyJournalOfAnInterruptedWriteDoesNoHarm) {
  const path journal = path(file()) += "-journal";
  interruptWrite(file());
  const std::string interrupted = bytesOf(file());
  const std::string bytes = bytesOf(journal);
  ASSERT_FALSE(interrupted == sound_);
  for (std::size_t place = 0; place < bytes.size(); place += 29) {
    for (const bool isCut : {false, true}) {
      writeBytes(file(), interrupted);
      std::string damaged = isCut ? bytes.substr(0, place) : bytes;
      if (!isCut) damaged[place] = static_cast<char>(~damaged[place]);
      writeBytes(journal, damaged);
      countTrue(*open());
      ASSERT_FALSE(HasFailure()) << "at " << place << (isCut ? ", cut" : ", changed");
    }
  }
}

TEST_F(HiveDamageTest, TellsWhatIsWrong) {
  damageValue();
  EXPECT_EQ(resultOfGet(*open(), {u"Software", u"Beta"}, u"value c"), kCorrupt);
  EXPECT_EQ(hiveFaults(file()), std::vector<std::string>{"a value is not as it was written: value c"});
}

TEST_F(HiveDamageTest, ARepairSavesAllButTheDamagedValue) {
  const std::string damaged = damageValue();
  HiveRepair repair;
  ASSERT_EQ(repairHive(file(), repair), kSuccess);
  EXPECT_EQ(repair.keys, 4U);
  EXPECT_EQ(repair.values, kAll - 1);
  EXPECT_TRUE(bytesOf(repair.damaged) == damaged);
  EXPECT_EQ(modeOf(file()), 0600U);
  EXPECT_TRUE(hiveFaults(file()).empty());
  const auto hive = open();
  EXPECT_EQ(countTrue(*hive), kAll - 1);
  EXPECT_EQ(put(*hive, {u"Software", u"Beta"}, u"value c", textOf(u"Beta", 2)), kSuccess);
  EXPECT_EQ(countTrue(*open()), kAll);
}

TEST_F(HiveDamageTest, AnOpenHiveIsReadAnewAfterARepair) {
  damageValue();
  const auto hive = open();
  EXPECT_EQ(countTrue(*hive), kAll - 1);
  EXPECT_EQ(put(*hive, {u"New"}, u"v", u"text"), kCorrupt);
  HiveRepair repair;
  ASSERT_EQ(repairHive(file(), repair), kSuccess);
  EXPECT_EQ(put(*hive, {u"New"}, u"v", u"text"), kSuccess);
}

TEST_F(HiveDamageTest, ARepairSavesWhatIsInWholePages) {
  constexpr std::size_t page = 4096;
  constexpr std::size_t more = 200;
  const auto hive = open();
  ASSERT_EQ(hive->transact([&] {
    Long result = kSuccess;
    for (std::size_t i = 0; i < more && result == kSuccess; ++i)
      result = put(*hive, {u"More"}, String(3, static_cast<char16_t>(u'\u4E00' + i)), String(60, u'm'));
    return result;
  }),
            kSuccess);
  const std::string larger = bytesOf(file());
  std::size_t least = kAll + more;
  for (std::size_t place = 0; place < larger.size(); place += page) {
    std::string damaged = larger;
    damaged.replace(place, page, page, '\xEE');
    writeBytes(file(), damaged);
    HiveRepair repair;
    ASSERT_EQ(repairHive(file(), repair), kSuccess) << place;
    EXPECT_TRUE(hiveFaults(file()).empty()) << place;
    EXPECT_TRUE(bytesOf(repair.damaged) == damaged);
    countTrue(*open());
    least = std::min(least, repair.values);
  }
  EXPECT_GT(least, more / 2);
}

TEST_F(HiveDamageTest, ARepairTakesWhatIsLeftOfAHive) {
  for (const std::size_t size : {std::size_t{100}, std::size_t{9000}, sound_.size() - 4096}) {
    writeBytes(file(), sound_.substr(0, size));
    HiveRepair repair;
    ASSERT_EQ(repairHive(file(), repair), kSuccess);
    EXPECT_TRUE(bytesOf(repair.damaged) == sound_.substr(0, size));
    EXPECT_TRUE(hiveFaults(file()).empty());
    EXPECT_EQ(put(*open(), {u"New"}, u"v", u"text"), kSuccess);
  }
}

TEST_F(HiveDamageTest, WhatIsNoHiveIsNotRepaired) {
  for (const std::string& bytes : {std::string("text"), std::string(50'000, '\x0A'), std::string()}) {
    writeBytes(file(), bytes);
    HiveRepair repair;
    EXPECT_EQ(repairHive(file(), repair), kNotAHive);
    EXPECT_TRUE(bytesOf(file()) == bytes);
  }
}

TEST_F(HiveDamageTest, KeysWhoseParentIsLostAreKept) {
  std::string damaged = sound_;
  // The name of the outer key, in the row of the table and not in an index.
  std::size_t place = damaged.find("SOFTWARESoftware");
  ASSERT_NE(place, std::string::npos);
  damaged[place] = 'X';
  writeBytes(file(), damaged);
  HiveRepair repair;
  ASSERT_EQ(repairHive(file(), repair), kSuccess);
  const auto hive = open();
  std::vector<String> names;
  EXPECT_EQ(hive->subkeys(KeyStore::kRoot, names), kSuccess);
  EXPECT_EQ(names, std::vector<String>{u"Lost and found"});
  for (const auto key : kKeys) {
    EXPECT_EQ(get(*hive, {u"Lost and found", key}, nameOf(0)), textOf(key, 0));
  }
}

TEST_F(HiveDamageTest, ValuesWhoseKeyIsLostAreKept) {
  std::string damaged = sound_;
  const std::size_t place = damaged.find("BETABeta");
  ASSERT_NE(place, std::string::npos);
  damaged[place] = 'X';
  writeBytes(file(), damaged);
  HiveRepair repair;
  ASSERT_EQ(repairHive(file(), repair), kSuccess);
  const auto hive = open();
  EXPECT_EQ(get(*hive, {u"Lost and found", u"Values"}, nameOf(0)), textOf(u"Beta", 0));
  EXPECT_EQ(get(*hive, {u"Software", u"Alpha"}, nameOf(0)), textOf(u"Alpha", 0));
}

TEST_F(HiveDamageTest, ASoundHiveIsLeftAlone) {
  HiveRepair repair;
  EXPECT_EQ(repairHive(file(), repair), kSuccess);
  EXPECT_TRUE(repair.damaged.empty());
  EXPECT_TRUE(bytesOf(file()) == sound_);
}

TEST_F(HiveDamageTest, AnotherJournalModeIsDamageThatIsRepaired) {
  std::string damaged = sound_;
  damaged[18] = damaged[19] = 2;
  writeBytes(file(), damaged);
  EXPECT_EQ(resultOfGet(*open(), {u"Software", u"Beta"}, nameOf(0)), kNotAHive);
  EXPECT_EQ(hiveFaults(file()).size(), 1U);
  HiveRepair repair;
  ASSERT_EQ(repairHive(file(), repair), kSuccess);
  EXPECT_EQ(countTrue(*open()), kAll);
}

TEST_F(HiveDamageTest, AHiveOfALaterVersionIsReadByNobodyAndNotRepaired) {
  const auto open = this->open();
  EXPECT_EQ(countTrue(*open), kAll);
  runSql(file(), "PRAGMA user_version=2");
  const std::string later = bytesOf(file());
  const auto fresh = this->open();
  for (KeyStore* hive : {open.get(), fresh.get()}) {
    EXPECT_EQ(resultOfGet(*hive, {u"Software", u"Beta"}, nameOf(0)), kNotAHive);
    EXPECT_EQ(put(*hive, {u"New"}, u"v", u"text"), kNotAHive);
  }
  EXPECT_EQ(hiveFaults(file()), std::vector<std::string>{"it was made by a later version"});
  HiveRepair repair;
  EXPECT_EQ(repairHive(file(), repair), kNotAHive);
  EXPECT_TRUE(bytesOf(file()) == later);
}

TEST_F(HiveDamageTest, AForgedCircleOfKeysIsDamage) {
  sqlite::Database database;
  ASSERT_EQ(sqlite::open(file(), SQLITE_OPEN_READWRITE, database), SQLITE_OK);
  ASSERT_EQ(
      HiveRows(database.get()).insert(hive::KeyRow{KeyStore::kRoot, "CIRCLE", "Circle", KeyStore::kRoot}),
      kSuccess);
  database.reset();
  std::vector<String> names;
  EXPECT_EQ(open()->subkeys(KeyStore::kRoot, names), kCorrupt);
  EXPECT_EQ(resultOfGet(*open(), {u"Circle"}, u"v"), kCorrupt);
  EXPECT_EQ(put(*open(), {u"New"}, u"v", u"text"), kCorrupt);
  EXPECT_FALSE(hiveFaults(file()).empty());
}

TEST_F(HiveDamageTest, ManyLostKeysTakeNoLongTime) {
  SalvagedRows rows;
  for (int i = 0; i < 50'000; ++i) rows.keys.push_back({1'000'000 + i, "K", "k", 10 + i});
  gatherLost(rows);
  EXPECT_EQ(rows.keys.size(), 50'001U);
}

TEST_F(HiveDamageTest, AHiveBehindALinkIsRepairedWhereItStands) {
  const std::string damaged = damageValue();
  const path link = temporary_.path() / "link.hive";
  std::filesystem::create_symlink(file(), link);
  HiveRepair repair;
  ASSERT_EQ(repairHive(link, repair), kSuccess);
  EXPECT_TRUE(std::filesystem::is_symlink(link));
  EXPECT_EQ(repair.values, kAll - 1);
  EXPECT_TRUE(bytesOf(repair.damaged) == damaged);
  EXPECT_EQ(countTrue(*open()), kAll - 1);
}

TEST_F(HiveDamageTest, AnInterruptedWriteBehindALinkIsTakenBack) {
  const path link = temporary_.path() / "link.hive";
  std::filesystem::create_symlink(file(), link);
  interruptWrite(file());
  EXPECT_TRUE(hiveFaults(link).empty());
  EXPECT_EQ(countTrue(*hiveAt(link, HiveReaders::Owner)), kAll);
}

TEST_F(HiveDamageTest, AMissingHiveNeedsNoRepair) {
  std::filesystem::remove(file());
  HiveRepair repair;
  EXPECT_EQ(repairHive(file(), repair), kNotFound);
  EXPECT_FALSE(std::filesystem::exists(file()));
}

}  // namespace
}  // namespace tessaly::tests
