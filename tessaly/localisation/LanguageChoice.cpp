// CResources chooses a language: the files that the folder has, and which of them is in force.

#include <algorithm>
#include <limits>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/Core.h"

namespace tessaly {
namespace {

constexpr Long kFallbackLang = 2057;
constexpr std::u16string_view kFallbackName = u"English";
constexpr Long kPrimaryLanguage = 0x3FF;

}  // namespace

void CResources::resourcesPath(std::u16string_view folder) { resourcesPath_ = folder; }
void CResources::applicationGUID(std::u16string_view guid) { applicationGUID_ = guid; }
String CResources::langName() const { return currentLangName_; }
Long CResources::lang() const { return currentLang_; }
void CResources::SetDefaultLang() { lang(0); }

void CResources::ScanLanguageFiles() {
  if (langsScanned_) return;
  langsScanned_ = True;
  platform::Files& files = *platform::core().files;
  String folder = resourcesPath_;
  if (!folder.ends_with(files.separator())) folder += files.separator();
  for (const String& name : files.list(folder, u".xml")) {
    String path = folder + name;
    if (LoadLanguageFile(path, True)) continue;
    langNames_.push_back(fileLang_);
    langFiles_.push_back(std::move(path));
    langIDs_.push_back(fileLangID_);
    ++langCount_;
  }
}

Long CResources::numberOfLangs() {
  ScanLanguageFiles();
  return langCount_;
}

String CResources::resLang(Long position) {
  ScanLanguageFiles();
  return isListed(position) ? langNames_[static_cast<std::size_t>(position - 1)] : String();
}

Long CResources::resLangID(Long position) {
  ScanLanguageFiles();
  return isListed(position) ? langIDs_[static_cast<std::size_t>(position - 1)] : 0;
}

bool CResources::isListed(Long position) const { return position >= 1 && position <= langCount_; }

void CResources::lang(Long id) {
  currentLang_ = id;
  ScanLanguageFiles();
  if (id == 0) {
    AutomaticTranslation();
  } else {
    readChosenFile();
  }
}

void CResources::AutomaticTranslation() {
  ScanLanguageFiles();
  const Long user = platform::core().locale->GetUserDefaultLCID();
  const Long id = listedFor(user).value_or(user & kPrimaryLanguage);
  if (id != 0) {
    lang(id);
  } else {
    // `lang` with 0 would come back here without end, so the search goes on with the fallback.
    currentLang_ = 0;
    readChosenFile();
  }
}

void CResources::SetLangOrCountry(Long id) {
  ScanLanguageFiles();
  showStringNumbers_ = False;
  if (id == std::numeric_limits<Long>::min()) throw RuntimeError(RuntimeError::Overflow);
  if (id < 0) {
    id = -id;
    showStringNumbers_ = True;
  }
  if (const auto listed = listedFor(id)) lang(*listed);
}

std::optional<Long> CResources::listedFor(Long id) const {
  if (std::find(langIDs_.begin(), langIDs_.end(), id) != langIDs_.end()) return id;
  const auto related = std::find_if(langIDs_.begin(), langIDs_.end(), [id](Long listed) {
    return (listed & kPrimaryLanguage) == (id & kPrimaryLanguage);
  });
  return related != langIDs_.end() ? std::optional(*related) : std::nullopt;
}

bool CResources::takeFile(Long id) {
  const auto entry = std::find(langIDs_.begin(), langIDs_.end(), id);
  if (entry == langIDs_.end()) return false;
  const auto index = static_cast<std::size_t>(entry - langIDs_.begin());
  currentFile_ = langFiles_[index];
  currentLangName_ = langNames_[index];
  return true;
}

void CResources::readChosenFile() {
  currentFile_.clear();
  const bool chosen = currentLang_ != 0 && takeFile(currentLang_);
  if (!chosen) takeFile(kFallbackLang);
  FillBuiltInStrings();
  if (currentFile_.empty()) {
    currentLang_ = kFallbackLang;
    currentLangName_ = kFallbackName;
  } else {
    LoadLanguageFile(currentFile_, False);
  }
}

}  // namespace tessaly
