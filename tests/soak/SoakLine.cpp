#include "tests/soak/SoakLine.h"

#include <array>
#include <charconv>
#include <cstdio>

#include "tessaly/base/Fnv.h"

namespace tessaly::soak {
namespace {

constexpr std::size_t kHexDigits = 16;
constexpr std::size_t kShortest = 60;
constexpr std::size_t kUsualLongest = 200;
constexpr std::uint64_t kLongOnes = 64;
constexpr std::uint64_t kLongestOnes = 1024;

/// Numbers that look like chance, the same for each line: splitmix64.
class Chance {
 public:
  explicit Chance(const LineId& id) : state_(id.number * 1000 + id.client) {}

  std::uint64_t next() {
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
    return z ^ (z >> 31);
  }

  std::size_t between(std::size_t least, std::size_t most) { return least + next() % (most - least + 1); }

 private:
  std::uint64_t state_;
};

std::size_t lengthOf(Chance& chance) {
  const std::uint64_t kind = chance.next();
  if (kind % kLongestOnes == 0) return kLongest;
  return chance.between(kShortest, kind % kLongOnes == 0 ? kLongest : kUsualLongest);
}

/// Over what stands before and behind the sum.
std::string sumOf(std::string_view before, std::string_view behind) {
  const std::uint64_t sum = fnv64(behind, fnv64(before));
  std::array<char, kHexDigits + 1> digits{};
  std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(sum));
  return digits.data();
}

void fill(std::string& text, std::size_t length, Chance& chance) {
  constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdef";
  while (text.size() < length) {
    std::uint64_t bits = chance.next();
    for (int n = 0; n < 12 && text.size() < length; ++n, bits >>= 5) text += kLetters[bits % kLetters.size()];
  }
}

/// Takes a number and the blank behind it from the front; nothing where they are not there.
template <class Number>
std::optional<Number> takeNumber(std::string_view& text) {
  Number number = 0;
  const char* const end = text.data() + text.size();
  const auto [behind, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || behind == end || *behind != ' ') return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(behind - text.data()) + 1);
  return number;
}

}  // namespace

std::string lineText(const LineId& id) {
  Chance chance(id);
  const std::size_t length = lengthOf(chance);
  const std::string before = std::to_string(id.client) + ' ' + std::to_string(id.number) + ' ';
  std::string behind = " ";
  fill(behind, length - before.size() - kHexDigits, chance);
  return before + sumOf(before, behind) + behind;
}

std::optional<LineId> wholeLine(std::string_view text) {
  std::string_view rest = text;
  const auto client = takeNumber<unsigned>(rest);
  const auto number = client ? takeNumber<std::uint64_t>(rest) : std::nullopt;
  if (!number || rest.size() < kHexDigits) return std::nullopt;
  const std::string_view before = text.substr(0, text.size() - rest.size());
  if (rest.substr(0, kHexDigits) != sumOf(before, rest.substr(kHexDigits))) return std::nullopt;
  return LineId{*client, *number};
}

}  // namespace tessaly::soak
