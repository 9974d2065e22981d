#pragma once

#include <windows.h>

namespace tessaly::tests {

/// What the recording viewer was asked once; the text is its own.
struct ViewerCall {
  HWND owner;
  const char* file;
  UINT command;
  DWORD_PTR data;
};

/// The viewer's functions for tests, beside that of the platform's own.
using AnswerViewer = void(HWND window);
using CountOfViewer = std::size_t();
using CallOfViewer = ViewerCall(std::size_t place);

}  // namespace tessaly::tests
