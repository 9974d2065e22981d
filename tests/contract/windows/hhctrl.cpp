// A viewer of help that shows nothing: tests load it under the name of the system's own.

#include <string>
#include <vector>

#include "tests/contract/windows/ViewerExports.h"

namespace {

struct Call {
  HWND owner;
  std::string file;
  UINT command;
  DWORD_PTR data;
};

HWND answer = nullptr;
std::vector<Call> calls;

}  // namespace

extern "C" {

__declspec(dllexport) HWND WINAPI HtmlHelpA(HWND owner, LPCSTR file, UINT command, DWORD_PTR data) {
  calls.push_back({owner, file, command, data});
  return answer;
}

/// From now on it gives this window, and has kept nothing yet.
__declspec(dllexport) void answerViewer(HWND window) {
  answer = window;
  calls.clear();
}

__declspec(dllexport) std::size_t countOfViewer() { return calls.size(); }

__declspec(dllexport) tessaly::tests::ViewerCall callOfViewer(std::size_t place) {
  const Call& call = calls[place];
  return {call.owner, call.file.c_str(), call.command, call.data};
}
}
