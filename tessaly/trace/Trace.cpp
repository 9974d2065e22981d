#include "tessaly/trace/Trace.h"

#include <utility>

#include "tessaly/platform/Core.h"
#include "tessaly/settings/CRegistry.h"

namespace tessaly {
namespace {

struct LoggerOwner {
  ~LoggerOwner() { delete std::exchange(logger, nullptr); }
};

CRegistry librarySettings() {
  constexpr Long localMachine = 0;
  CRegistry settings;
  settings.root(localMachine);
  settings.rootPath(u"SOFTWARE\\BRAMWELD SYSTEM\\Tessaly");
  return settings;
}

}  // namespace

ZPLoggerClient* logger = nullptr;

void StartLogger() {
  if (logger != nullptr) return;
  if (!librarySettings().GetBool(u"Logger", False)) return;
  const String path = librarySettings().GetString(u"Path", u"") + platform::core().files->separator();
  // The settings were read through the platform's bodies, so these are older than the owner and outlive it.
  static const LoggerOwner owner;
  logger = new ZPLoggerClient;
  logger->Init(u"TessalySupport", path + u"TessalySupport.log", path + u"TessalySupport.bak");
}

}  // namespace tessaly
