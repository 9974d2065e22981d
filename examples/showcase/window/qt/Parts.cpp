#include "examples/showcase/window/qt/Parts.h"

#include <QApplication>
#include <QHeaderView>
#include <QPalette>
#include <QProxyStyle>
#include <QStatusBar>

#include "examples/showcase/window/Window.h"

namespace showcase {
namespace {

constexpr QColor kInk(0x22, 0x2B, 0x36);
constexpr QColor kLineColour(0xD3, 0xD8, 0xDF);
constexpr QColor kAccent(0x2F, 0x7F, 0xC4);
constexpr std::array<int, 3> kEventColumns = {92, 170, 170};

/// A control's colour as Qt has it.
QColor ground() { return {kToolBarColour & 0xFF, kToolBarColour >> 8 & 0xFF, kToolBarColour >> 16 & 0xFF}; }

void fill(QWidget& widget, const QColor& colour) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Window, colour);
  widget.setPalette(palette);
  widget.setAutoFillBackground(true);
}

/// Some air between the rows and around the headings, whose arrow stands above the text, and a quiet scroll
/// bar.
constexpr const char* kListLook =
    "QTreeView { border: 0; padding: 0 8px; background: #ffffff; outline: 0; show-decoration-selected: 1; }"
    "QTreeView::item { padding: 3px 5px; border: 0; }"
    "QTreeView::item:selected { background: #d8e8f8; color: #222b36; }"
    "QHeaderView::up-arrow, QHeaderView::down-arrow { subcontrol-origin: border; subcontrol-position: top "
    "center;"
    " width: 9px; height: 9px; }"
    "QScrollBar:vertical { width: 10px; background: #ffffff; }"
    "QScrollBar::handle:vertical { background: #c9d0d9; border-radius: 4px; margin: 1px; min-height: 24px; }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
    "QHeaderView::section { background: #ffffff; color: #5b6a7d; padding: 5px 8px; border: 0;"
    " border-bottom: 1px solid #d3d8df; }";

/// Where letters are joined, a line under one of them would cut it off from the others.
class Look : public QProxyStyle {
 public:
  Look() : QProxyStyle(QStringLiteral("Fusion")) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override {
    if (hint == SH_UnderlineShortcut && QApplication::isRightToLeft()) return 0;
    return QProxyStyle::styleHint(hint, option, widget, more);
  }
};

}  // namespace

void setLook() {
  QApplication::setStyle(new Look);
  QPalette palette(ground());
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, kInk);
  }
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Highlight, kAccent);
  QApplication::setPalette(palette);
}

QFrame* makeLine(QFrame::Shape shape) {
  auto* const line = new QFrame;
  line->setFrameShape(shape);
  line->setFrameShadow(QFrame::Plain);
  QPalette palette = line->palette();
  palette.setColor(QPalette::WindowText, kLineColour);
  line->setPalette(palette);
  return line;
}

QWidget* makeToolBar() {
  auto* const bar = new QWidget;
  fill(*bar, ground());
  return bar;
}

QHBoxLayout* makeRow(QWidget& parent) {
  constexpr int margin = 6;
  auto* const row = new QHBoxLayout(&parent);
  row->setContentsMargins(margin, margin, margin, margin);
  row->setSpacing(2);
  row->addStretch();
  return row;
}

QVBoxLayout* makeColumn(QWidget& parent) {
  auto* const column = new QVBoxLayout(&parent);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  return column;
}

QTreeWidget* makeRows() {
  auto* const list = new QTreeWidget;
  list->setStyleSheet(QString::fromLatin1(kListLook));
  list->setAllColumnsShowFocus(true);
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(true);
  list->header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  return list;
}

void setHeadings(QTreeWidget& list, const QStringList& headings) {
  if (list.columnCount() != headings.size()) list.setColumnCount(static_cast<int>(headings.size()));
  list.setHeaderLabels(headings);
  list.setAccessibleName(headings.join(QStringLiteral(", ")));
}

QTreeWidgetItem* addRow(QTreeWidget& list, const QStringList& cells) {
  auto* const row = new QTreeWidgetItem(&list);
  for (int column = 0; column < cells.size(); ++column) row->setText(column, cells[column]);
  return row;
}

void fitEvents(QTreeWidget& list) {
  for (std::size_t i = 0; i < kEventColumns.size(); ++i) {
    list.setColumnWidth(static_cast<int>(i), kEventColumns[i]);
  }
}

std::array<QLabel*, 3> addStatus(QMainWindow& window) {
  std::array<QLabel*, 3> parts{};
  for (std::size_t i = 0; i < parts.size(); ++i) {
    parts[i] = new QLabel;
    parts[i]->setContentsMargins(kGap / 2, 3, kGap / 2, 3);
    window.statusBar()->addWidget(parts[i], i == 0 ? 1 : 0);
  }
  window.statusBar()->setSizeGripEnabled(false);
  return parts;
}

}  // namespace showcase
