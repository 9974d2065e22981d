#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/linux/ShellBody.h"
#include "tests/contract/RecordingOpener.h"
#include "tests/support/TemporaryFolder.h"

namespace tessaly::tests {

/// A search path for as long as it lives; null is none.
class SearchPath {
 public:
  explicit SearchPath(const char* path);
  SearchPath(const SearchPath&) = delete;
  SearchPath& operator=(const SearchPath&) = delete;
  ~SearchPath();

 private:
  std::string before_;
};

/// The desktop's opener, in a search path of its own: it tells what it was started with, and then ends with
/// 3 for `kAddressOfNobody`, with 2 for `kMissingFile`, with the number behind "tessaly-code:", and not
/// before it is released for "tessaly-held:". A shell is in force that waits for it however long it takes.
class OpenerOfTests final : public RecordingOpener {
 public:
  struct Start {
    std::vector<std::string> words;
    std::string folder;
    std::string descriptors;

    /// Those of the process that has started it, as long as that waits for it.
    std::string descriptorsOfStarter;
    std::string blockedSignals;
    std::string ignoredSignals;
    bool leadsItsSession = false;
  };

  OpenerOfTests();
  ~OpenerOfTests() override;

  std::string scheme() const override { return "tessaly-tests"; }
  std::size_t sureLength() const override { return 30000; }
  std::string next() override { return nextStart().words.at(1); }

  /// Waits for its next start.
  Start nextStart();

  /// Lets one that is held end, and waits until it has said so.
  void release();

  /// The folder in which it stands, alone.
  const std::filesystem::path& folder() const { return folder_.path(); }

 private:
  std::string readField() const;

  TemporaryFolder folder_;
  platform::LinuxShell shell_{std::chrono::minutes(1)};
  platform::Override shellInForce_{shell_};
  int told_ = -1;
  std::optional<SearchPath> path_;
};

}  // namespace tessaly::tests
