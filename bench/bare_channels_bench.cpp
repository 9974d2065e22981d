// What a line costs at the least: another process is woken, and wakes the caller again. By two futexes in
// memory that both have, and by packets as large as the trace channel's over a connected socket.

#include <linux/futex.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <new>

#include "bench/Folder.h"
#include "bench/Partner.h"
#include "bench/RoundTrips.h"

namespace tessaly::bench {
namespace {

using Word = std::atomic<std::uint32_t>;
static_assert(sizeof(Word) == sizeof(std::uint32_t) && Word::is_always_lock_free);

void wait(Word& word, std::uint32_t old) {
  while (word.load(std::memory_order_acquire) == old) syscall(SYS_futex, &word, FUTEX_WAIT, old, nullptr);
}

void set(Word& word, std::uint32_t value) {
  word.store(value, std::memory_order_release);
  syscall(SYS_futex, &word, FUTEX_WAKE, 1);
}

class Futexes {
 public:
  Futexes() : words_(share()), partner_([this](const Partner::IsReady& isReady) { answer(isReady); }) {}

  void send() {
    const std::uint32_t last = words_->answer.load(std::memory_order_relaxed);
    set(words_->question, last + 1);
    wait(words_->answer, last);
  }

 private:
  /// Each on a cache line of its own.
  struct Words {
    alignas(64) Word question{0};
    alignas(64) Word answer{0};
  };
  struct Unmap {
    void operator()(Words* words) const { munmap(words, sizeof *words); }
  };

  static Words* share() {
    void* memory = mmap(nullptr, sizeof(Words), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) fail("no shared memory");
    return new (memory) Words;
  }

  [[noreturn]] void answer(const Partner::IsReady& isReady) {
    isReady();
    for (std::uint32_t last = 0;; ++last) {
      wait(words_->question, last);
      set(words_->answer, last + 1);
    }
  }

  std::unique_ptr<Words, Unmap> words_;
  Partner partner_;
};

class Packets {
  using Question = std::array<char, 24>;
  using Answer = std::array<char, 8>;

 public:
  Packets()
      : ends_(connectedEnds()), partner_([this](const Partner::IsReady& isReady) { answer(isReady); }) {}
  Packets(const Packets&) = delete;
  Packets& operator=(const Packets&) = delete;
  ~Packets() {
    for (const int end : ends_) close(end);
  }

  void send() const {
    put(ends_[0], Question());
    if (!take<Answer>(ends_[0])) fail("the other process does not answer");
  }

 private:
  static std::array<int, 2> connectedEnds() {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends.data()) != 0) fail("no sockets");
    return ends;
  }

  void answer(const Partner::IsReady& isReady) const {
    isReady();
    while (take<Question>(ends_[1])) put(ends_[1], Answer());
  }

  template <class Packet>
  static void put(int end, const Packet& packet) {
    ::send(end, packet.data(), packet.size(), MSG_NOSIGNAL);
  }

  template <class Packet>
  static bool take(int end) {
    Packet packet;
    return recv(end, packet.data(), packet.size(), 0) == static_cast<ssize_t>(packet.size());
  }

  std::array<int, 2> ends_;
  Partner partner_;
};

template <class Channel>
LineSender open() {
  const auto channel = std::make_shared<Channel>();
  return {[channel] { channel->send(); }, {}};
}

bool addAll() {
  addLineSender("limit: futex, there and back", &open<Futexes>);
  addLineSender("SOCK_SEQPACKET, there and back", &open<Packets>);
  return true;
}
const bool added = addAll();

}  // namespace
}  // namespace tessaly::bench
