#pragma once

#include <QTreeWidget>
#include <vector>

#include "tessaly/hosts/qt/help/Sitemap.h"

namespace tessaly::qt {

/// The lines of a contents or an index file. A line is chosen by a click or by Return.
class SitemapTree : public QTreeWidget {
  Q_OBJECT

 public:
  explicit SitemapTree(const QString& name, QWidget* parent);

  void setEntries(const std::vector<SitemapEntry>& entries);

  /// Goes to the line of a page, without choosing it; one with the same anchor before others.
  void showLineOf(std::u16string_view reference);

  /// Shows only lines that hold the text, and those above them.
  void setFilter(const QString& text);

 signals:
  void chosen(const QString& reference);

 private:
  void choose(QTreeWidgetItem* line);
  static bool filter(QTreeWidgetItem& line, const QString& text);
};

}  // namespace tessaly::qt
