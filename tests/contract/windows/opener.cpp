// Stands for the program that an address or a file is opened with: it tells the test the line of words that
// it was started with.

#include <windows.h>

#include <string>

int main() {
  char pipe[200] = {};
  GetEnvironmentVariableA("TESSALY_TESTS_OPENER", pipe, sizeof pipe);
  HANDLE const told = CreateFileA(pipe, GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  if (told == INVALID_HANDLE_VALUE) return 1;
  const std::wstring line = GetCommandLineW();
  DWORD count = 0;
  WriteFile(told, line.data(), static_cast<DWORD>(line.size() * sizeof(wchar_t)), &count, nullptr);
  CloseHandle(told);
  return 0;
}
