#include "tessaly/hosts/qt/help/HelpTables.h"

#include "tessaly/hosts/qt/help/HelpText.h"
#include "tessaly/platform/pictures/ByteView.h"

namespace tessaly::qt {
namespace {

using platform::ByteView;

namespace system_entry {
constexpr std::uint32_t kContents = 0;
constexpr std::uint32_t kIndex = 1;
constexpr std::uint32_t kHome = 2;
constexpr std::uint32_t kTitle = 3;
constexpr std::uint32_t kLanguage = 4;
constexpr std::uint32_t kWindow = 5;
}  // namespace system_entry

/// No title and no name of a page is longer; what all titles take together is bounded too, since many entries
/// may point to the same text.
constexpr std::size_t kLongestText = 2048;
constexpr std::size_t kMostTitleBytes = std::size_t{4} << 20U;

/// Bytes up to the next NUL.
std::string textAt(const ByteView& strings, std::size_t at) {
  const std::string_view rest = strings.from(at).substr(0, kLongestText);
  return std::string(rest.substr(0, rest.find('\0')));
}

std::string textOf(std::string_view entry) { return textAt(ByteView(entry), 0); }

void readEntry(HelpSystem& system, std::uint32_t code, std::string_view entry) {
  switch (code) {
    case system_entry::kContents:
      system.names.contents = textOf(entry);
      break;
    case system_entry::kIndex:
      system.names.index = textOf(entry);
      break;
    case system_entry::kHome:
      system.names.home = textOf(entry);
      break;
    case system_entry::kTitle:
      system.names.title = textOf(entry);
      break;
    case system_entry::kLanguage:
      system.language = static_cast<Long>(ByteView(entry).number(0));
      break;
    case system_entry::kWindow:
      system.window = textOf(entry);
      break;
    default:
      break;
  }
}

void fillUpOne(std::string& own, const std::string& other) {
  if (own.empty()) own = other;
}

/// Where a text of a window stands among the strings; those that it has not are 0 or -1.
std::string textOfWindow(const ByteView& window, std::size_t field, const ByteView& strings) {
  return textAt(strings, window.number(field));
}

HelpNames namesOf(const ByteView& window, const ByteView& strings) {
  constexpr std::size_t kTitle = 0x14;
  constexpr std::size_t kContents = 0x60;
  constexpr std::size_t kIndex = 0x64;
  constexpr std::size_t kFirstPage = 0x68;
  constexpr std::size_t kHomePage = 0x6C;
  HelpNames names{textOfWindow(window, kTitle, strings), textOfWindow(window, kFirstPage, strings),
                  textOfWindow(window, kContents, strings), textOfWindow(window, kIndex, strings)};
  fillUpOne(names.home, textOfWindow(window, kHomePage, strings));
  return names;
}

}  // namespace

void HelpNames::fillUp(const HelpNames& other) {
  fillUpOne(title, other.title);
  fillUpOne(home, other.home);
  fillUpOne(contents, other.contents);
  fillUpOne(index, other.index);
}

HelpSystem helpSystem(std::string_view table) {
  constexpr std::size_t kVersion = 4;
  constexpr std::size_t kCodeAndSize = 4;
  HelpSystem system;
  const ByteView view(table);
  for (std::size_t at = kVersion; view.has(at, kCodeAndSize);) {
    const std::size_t size = view.word(at + 2);
    readEntry(system, view.word(at), view.part(at + kCodeAndSize, size));
    at += kCodeAndSize + size;
  }
  return system;
}

HelpNames helpWindow(std::string_view windows, std::string_view strings, std::string_view name) {
  constexpr std::size_t kHeader = 8;
  constexpr std::size_t kName = 8;
  constexpr std::size_t kLeast = 0x70;
  const ByteView view(windows);
  const ByteView texts(strings);
  const std::size_t size = view.number(4);
  if (size < kLeast) return {};
  ByteView chosen(view.part(kHeader, size));
  for (std::size_t at = kHeader; view.has(at, size); at += size) {
    const ByteView window(view.part(at, size));
    if (textOfWindow(window, kName, texts) == name) return namesOf(window, texts);
  }
  return namesOf(chosen, texts);
}

std::optional<std::string> pageOfNumber(std::string_view aliases, std::string_view strings, Long number) {
  constexpr std::size_t kHeader = 4;
  constexpr std::size_t kEntry = 8;
  const ByteView view(aliases);
  for (std::size_t at = kHeader; view.has(at, kEntry); at += kEntry) {
    if (view.number(at) != static_cast<std::uint32_t>(number)) continue;
    std::string page = textAt(ByteView(strings), view.number(at + 4));
    if (!page.empty()) return page;
  }
  return {};
}

std::vector<SitemapEntry> titledPages(const TopicTables& tables, Long codePage) {
  constexpr std::size_t kTopic = 16;
  constexpr std::size_t kUrl = 12;
  constexpr std::size_t kBeforeUrl = 8;
  std::vector<SitemapEntry> pages;
  const ByteView topics(tables.topics);
  const ByteView urls(tables.urlTable);
  std::size_t taken = 0;
  for (std::size_t at = 0; topics.has(at, kTopic) && taken < kMostTitleBytes && pages.size() < kMostEntries;
       at += kTopic) {
    const std::size_t url = topics.number(at + 8);
    if (!urls.has(url, kUrl)) continue;
    const std::string title = textAt(ByteView(tables.strings), topics.number(at + 4));
    const std::string page = textAt(ByteView(tables.urlStrings), urls.number(url + 8) + kBeforeUrl);
    taken += title.size() + page.size();
    SitemapEntry entry{helpText(title, codePage), helpText(page, codePage), 0};
    if (!entry.title.empty() && !entry.page.empty()) pages.push_back(std::move(entry));
  }
  return pages;
}

}  // namespace tessaly::qt
