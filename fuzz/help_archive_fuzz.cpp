// Any bytes as a help file, as each of its tables, and as each of its texts: what comes of them is within the
// bounds.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

#include "tessaly/base/Text.h"
#include "tessaly/hosts/qt/help/HelpAddress.h"
#include "tessaly/hosts/qt/help/HelpArchive.h"
#include "tessaly/hosts/qt/help/HelpBook.h"
#include "tessaly/hosts/qt/help/HelpText.h"
#include "tessaly/hosts/qt/help/MapFiles.h"

namespace {

using namespace tessaly;
using namespace tessaly::qt;

constexpr Long kCodePage = 932;

void require(bool condition) {
  if (!condition) std::abort();
}

/// The same bytes for whatever is asked.
struct OneFile final : HelpFiles {
  explicit OneFile(std::string content) : bytes(std::move(content)) {}

  bool has(std::u16string_view name) const override { return !name.empty(); }
  std::optional<std::string> read(std::u16string_view) const override { return bytes; }
  std::vector<String> names() const override { return {u"a.html", u"b.hhc", u"c.hhk", u"d.h"}; }

  std::string bytes;
};

void requireBounded(const std::vector<SitemapEntry>& entries) {
  require(entries.size() <= kMostEntries);
  for (const SitemapEntry& entry : entries) {
    require(!entry.title.empty() && entry.depth >= 0 && entry.depth <= kDeepestEntry);
  }
}

void requireTidy(const String& path) {
  require(path.find(u'\\') == String::npos && path.find(u"//") == String::npos);
  require(!path.starts_with(u'/') && ("/" + toUtf8(path) + "/").find("/../") == std::string::npos);
  require(tidyPath(path) == path);
}

void readBook(const HelpBook& book) {
  requireBounded(book.contents());
  requireBounded(book.index());
  for (const Long number : {0, 1, 100, -1}) {
    if (const auto page = book.findNumber(number)) requireTidy(page->page);
  }
}

void readArchive(const std::string& bytes) {
  const auto archive = HelpArchive::of(bytes);
  if (!archive) return;
  readBook(HelpBook(archive));
  int count = 0;
  for (const String& name : archive->names()) {
    const auto content = ++count <= 16 ? archive->read(name) : std::nullopt;
    require(!content || content->size() <= ArchiveReader::kLargestFile);
  }
}

void readText(const std::string& bytes) {
  const String text = helpText(bytes, kCodePage);
  requireBounded(sitemap(text));
  requireTidy(tidyPath(text));
  for (const PageReference& reading : readings(text)) requireTidy(tidyPath(reading.page));
  const HelpAddress address = helpAddress(text);
  require(address.file.size() + address.page.size() <= text.size());
  require(codePageOf(declaredEncoding(bytes)).value_or(kCodePage) > 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  if (bytes.starts_with("ITSF")) readArchive(bytes);
  readText(bytes);
  readBook(HelpBook(std::make_shared<OneFile>(bytes)));
  return 0;
}
