#include "examples/showcase/window/Preferences.h"

#include "examples/showcase/Host.h"
#include "tessaly/settings/CRegistry.h"

namespace showcase {
namespace {

using tessaly::CRegistry;
using tessaly::Long;

constexpr Long kLocalMachine = 0;
constexpr Long kCurrentUser = 2;
constexpr std::u16string_view kNumbersValue = u"Show string numbers";
constexpr std::u16string_view kFontValue = u"Grid font";
constexpr std::u16string_view kFontSizeValue = u"Grid font size";
constexpr std::u16string_view kReportValue = u"Report";
constexpr std::u16string_view kTraceValue = u"Logger";
constexpr Long kLargestFont = 72;

CRegistry settingsAt(Long root, std::u16string_view path) {
  CRegistry settings;
  settings.root(root);
  settings.rootPath(path);
  return settings;
}

}  // namespace

Preferences loadPreferences() {
  const CRegistry settings = settingsAt(kCurrentUser, kUserKey);
  Preferences preferences;
  preferences.language = settings.GetLong(kLanguageValue, 0);
  preferences.showsStringNumbers = settings.GetBool(kNumbersValue, false) != 0;
  preferences.gridFont = settings.GetString(kFontValue, u"");
  preferences.gridFontSize = settings.GetLong(kFontSizeValue, 0);
  preferences.report = settings.GetString(kReportValue, u"");
  // Anybody may have written it.
  if (preferences.gridFontSize < 0 || preferences.gridFontSize > kLargestFont) preferences.gridFontSize = 0;
  return preferences;
}

void storePreferences(const Preferences& preferences, tessaly::CResources& resources) {
  resources.SetLangToRegistries(kUserKey, kLanguageValue, preferences.language);
  CRegistry settings = settingsAt(kCurrentUser, kUserKey);
  settings.SetBool(kNumbersValue, preferences.showsStringNumbers);
  settings.SetString(kFontValue, preferences.gridFont);
  settings.SetLong(kFontSizeValue, preferences.gridFontSize);
  settings.SetString(kReportValue, preferences.report);
}

void speakAs(tessaly::CResources& resources, Long language, bool showsStringNumbers) {
  resources.lang(language);
  const Long number = resources.lang() > 0 ? resources.lang() : kBuiltInEnglish;
  resources.SetLangOrCountry(showsStringNumbers ? -number : number);
}

bool writesTrace() { return settingsAt(kLocalMachine, kMachineKey).GetBool(kTraceValue, false) != 0; }

bool setWritesTrace(bool isOn) {
  settingsAt(kLocalMachine, kMachineKey).SetBool(kTraceValue, isOn);
  return writesTrace() == isOn;
}

}  // namespace showcase
