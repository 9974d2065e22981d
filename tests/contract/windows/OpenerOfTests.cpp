#include <windows.h>

#include <array>
#include <cstddef>
#include <filesystem>
#include <stdexcept>

#include "tessaly/base/Text.h"
#include "tests/contract/RecordingOpener.h"

namespace tessaly::tests {
namespace {

std::wstring openerProgram() {
  std::wstring own(32768, L'\0');
  own.resize(GetModuleFileNameW(nullptr, own.data(), static_cast<DWORD>(own.size())));
  return std::filesystem::path(own).parent_path() / L"tests-opener.exe";
}

void setText(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), name, REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

/// An association of the tests' own, with a program that tells through a pipe what it was given.
class OpenerByAssociation final : public RecordingOpener {
 public:
  OpenerByAssociation()
      : number_(std::to_wstring(GetCurrentProcessId())),
        scheme_(L"tessaly-tests-" + number_),
        pipeName_(L"\\\\.\\pipe\\tessaly-tests-" + number_),
        pipe_(CreateNamedPipeW(pipeName_.c_str(), PIPE_ACCESS_INBOUND, PIPE_TYPE_BYTE | PIPE_WAIT, 1, 0,
                               1 << 17, 0, nullptr)) {
    if (pipe_ == INVALID_HANDLE_VALUE) throw std::runtime_error("no pipe");
    SetEnvironmentVariableW(L"TESSALY_TESTS_OPENER", pipeName_.c_str());
    setText(scheme_, L"URL Protocol", L"");
    setText(scheme_ + L"\\shell\\open\\command", nullptr, front() + L"%1\"");
  }
  OpenerByAssociation(const OpenerByAssociation&) = delete;
  OpenerByAssociation& operator=(const OpenerByAssociation&) = delete;
  ~OpenerByAssociation() override {
    RegDeleteTreeW(HKEY_CLASSES_ROOT, scheme_.c_str());
    SetEnvironmentVariableW(L"TESSALY_TESTS_OPENER", nullptr);
    CloseHandle(pipe_);
  }

  std::string scheme() const override { return toUtf8(fromWide(scheme_)); }

  /// The system knows no longer addresses than 2083 characters.
  std::size_t sureLength() const override { return 2083; }

  std::string next() override {
    ConnectNamedPipe(pipe_, nullptr);
    std::wstring line;
    std::array<wchar_t, 4096> units{};
    for (DWORD count = 0; ReadFile(pipe_, units.data(), sizeof units, &count, nullptr);)
      line.append(units.data(), count / sizeof(wchar_t));
    DisconnectNamedPipe(pipe_);
    return toUtf8(fromWide(textOf(line)));
  }

 private:
  static std::wstring front() { return L"\"" + openerProgram() + L"\" \""; }

  /// What stands in the place of the command's %1, whatever it holds.
  static std::wstring textOf(const std::wstring& line) {
    if (!line.starts_with(front()) || !line.ends_with(L'"')) return L"another line: " + line;
    return line.substr(front().size(), line.size() - front().size() - 1);
  }

  std::wstring number_;
  std::wstring scheme_;
  std::wstring pipeName_;
  HANDLE pipe_;
};

}  // namespace

std::unique_ptr<RecordingOpener> RecordingOpener::make() { return std::make_unique<OpenerByAssociation>(); }

}  // namespace tessaly::tests
