#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/Shell.h"

namespace tessaly::platform::fake {

/// A shell that opens nothing and keeps what was asked of it. At first it answers as the platforms do where
/// everything can be opened: `shell_result::kSuccess`, but `kNoAssociation` for another operation than
/// "open", and `kFileNotFound` without a file. Not for several threads at once.
class TESSALY_DESKTOP_API Shell final : public platform::Shell {
 public:
  /// What a call was told; what was null is none.
  struct Opened {
    WindowHandle owner = 0;
    std::optional<std::string> operation;
    std::optional<std::string> file;
    std::optional<std::string> parameters;
    std::optional<std::string> directory;
    Long show = 0;

    bool operator==(const Opened&) const = default;
  };

  /// From now on all calls give this.
  void answer(std::intptr_t result) { result_ = result; }

  /// From now on to open this file or address gives this, such as `shell_result::kFileNotFound`.
  void answer(const std::string& file, std::intptr_t result) { resultsOfFiles_[file] = result; }

  /// From now on calls raise this error, such as 453 for a call that is missing; with 0 they work again.
  void raise(Long error) { error_ = error; }

  /// From now on this runs in each call, before it ends.
  void onOpen(std::function<void(const Opened&)> look) { look_ = std::move(look); }

  /// What each of the calls was told, in their order.
  const std::vector<Opened>& opened() const { return opened_; }

  std::intptr_t ShellExecuteA(WindowHandle owner, const char* operation, const char* file,
                              const char* parameters, const char* directory, Long show) override;

 private:
  std::intptr_t resultOf(const Opened& call) const;

  std::optional<std::intptr_t> result_;
  std::map<std::string, std::intptr_t> resultsOfFiles_;
  Long error_ = 0;
  std::function<void(const Opened&)> look_;
  std::vector<Opened> opened_;
};

}  // namespace tessaly::platform::fake
