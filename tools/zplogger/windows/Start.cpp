#include "tools/zplogger/Start.h"

#include <windows.h>

#include <shellapi.h>

#include <memory>

#include "tessaly/base/Text.h"

namespace tessaly::zplogger {

std::vector<std::string> start(int /*argc*/, char** /*argv*/) {
  int count = 0;
  const std::unique_ptr<wchar_t*, decltype(&LocalFree)> words(CommandLineToArgvW(GetCommandLineW(), &count),
                                                              &LocalFree);
  std::vector<std::string> result;
  for (int i = 1; words && i < count; ++i) result.push_back(toUtf8(fromWide(words.get()[i])));
  return result;
}

}  // namespace tessaly::zplogger
