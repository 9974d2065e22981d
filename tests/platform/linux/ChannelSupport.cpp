#include "tests/platform/linux/ChannelSupport.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <utility>

#include "tests/support/OwnRuntime.h"
#include "tests/support/linux/BlockFiles.h"

namespace tessaly::tests {

using namespace platform;

namespace {

constexpr std::uint32_t kEnd = 0xFFFFFFFF;
constexpr unsigned long kCloseOnExec = 02000000;

int receive(const char* title, const Receiver::WindowWork& work, const Telling& told) {
  WindowHandle own = 0;
  const Window window(title, [&](const SentMessage& message) -> std::intptr_t {
    if (message.number != kEnd) return work(own, message);
    return ownMessages().PostMessageA(own, kQuit) ? 1 : 0;
  });
  own = window.handle();
  told.tell(own);
  return own != 0 && ownMessages().GetMessageA() == kQuit ? 0 : 1;
}

bool isInherited(const std::string& descriptor) {
  std::ifstream info("/proc/self/fdinfo/" + descriptor);
  for (std::string word; info >> word;) {
    if (word != "flags:") continue;
    info >> word;
    return (std::stoul(word, nullptr, 8) & kCloseOnExec) == 0;
  }
  return false;
}

}  // namespace

Window::Window(const char* title, Work work)
    : handler_(std::move(work)), window_(ownMessages().CreateWindowExA(title, handler_)) {}

Window::~Window() { ownMessages().DestroyWindow(window_); }

Receiver::Receiver(const char* title, const WindowWork& work) {
  const Telling told;
  process_ = start([&] { return receive(title, work, told); });
  window_ = told.hear();
}

Receiver::~Receiver() {
  if (process_ != 0) kill();
}

int Receiver::end() {
  ownMessages().SendMessageA(window_, kEnd, 0, 0);
  return endOf(std::exchange(process_, 0));
}

void Receiver::kill() { killNow(std::exchange(process_, 0)); }

OwnChannel::OwnChannel() {
  useOwnRuntime();
  before_ = getenv("XDG_RUNTIME_DIR");
  setenv("XDG_RUNTIME_DIR", base().c_str(), 1);
}

OwnChannel::~OwnChannel() { setenv("XDG_RUNTIME_DIR", before_.c_str(), 1); }

std::filesystem::path OwnChannel::title(WindowHandle window) const {
  std::array<char, 32> name{};
  std::snprintf(name.data(), name.size(), "%08x.title", static_cast<unsigned>(window));
  return folder() / name.data();
}

std::filesystem::path OwnChannel::socket(WindowHandle window) const {
  return title(window).replace_extension(".socket");
}

std::filesystem::path OwnChannel::block(std::string_view name) const {
  return std::filesystem::path("/dev/shm") / frontOfBlocks(folder()).append(name);
}

std::intptr_t sendTo(WindowHandle window, std::intptr_t lParam) {
  return ownMessages().SendMessageA(window, 0xC001, 0, lParam);
}

bool isAlive(WindowHandle window) { return ownMessages().GetWindowLongA(window, kWindowInstance) != 0; }

std::string titleOf(WindowHandle window) {
  std::array<char, 1000> buffer{};
  const Long size = ownMessages().GetWindowTextA(window, buffer.data(), static_cast<Long>(buffer.size()));
  return {buffer.data(), static_cast<std::size_t>(size)};
}

std::vector<WindowHandle> allWindows() {
  static std::vector<WindowHandle> found;
  found.clear();
  Long value = 0;
  ownMessages().EnumWindows(
      [](WindowHandle window, Long&) -> Long {
        found.push_back(window);
        return 1;
      },
      value);
  return found;
}

std::set<std::string> namesIn(const std::filesystem::path& folder) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) names.insert(entry.path().filename());
  return names;
}

unsigned permissionsOf(const std::filesystem::path& file) {
  struct stat status {};
  return stat(file.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

std::set<std::string> descriptors() {
  std::set<std::string> open;
  for (const auto& name : namesIn("/proc/self/fd")) {
    // The listing's own is gone by now.
    if (std::filesystem::is_symlink("/proc/self/fd/" + name)) open.insert(name);
  }
  return open;
}

std::set<std::string> inheritedDescriptors() {
  std::set<std::string> inherited;
  for (const auto& name : descriptors()) {
    if (isInherited(name)) inherited.insert(name);
  }
  return inherited;
}

}  // namespace tessaly::tests
