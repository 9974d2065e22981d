#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <stdexcept>

#include "tests/contract/HelpWorld.h"
#include "tests/contract/windows/ViewerExports.h"

namespace tessaly::tests {
namespace {

std::filesystem::path ownFolder() {
  std::wstring own(32768, L'\0');
  own.resize(GetModuleFileNameW(nullptr, own.data(), static_cast<DWORD>(own.size())));
  return std::filesystem::path(own).parent_path();
}

/// The recording library, loaded before the system's own: who asks for that by its bare name then gets this.
HMODULE recorder() {
  static const HMODULE loaded = LoadLibraryW((ownFolder() / "recorder" / "hhctrl.ocx").c_str());
  return loaded;
}

template <class Function>
Function* exported(const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(recorder(), name)));
}

/// A top-level window that goes with its owner.
class TopWindow {
 public:
  TopWindow()
      : window_(CreateWindowExW(0, L"STATIC", L"A window", WS_OVERLAPPEDWINDOW, 0, 0, 50, 50, nullptr,
                                nullptr, nullptr, nullptr)) {}
  TopWindow(const TopWindow&) = delete;
  TopWindow& operator=(const TopWindow&) = delete;
  ~TopWindow() { DestroyWindow(window_); }

  HWND get() const { return window_; }

 private:
  HWND window_;
};

class ViewerOfTests final : public RecordingViewer {
 public:
  ViewerOfTests() { exported<AnswerViewer>("answerViewer")(nullptr); }

  platform::WindowHandle window() override { return reinterpret_cast<platform::WindowHandle>(window_.get()); }

  bool isOnTop() override { return (GetWindowLongW(window_.get(), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0; }

  bool answer(platform::WindowHandle viewer) override {
    exported<AnswerViewer>("answerViewer")(reinterpret_cast<HWND>(viewer));
    return true;
  }

  std::vector<HelpCall> shown() override {
    std::vector<HelpCall> result;
    const std::size_t count = exported<CountOfViewer>("countOfViewer")();
    for (std::size_t i = 0; i < count; ++i) {
      const ViewerCall call = exported<CallOfViewer>("callOfViewer")(i);
      result.push_back({reinterpret_cast<platform::WindowHandle>(call.owner), call.file,
                        static_cast<Long>(call.command), static_cast<Long>(call.data)});
      EXPECT_EQ(call.data, static_cast<DWORD>(call.data)) << "a number that is longer than it was";
    }
    return result;
  }

 private:
  TopWindow window_;
};

}  // namespace

std::vector<Body> RecordingViewer::bodies() { return {Body::Own, Body::Fake}; }

std::unique_ptr<RecordingViewer> RecordingViewer::make() {
  if (exported<AnswerViewer>("answerViewer") == nullptr)
    throw std::runtime_error("Wine has its own viewer: run with WINEDLLOVERRIDES=hhctrl.ocx=n,b");
  return std::make_unique<ViewerOfTests>();
}

}  // namespace tessaly::tests
