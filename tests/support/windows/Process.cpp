#include "tests/support/Process.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <stdexcept>

#include "tessaly/base/Text.h"

namespace tessaly::tests {
namespace {

struct CloseAny {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<HANDLE, CloseAny>;

struct Pipe {
  Pipe() {
    HANDLE readEnd = nullptr;
    HANDLE writeEnd = nullptr;
    if (!CreatePipe(&readEnd, &writeEnd, nullptr, 0)) throw std::runtime_error("no pipe");
    reading.reset(readEnd);
    writing.reset(writeEnd);
  }

  Handle reading;
  Handle writing;
};

/// A second handle that a program gets when it is named; none of what is no handle.
Handle inheritable(HANDLE handle) {
  HANDLE result = nullptr;
  DuplicateHandle(GetCurrentProcess(), handle, GetCurrentProcess(), &result, 0, TRUE, DUPLICATE_SAME_ACCESS);
  return Handle(result);
}

std::wstring wide(std::string_view text) { return toWide(fromUtf8(text)); }

/// A word as a program's start takes it apart again: backslashes count only before a quotation mark.
std::wstring quoted(const std::wstring& word) {
  std::wstring result = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : word) {
    if (c == L'"') result.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    result += c;
  }
  result.append(backslashes, L'\\');
  return result + L'"';
}

std::wstring commandLine(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
  std::wstring result = quoted(program.wstring());
  for (const std::string& argument : arguments) result += L' ' + quoted(wide(argument));
  return result;
}

bool isNamed(std::wstring_view variable, const std::wstring& name) {
  return variable.size() > name.size() && variable[name.size()] == L'=' &&
         CompareStringOrdinal(variable.data(), static_cast<int>(name.size()), name.data(),
                              static_cast<int>(name.size()), TRUE) == CSTR_EQUAL;
}

/// The block of variables that ends with an empty one.
std::wstring environmentWith(const ProcessOptions& options) {
  std::wstring result;
  wchar_t* const own = GetEnvironmentStringsW();
  for (const wchar_t* at = own; *at != L'\0'; at += std::wstring_view(at).size() + 1) {
    const bool replaced = std::any_of(options.environment.begin(), options.environment.end(),
                                      [&](const auto& entry) { return isNamed(at, wide(entry.first)); });
    if (!replaced) result.append(at).append(1, L'\0');
  }
  FreeEnvironmentStringsW(own);
  for (const auto& [name, value] : options.environment)
    result.append(wide(name) + L'=' + wide(value)).append(1, L'\0');
  return result.append(1, L'\0');
}

std::filesystem::path pathOf(std::string_view program) {
  std::wstring own(32768, L'\0');
  own.resize(GetModuleFileNameW(nullptr, own.data(), static_cast<DWORD>(own.size())));
  return std::filesystem::path(own).parent_path() / (wide(program) + L".exe");
}

/// Names the handles that a program gets: it gets no others, though they be inheritable.
class Inheritance {
 public:
  explicit Inheritance(std::vector<HANDLE> handles) : handles_(std::move(handles)) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    bytes_.resize(size);
    InitializeProcThreadAttributeList(list(), 1, 0, &size);
    UpdateProcThreadAttribute(list(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles_.data(),
                              handles_.size() * sizeof(HANDLE), nullptr, nullptr);
  }
  Inheritance(const Inheritance&) = delete;
  Inheritance& operator=(const Inheritance&) = delete;
  ~Inheritance() { DeleteProcThreadAttributeList(list()); }

  LPPROC_THREAD_ATTRIBUTE_LIST list() {
    return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(bytes_.data());
  }

 private:
  std::vector<HANDLE> handles_;
  std::vector<char> bytes_;
};

PROCESS_INFORMATION start(const std::filesystem::path& path, std::wstring words, std::wstring environment,
                          HANDLE input, HANDLE output, HANDLE errors) {
  std::vector<HANDLE> handles = {input, output};
  if (errors != nullptr && errors != output) handles.push_back(errors);
  Inheritance inheritance(handles);
  STARTUPINFOEXW startup{};
  startup.StartupInfo.cb = sizeof startup;
  startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  startup.StartupInfo.hStdInput = input;
  startup.StartupInfo.hStdOutput = output;
  startup.StartupInfo.hStdError = errors;
  startup.lpAttributeList = inheritance.list();
  constexpr DWORD flags = EXTENDED_STARTUPINFO_PRESENT | CREATE_UNICODE_ENVIRONMENT;
  PROCESS_INFORMATION result{};
  if (!CreateProcessW(path.c_str(), words.data(), nullptr, nullptr, TRUE, flags, environment.data(), nullptr,
                      &startup.StartupInfo, &result))
    throw std::runtime_error(path.string() + " can't be started");
  return result;
}

/// What the system has for a whole process, though no header tells it.
void callForProcess(const char* function, HANDLE process) {
  using Call = LONG(WINAPI*)(HANDLE);
  const auto call = reinterpret_cast<Call>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), function)));
  call(process);
}

/// Asks each window of a process to close.
struct Closing {
  DWORD process;
  bool asked = false;

  static BOOL CALLBACK look(HWND window, LPARAM parameter) {
    auto& self = *reinterpret_cast<Closing*>(parameter);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == self.process && PostMessageA(window, WM_CLOSE, 0, 0)) self.asked = true;
    return TRUE;
  }
};

}  // namespace

struct Process::Parts {
  Pipe input;
  Pipe output;
  Handle process;
  DWORD number = 0;
};

Process::Process(std::string_view program, const std::vector<std::string>& arguments,
                 const ProcessOptions& options)
    : parts_(std::make_unique<Parts>()) {
  const auto path = pathOf(program);
  const Handle input = inheritable(parts_->input.reading.get());
  const Handle output = inheritable(parts_->output.writing.get());
  const Handle errors = inheritable(GetStdHandle(STD_ERROR_HANDLE));
  const PROCESS_INFORMATION started =
      start(path, commandLine(path, arguments), environmentWith(options), input.get(), output.get(),
            options.joinErrors ? output.get() : errors.get());
  CloseHandle(started.hThread);
  parts_->process.reset(started.hProcess);
  parts_->number = started.dwProcessId;
  parts_->input.reading.reset();
  parts_->output.writing.reset();
}

Process::~Process() {
  kill();
  wait();
}

std::uint32_t Process::id() const { return parts_->number; }

bool Process::readMore() {
  std::array<char, 4096> bytes{};
  DWORD count = 0;
  if (!ReadFile(parts_->output.reading.get(), bytes.data(), bytes.size(), &count, nullptr)) return false;
  unread_.append(bytes.data(), count);
  return true;
}

bool Process::write(std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD count = 0;
    if (!WriteFile(parts_->input.writing.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count,
                   nullptr))
      return false;
    bytes.remove_prefix(count);
  }
  return true;
}

void Process::closeInput() { parts_->input.writing.reset(); }

void Process::kill() { TerminateProcess(parts_->process.get(), static_cast<UINT>(kKilled)); }

bool Process::terminate() {
  Closing closing{parts_->number};
  EnumWindows(&Closing::look, reinterpret_cast<LPARAM>(&closing));
  return closing.asked;
}

void Process::suspend() { callForProcess("NtSuspendProcess", parts_->process.get()); }

void Process::resume() { callForProcess("NtResumeProcess", parts_->process.get()); }

int Process::wait() {
  WaitForSingleObject(parts_->process.get(), INFINITE);
  DWORD code = 0;
  GetExitCodeProcess(parts_->process.get(), &code);
  return static_cast<int>(code);
}

}  // namespace tessaly::tests
