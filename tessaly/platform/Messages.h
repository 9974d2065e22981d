#pragma once

#include <cstdint>

#include "tessaly/base/Types.h"

namespace tessaly::platform {

/// The first number of a registered message; all below are the system's.
inline constexpr std::uint32_t kFirstRegistered = 0xC000;

/// A top-level window, the same number in every process; 0 is none.
using WindowHandle = std::intptr_t;

/// Index for `GetWindowLongA`: what has made the window.
inline constexpr Long kWindowInstance = -6;

/// The posted message that ends a loop of `GetMessageA`.
inline constexpr std::uint32_t kQuit = 0x12;

/// What is sent to a window.
struct SentMessage {
  std::uint32_t number = 0;
  std::uintptr_t wParam = 0;
  std::intptr_t lParam = 0;

  /// The number of the process that has sent it; 0 where the platform does not tell.
  std::uint32_t sender = 0;
};

/// What a window does with registered messages that are sent to it.
struct MessageHandler {
  virtual ~MessageHandler() = default;

  /// Runs on the window's thread while the sender waits; gives what the sender's call returns.
  virtual std::intptr_t handle(const SentMessage& message) noexcept = 0;
};

/// What `EnumWindows` calls for each window, with the caller's value; 0 ends it.
using WindowCallback = Long (*)(WindowHandle window, Long& value);

/// Top-level windows and what is sent to them, by the platform's own calls. Titles and names are 8-bit text
/// in the system's code page that ends with a NUL. A window here has a title and a handler and is never seen;
/// it belongs to the thread that has made it, and goes with that thread. No call throws but for want of
/// memory; any thread may call.
struct Messages {
  virtual ~Messages() = default;

  /// A message number from `kFirstRegistered` on, the same in all processes for one name in any case; 0 for
  /// an empty name and for one of over 255 bytes.
  virtual std::uint32_t RegisterWindowMessageA(const char* name) = 0;

  /// Hands a message to a window and returns when it was handled; there is no time-out. A window of the
  /// calling thread handles it within the call. While the call waits, what is sent to windows of the calling
  /// thread is handled. The result is the handler's, and 0 where there is no such window or it goes
  /// meanwhile.
  virtual std::intptr_t SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t wParam,
                                     std::intptr_t lParam) = 0;

  /// With `kWindowInstance` a number other than 0 for a window that exists, and 0 for one that does not.
  virtual Long GetWindowLongA(WindowHandle window, Long index) = 0;

  /// Calls back for each top-level window until the callback gives 0; false where it did, or where the
  /// windows can't be listed. What the callback throws comes out of this call.
  virtual bool EnumWindows(WindowCallback callback, Long& value) = 0;

  /// Puts a window's title with a NUL behind it into the buffer, cut to fit; the number of bytes before the
  /// NUL, 0 for a window without a title or that does not exist.
  virtual Long GetWindowTextA(WindowHandle window, char* buffer, Long size) = 0;

  /// Makes a window of the calling thread; 0 where that fails. The handler must outlive it.
  virtual WindowHandle CreateWindowExA(const char* title, MessageHandler& handler) = 0;

  /// Whether it was a window of the calling thread; it is gone now.
  virtual bool DestroyWindow(WindowHandle window) = 0;

  /// Has what is sent to windows of the calling thread handled, until a message is posted to one of them: its
  /// number.
  virtual std::uint32_t GetMessageA() = 0;

  /// Posts a message to a window of this process, without waiting; false where there is no such window.
  virtual bool PostMessageA(WindowHandle window, std::uint32_t message) = 0;
};

}  // namespace tessaly::platform
