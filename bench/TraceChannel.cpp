#include "bench/TraceChannel.h"

#include <sys/stat.h>

#include <cstdlib>
#include <utility>

#include "bench/Folder.h"
#include "tessaly/settings/CRegistry.h"
#include "tessaly/trace/Trace.h"

namespace tessaly::bench {
namespace {

void switchOn() {
  CRegistry settings;
  settings.root(0);
  settings.rootPath(u"SOFTWARE\\BRAMWELD SYSTEM\\Tessaly");
  settings.SetBool(u"Logger", True);
}

}  // namespace

void useOwnChannel() {
  const std::string settings = newFolder("settings").string();
  const std::string channel = newFolder("run").string();
  for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS"}) setenv(variable, settings.c_str(), 1);
  setenv("XDG_RUNTIME_DIR", channel.c_str(), 1);
  chmod(channel.c_str(), S_IRWXU);
  StartLogger();
  if (logger != nullptr) fail("tracing is on where nobody has switched it on");
  switchOn();
}

Client::Client() {
  if (logger != nullptr) fail("there is a client already");
  StartLogger();
  if (logger == nullptr) fail("tracing can't be switched on");
}

Client::~Client() { delete std::exchange(logger, nullptr); }

}  // namespace tessaly::bench
