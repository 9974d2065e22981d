// Many processes at one hive: none loses a write, none is starved, and one that is killed blocks nobody.

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <random>

#include "tests/platform/linux/HiveSupport.h"
#include "tests/support/TemporaryFolder.h"

namespace tessaly::tests {
namespace {

using namespace platform;
using namespace registry_result;
using std::filesystem::path;
using Clock = std::chrono::steady_clock;

String numberText(int number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

int numberOf(const std::optional<String>& text) {
  return text ? std::stoi(std::string(text->begin(), text->end())) : 0;
}

class HiveProcessesTest : public testing::Test {
 protected:
  path file() const { return temporary_.path() / "tessaly" / "user.hive"; }
  std::unique_ptr<KeyStore> open() const { return hiveAt(file(), HiveReaders::Owner); }

  TemporaryFolder temporary_;
};

/// A process that writes numbers one after the other and tells each that is written.
class Writer {
 public:
  Writer(const path& file, int index, int first) : index_(index) {
    int ends[2] = {};
    if (pipe(ends) != 0) throw std::runtime_error("no pipe");
    process_ = start([&] {
      close(ends[0]);
      const auto hive = hiveAt(file, HiveReaders::Owner);
      for (int number = first;; ++number) {
        if (put(*hive, {u"Writers", numberText(index)}, u"last", numberText(number)) != kSuccess) return 1;
        if (write(ends[1], &number, sizeof number) != sizeof number) return 2;
      }
    });
    close(ends[1]);
    told_ = ends[0];
  }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;
  ~Writer() { close(told_); }

  int index() const { return index_; }

  /// Waits for the next number that is told.
  void hear() {
    int number = 0;
    if (read(told_, &number, sizeof number) == sizeof number) last_ = number;
  }

  /// Kills it at once and hears what it has told; the last number that it has.
  int kill() {
    ::kill(process_, SIGKILL);
    EXPECT_EQ(endOf(process_), -SIGKILL) << "a writer gave up by itself";
    int number = 0;
    while (read(told_, &number, sizeof number) == sizeof number) last_ = number;
    return last_;
  }

 private:
  int index_;
  int told_ = -1;
  int last_ = 0;
  pid_t process_ = 0;
};

TEST_F(HiveProcessesTest, KilledWritersLoseNothingThatWasWritten) {
  constexpr int writers = 3;
  constexpr int kills = 300;
  std::minstd_rand random(20261120);
  std::vector<int> told(writers, 0);
  std::vector<std::unique_ptr<Writer>> running;
  running.reserve(writers);
  for (int i = 0; i < writers; ++i) running.push_back(std::make_unique<Writer>(file(), i, 1));
  for (int count = 0; count < kills; ++count) {
    auto& victim = running[random() % writers];
    // A kill at any moment of a write, which takes some hundred microseconds.
    victim->hear();
    const auto moment = Clock::now() + std::chrono::microseconds(random() % 2000);
    while (Clock::now() < moment) {
    }
    const int index = victim->index();
    const int last = std::max(told[static_cast<std::size_t>(index)], victim->kill());
    const int stored = numberOf(get(*open(), {u"Writers", numberText(index)}, u"last"));
    ASSERT_GE(stored, last) << "after " << count << " kills";
    ASSERT_LE(stored, last + 1) << "after " << count << " kills";
    told[static_cast<std::size_t>(index)] = stored;
    victim = std::make_unique<Writer>(file(), index, stored + 1);
  }
  for (auto& writer : running) writer->kill();
  EXPECT_TRUE(hiveFaults(file()).empty());
}

TEST_F(HiveProcessesTest, WritersAtOnceAllComeToTheirTurn) {
  constexpr int writers = 4;
  constexpr int writes = 100;
  std::vector<pid_t> processes;
  processes.reserve(writers);
  for (int i = 0; i < writers; ++i) {
    processes.push_back(start([&] {
      const auto hive = open();
      for (int number = 1; number <= writes; ++number) {
        const Keys keys = {u"Shared"};
        const String name = numberText(i) + u"-" + numberText(number);
        if (put(*hive, keys, name, u"x") != kSuccess) return 1;
      }
      return 0;
    }));
  }
  for (const pid_t process : processes) EXPECT_EQ(endOf(process), 0) << "a write was dropped";
  KeyStore::Id key = 0;
  std::vector<NamedValue> values;
  const auto hive = open();
  ASSERT_EQ(hive->find(KeyStore::kRoot, Keys{u"Shared"}, key), kSuccess);
  ASSERT_EQ(hive->values(key, values), kSuccess);
  EXPECT_EQ(values.size(), static_cast<std::size_t>(writers * writes));
}

TEST_F(HiveProcessesTest, AWriterAmongOthersThatNeverPauseIsNotStarved) {
  std::vector<std::unique_ptr<Writer>> others;
  others.reserve(3);
  for (int i = 0; i < 3; ++i) others.push_back(std::make_unique<Writer>(file(), i, 1));
  for (auto& other : others) other->hear();
  const auto hive = open();
  for (int i = 0; i < 100; ++i) EXPECT_EQ(put(*hive, {u"Mine"}, u"v", numberText(i)), kSuccess) << i;
  for (auto& other : others) other->kill();
}

TEST_F(HiveProcessesTest, ASoundHiveShowsNoFaultsWhileOthersWrite) {
  ASSERT_EQ(put(*open(), {u"a"}, u"v", u"text"), kSuccess);
  Writer writer(file(), 0, 1);
  for (int i = 0; i < 200; ++i) ASSERT_EQ(hiveFaults(file()), std::vector<std::string>()) << i;
  writer.kill();
}

TEST_F(HiveProcessesTest, ReadersSeeWholeWritesWhileOthersWrite) {
  ASSERT_EQ(put(*open(), {u"Writers", u"0"}, u"last", u"0"), kSuccess);
  Writer writer(file(), 0, 1);
  const auto hive = open();
  int before = 0;
  for (int i = 0; i < 2000; ++i) {
    const auto text = get(*hive, {u"Writers", u"0"}, u"last");
    ASSERT_TRUE(text) << "a reader was refused";
    ASSERT_GE(numberOf(text), before);
    before = numberOf(text);
  }
  writer.kill();
}

TEST_F(HiveProcessesTest, AProcessStoppedWithinItsTurnHoldsNoReader) {
  ASSERT_EQ(put(*open(), {u"a"}, u"v", u"text"), kSuccess);
  int ends[2] = {};
  ASSERT_EQ(pipe(ends), 0);
  const pid_t holder = start([&] {
    const auto hive = open();
    hive->transact([&] {
      const char ready = 'r';
      static_cast<void>(write(ends[1], &ready, 1) == 1);
      pause();
      return kSuccess;
    });
    return 0;
  });
  char ready = 0;
  ASSERT_EQ(read(ends[0], &ready, 1), 1);
  EXPECT_EQ(get(*open(), {u"a"}, u"v"), u"text");
  kill(holder, SIGKILL);
  EXPECT_EQ(endOf(holder), -SIGKILL);
  EXPECT_EQ(put(*open(), {u"a"}, u"v", u"next"), kSuccess);
  close(ends[0]);
  close(ends[1]);
}

TEST_F(HiveProcessesTest, ManyProcessesMayMakeTheHiveAtOnce) {
  for (int round = 0; round < 10; ++round) {
    std::filesystem::remove_all(file().parent_path());
    std::array<pid_t, 4> processes{};
    for (int i = 0; i < 4; ++i) {
      processes.at(static_cast<std::size_t>(i)) =
          start([&] { return put(*open(), {u"a"}, numberText(i), u"x") == kSuccess ? 0 : 1; });
    }
    for (const pid_t process : processes) EXPECT_EQ(endOf(process), 0);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(get(*open(), {u"a"}, numberText(i)), u"x");
  }
}

}  // namespace
}  // namespace tessaly::tests
