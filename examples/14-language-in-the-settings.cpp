// From an empty object to a translated text with no path in hand: the machine's settings tell where the
// language files are, the user's which language. So that no real settings are touched, a registry in memory
// stands in.

#include "examples/support/Print.h"
#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/Registry.h"
#include "tessaly/settings/CRegistry.h"

using examples::printLine;
using tessaly::CRegistry;
using tessaly::CResources;
namespace platform = tessaly::platform;

namespace {

constexpr std::u16string_view kToolKey = u"SOFTWARE\\Example Tool";

// What the tool's setup does, as administrator.
void install() {
  CRegistry settings;
  settings.root(0);
  settings.rootPath(kToolKey);
  settings.SetString(u"Resources", u"examples/showcase/languages");
}

// What the tool does whenever it starts. Without a stored language it takes that of the user's locale.
void start(CResources& resources) {
  resources.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");
  resources.SetResourcesPathFromRegistry(kToolKey, u"Resources");
  resources.SetLangFromRegistries(kToolKey, u"Language");
}

void startAndTell(std::u16string_view when) {
  CResources resources;
  start(resources);
  printLine(when, u": ", resources.lang(), u", ", resources.langName(), u", \"", resources.res(0), u"\"");
}

}  // namespace

int main() {
  platform::fake::Registry registry;
  const platform::Override registryInMemory(registry);
  platform::fake::Locale locale(1036, u",");
  const platform::Override frenchUser(locale);

  startAndTell(u"Before the setup");
  install();
  startAndTell(u"The first start");

  // The user picks German from a menu. Storing a language and choosing it are two things.
  CResources resources;
  start(resources);
  resources.SetLangOrCountry(1031);
  resources.SetLangToRegistries(kToolKey, u"Language", resources.lang());
  startAndTell(u"The next start");

  // 0 stands for the user's locale again.
  resources.SetLangToRegistries(kToolKey, u"Language", 0);
  startAndTell(u"The start after that");
}
