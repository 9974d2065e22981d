#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tessaly/platform/DesktopExport.h"
#include "tessaly/platform/Shell.h"

namespace tessaly::platform::fake {

/// A shell that opens nothing and keeps what was asked of it. Not for several threads at once.
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

  /// From now on calls give this; `shell_result::kSuccess` at first.
  void answer(std::intptr_t result) { result_ = result; }

  /// From now on calls raise this error, such as 453 for a call that is missing; with 0 they work again.
  void raise(Long error) { error_ = error; }

  /// From now on this runs in each call, before it ends.
  void onOpen(std::function<void(const Opened&)> look) { look_ = std::move(look); }

  /// What each of the calls was told, in their order.
  const std::vector<Opened>& opened() const { return opened_; }

  std::intptr_t ShellExecuteA(WindowHandle owner, const char* operation, const char* file,
                              const char* parameters, const char* directory, Long show) override;

 private:
  std::intptr_t result_ = shell_result::kSuccess;
  Long error_ = 0;
  std::function<void(const Opened&)> look_;
  std::vector<Opened> opened_;
};

}  // namespace tessaly::platform::fake
