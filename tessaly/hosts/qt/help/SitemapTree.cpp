#include "tessaly/hosts/qt/help/SitemapTree.h"

#include <QStyledItemDelegate>
#include <QTreeWidgetItemIterator>
#include <algorithm>

#include "tessaly/hosts/qt/ShownText.h"
#include "tessaly/hosts/qt/Text.h"
#include "tessaly/hosts/qt/help/PagePath.h"

namespace tessaly::qt {
namespace {

constexpr int kReference = Qt::UserRole;

/// Lines that are easy to read and to hit.
class RoomyLines : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr int kMore = 8;
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kMore);
  }
};

QString referenceOf(const QTreeWidgetItem& line) { return line.data(0, kReference).toString(); }

QString withoutAnchor(const QString& reference) { return reference.section(u'#', 0, 0); }

/// As names of pages are compared.
QString keyOf(std::u16string_view reference) {
  return toQString(tidyPath(percentDecoded(reference))).toCaseFolded();
}

}  // namespace

SitemapTree::SitemapTree(const QString& name, QWidget* parent) : QTreeWidget(parent) {
  setAccessibleName(name);
  setHeaderHidden(true);
  setFrameShape(QFrame::NoFrame);
  setUniformRowHeights(true);
  setItemDelegate(new RoomyLines(this));
  connect(this, &QTreeWidget::itemClicked, this, &SitemapTree::choose);
  connect(this, &QTreeWidget::itemActivated, this, &SitemapTree::choose);
}

void SitemapTree::setEntries(const std::vector<SitemapEntry>& entries) {
  clear();
  // The last line at each depth, below which deeper ones stand.
  std::vector<QTreeWidgetItem*> above;
  QList<QTreeWidgetItem*> roots;
  for (const SitemapEntry& entry : entries) {
    above.resize(std::min(above.size(), static_cast<std::size_t>(entry.depth)));
    auto* const line = above.empty() ? new QTreeWidgetItem : new QTreeWidgetItem(above.back());
    if (above.empty()) roots.push_back(line);
    line->setText(0, toQString(entry.title).simplified());
    line->setToolTip(0, toolTipOf(line->text(0)));
    line->setData(0, kReference, toQString(entry.page));
    above.push_back(line);
  }
  addTopLevelItems(roots);
  if (entries.size() <= 200) expandAll();
}

void SitemapTree::showLineOf(std::u16string_view reference) {
  const QString wanted = keyOf(reference);
  QTreeWidgetItem* found = nullptr;
  for (QTreeWidgetItemIterator at(this); *at != nullptr; ++at) {
    const QString line = keyOf(fromQString(referenceOf(**at)));
    if (line == wanted ||
        (found == nullptr && !line.isEmpty() && withoutAnchor(line) == withoutAnchor(wanted))) {
      found = *at;
    }
    if (line == wanted) break;
  }
  setCurrentItem(found);
  if (found != nullptr) scrollToItem(found);
}

bool SitemapTree::filter(QTreeWidgetItem& line, const QString& text) {
  bool isShown = line.text(0).contains(text, Qt::CaseInsensitive);
  for (int i = 0; i < line.childCount(); ++i) isShown = filter(*line.child(i), text) || isShown;
  line.setHidden(!isShown);
  return isShown;
}

void SitemapTree::setFilter(const QString& text) {
  for (int i = 0; i < topLevelItemCount(); ++i) filter(*topLevelItem(i), text);
}

void SitemapTree::choose(QTreeWidgetItem* line) {
  const QString reference = referenceOf(*line);
  if (!reference.isEmpty()) emit chosen(reference);
}

}  // namespace tessaly::qt
