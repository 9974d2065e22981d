#include "tessaly/hosts/qt/help/Sitemap.h"

#include <algorithm>
#include <utility>

#include "tessaly/base/Ascii.h"
#include "tessaly/hosts/qt/help/MarkupTags.h"

namespace tessaly::qt {
namespace {

/// The names of parameters come in any case.
bool isNamed(const String& name, std::u16string_view wanted) { return asciiLowerText(name) == wanted; }

constexpr std::size_t kLongestTitle = 512;
constexpr std::size_t kLongestReference = 2048;

class Reader {
 public:
  void read(const MarkupTag& tag) {
    if (tag.name == u"ul") depth_ = depth_ + 1;
    if (tag.name == u"/ul") depth_ = std::max(depth_ - 1, 0);
    if (tag.name == u"object") begin(tag);
    if (tag.name == u"param" && isInEntry_) readParameter(tag);
    if (tag.name == u"/object" && isInEntry_) finish();
  }

  bool isFull(std::size_t more = 0) const { return entries.size() + more >= kMostEntries; }

  /// The last object may never have ended.
  void finish() {
    if (std::exchange(isInEntry_, false)) addEntries(std::clamp(depth_ - 1, 0, kDeepestEntry));
  }

  std::vector<SitemapEntry> entries;

 private:
  void begin(const MarkupTag& tag) {
    finish();
    isInEntry_ = isNamed(tag.attribute(u"type").value_or(String()), u"text/sitemap");
    title_.clear();
    lastName_.clear();
    pages_.clear();
  }

  void readParameter(const MarkupTag& tag) {
    const String name = tag.attribute(u"name").value_or(String());
    String value = tag.attribute(u"value").value_or(String());
    if (isNamed(name, u"name")) {
      value.resize(std::min(value.size(), kLongestTitle));
      if (title_.empty()) title_ = value;
      lastName_ = std::move(value);
    } else if (isNamed(name, u"local") && value.size() <= kLongestReference && !isFull(pages_.size())) {
      pages_.emplace_back(lastName_, std::move(value));
    }
  }

  void addEntries(int depth) {
    const bool isOne = pages_.size() == 1;
    add(title_, isOne ? pages_.front().second : String(), depth);
    if (isOne) return;
    for (const auto& [name, page] : pages_) add(name, page, std::min(depth + 1, kDeepestEntry));
  }

  void add(const String& title, const String& page, int depth) {
    const String& shown = title.empty() ? page : title;
    if (!shown.empty() && !isFull()) entries.push_back({shown, page, depth});
  }

  int depth_ = 0;
  bool isInEntry_ = false;
  String title_;
  String lastName_;
  std::vector<std::pair<String, String>> pages_;
};

}  // namespace

std::vector<SitemapEntry> sitemap(std::u16string_view text) {
  Reader reader;
  MarkupTags tags(text);
  for (auto tag = tags.next(); tag && !reader.isFull(); tag = tags.next()) reader.read(*tag);
  reader.finish();
  return std::move(reader.entries);
}

}  // namespace tessaly::qt
