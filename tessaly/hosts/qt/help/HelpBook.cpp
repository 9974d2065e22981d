#include "tessaly/hosts/qt/help/HelpBook.h"

#include <algorithm>
#include <array>
#include <utility>

#include "tessaly/hosts/qt/help/HelpTables.h"
#include "tessaly/hosts/qt/help/HelpText.h"
#include "tessaly/hosts/qt/help/MapFiles.h"
#include "tessaly/platform/AnsiCodePage.h"
#include "tessaly/platform/Core.h"

namespace tessaly::qt {
namespace {

constexpr std::array<std::u16string_view, 4> kUsualHomes{u"index.html", u"index.htm", u"default.html",
                                                         u"default.htm"};

bool endsWith(std::u16string_view name, std::u16string_view ending) {
  if (name.size() < ending.size()) return false;
  return platform::core().locale->CharUpperW(name.substr(name.size() - ending.size())) ==
         platform::core().locale->CharUpperW(ending);
}

void sortByTitle(std::vector<SitemapEntry>& entries) {
  std::vector<std::pair<String, SitemapEntry>> keyed;
  keyed.reserve(entries.size());
  for (SitemapEntry& entry : entries) {
    keyed.emplace_back(platform::core().locale->CharUpperW(entry.title), std::move(entry));
  }
  std::stable_sort(keyed.begin(), keyed.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::transform(keyed.begin(), keyed.end(), entries.begin(),
                 [](auto& pair) { return std::move(pair.second); });
}

}  // namespace

HelpBook::HelpBook(std::shared_ptr<const HelpFiles> files) : files_(std::move(files)) {
  readNames();
  readLists();
  chooseHome();
}

void HelpBook::readNames() {
  HelpSystem system = helpSystem(table(u"#SYSTEM"));
  system.names.fillUp(helpWindow(table(u"#WINDOWS"), table(u"#STRINGS"), system.window));
  codePage_ = platform::ansiCodePage(system.language);
  title_ = helpText(system.names.title, codePage_);
  homeName_ = helpText(system.names.home, codePage_);
  contentsName_ = helpText(system.names.contents, codePage_);
  indexName_ = helpText(system.names.index, codePage_);
}

String HelpBook::text(std::u16string_view name) const { return helpText(table(name), codePage_); }

/// In the order of the names, whatever order the archive has.
String HelpBook::firstWithEnding(std::u16string_view ending) const {
  String first;
  for (const String& name : files_->names()) {
    if (endsWith(name, ending) && (first.empty() || name < first)) first = name;
  }
  return first;
}

void HelpBook::readLists() {
  if (!files_->has(contentsName_)) contentsName_ = firstWithEnding(u".hhc");
  if (!files_->has(indexName_)) indexName_ = firstWithEnding(u".hhk");
  contents_ = sitemap(text(contentsName_));
  index_ = sitemap(text(indexName_));
  if (!contents_.empty() && !index_.empty()) return;
  std::vector<SitemapEntry> titled =
      titledPages({table(u"#TOPICS"), table(u"#STRINGS"), table(u"#URLTBL"), table(u"#URLSTR")}, codePage_);
  if (contents_.empty()) contents_ = titled;
  sortByTitle(titled);
  if (index_.empty()) index_ = std::move(titled);
}

void HelpBook::chooseHome() {
  if (!homeName_.empty()) home_ = find(homeName_);
  constexpr int kMostTried = 100;
  int tried = 0;
  for (const SitemapEntry& entry : contents_) {
    if (home_ || tried == kMostTried) break;
    if (entry.page.empty()) continue;
    home_ = find(entry.page);
    ++tried;
  }
  for (const std::u16string_view name : kUsualHomes) {
    if (!home_) home_ = find(name);
  }
  for (const std::u16string_view ending : {u".html", u".htm"}) {
    const String page = home_ ? String() : firstWithEnding(ending);
    if (!page.empty()) home_ = PageReference{page, {}};
  }
}

std::optional<PageReference> HelpBook::find(std::u16string_view reference) const {
  for (PageReference& reading : readings(reference)) {
    reading.page = tidyPath(reading.page);
    if (!reading.page.empty() && files_->has(reading.page)) return std::move(reading);
  }
  return {};
}

/// Some compilers write the whole path that the page had where the help file was made.
std::optional<PageReference> HelpBook::findBelow(std::u16string_view path) const {
  constexpr int kMostFolders = 64;
  const String tidy = tidyPath(path);
  std::u16string_view rest = tidy;
  for (int folder = 0; folder < kMostFolders; ++folder) {
    if (auto found = find(rest)) return found;
    const std::size_t slash = rest.find(u'/');
    if (slash == std::u16string_view::npos) break;
    rest.remove_prefix(slash + 1);
  }
  return {};
}

std::vector<String> HelpBook::mapTexts() const {
  constexpr std::size_t kMostTexts = 16;
  constexpr std::size_t kLongestText = 1 << 20;
  std::vector<String> texts;
  for (const String& name : files_->names()) {
    const bool isMap = endsWith(name, u".h") || endsWith(name, u".ali") || endsWith(name, u".hhp");
    if (!isMap || texts.size() == kMostTexts) continue;
    String map = text(name);
    if (map.size() <= kLongestText) texts.push_back(std::move(map));
  }
  return texts;
}

std::optional<PageReference> HelpBook::findNumber(Long number) const {
  if (const auto page = pageOfNumber(table(u"#IVB"), table(u"#STRINGS"), number)) {
    return findBelow(helpText(*page, codePage_));
  }
  const std::vector<String> texts = mapTexts();
  for (const String& numbers : texts) {
    const auto name = nameOfNumber(numbers, number);
    for (const String& pages : texts) {
      const auto page = name ? pageOfName(pages, *name) : std::nullopt;
      if (page) return findBelow(*page);
    }
  }
  return {};
}

}  // namespace tessaly::qt
