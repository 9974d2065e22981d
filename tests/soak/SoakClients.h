#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

namespace tessaly::soak {

/// When a client ends: after so many lines, or after so long. And how long it rests after a
/// line, on the average: with rests of one length clients would keep step with each other.
struct Amount {
  std::optional<std::uint64_t> lines;
  std::chrono::steady_clock::duration time{};
  std::chrono::steady_clock::duration pause{};
};

/// The log of a client.
std::filesystem::path logOf(const std::filesystem::path& folder, unsigned client);

/// Runs clients in processes of their own: they tell the logger who they are one after the other, so that no
/// one gets another's log, and then all send at once. Gives what each has sent; nothing where no logger was
/// there, or not until the end. This program must not have used the library before.
std::optional<std::vector<std::uint64_t>> runClients(unsigned count, const std::filesystem::path& folder,
                                                     const Amount& amount);

}  // namespace tessaly::soak
