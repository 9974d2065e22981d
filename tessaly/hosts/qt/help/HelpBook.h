#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/hosts/qt/help/HelpFiles.h"
#include "tessaly/hosts/qt/help/PagePath.h"
#include "tessaly/hosts/qt/help/Sitemap.h"

namespace tessaly::qt {

/// A help file as a reader sees it: its title, contents, index and pages. What its tables do not tell comes
/// from its other files.
class HelpBook {
 public:
  explicit HelpBook(std::shared_ptr<const HelpFiles> files);

  /// Empty where it has none.
  const String& title() const { return title_; }

  /// Where it begins; nothing where it has no page.
  const std::optional<PageReference>& home() const { return home_; }

  const std::vector<SitemapEntry>& contents() const { return contents_; }
  const std::vector<SitemapEntry>& index() const { return index_; }

  /// The code page of what does not tell its own.
  Long codePage() const { return codePage_; }

  /// The page and the anchor that a reference means; nothing where there is no such page.
  std::optional<PageReference> find(std::u16string_view reference) const;

  /// The page of a map number.
  std::optional<PageReference> findNumber(Long number) const;

  /// All bytes of a page, a picture or a style; nothing where it is missing or damaged.
  std::optional<std::string> read(std::u16string_view page) const { return files_->read(page); }

 private:
  std::string table(std::u16string_view name) const { return files_->read(name).value_or(std::string()); }
  String text(std::u16string_view name) const;
  String firstWithEnding(std::u16string_view ending) const;
  void readNames();
  void readLists();
  void chooseHome();
  std::optional<PageReference> findBelow(std::u16string_view path) const;
  std::vector<String> mapTexts() const;

  std::shared_ptr<const HelpFiles> files_;
  Long codePage_ = 0;
  String title_;
  String homeName_;
  String contentsName_;
  String indexName_;
  std::optional<PageReference> home_;
  std::vector<SitemapEntry> contents_;
  std::vector<SitemapEntry> index_;
};

}  // namespace tessaly::qt
