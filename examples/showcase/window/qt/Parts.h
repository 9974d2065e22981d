#pragma once

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QStringList>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <array>

/// The parts that the window is made of, and how they look.
namespace showcase {

/// Between groups of buttons, in pixels, and the colour of what steps back.
inline constexpr int kGap = 12;
inline constexpr QColor kFaint(0x8A, 0x93, 0x9E);

/// One look and light colours wherever it runs, which the pictures are drawn for.
void setLook();

/// A thin line.
QFrame* makeLine(QFrame::Shape shape);

/// The ground of the tool bar, and layouts in which what is added follows one another.
QWidget* makeToolBar();
QHBoxLayout* makeRow(QWidget& parent);
QVBoxLayout* makeColumn(QWidget& parent);

/// A list of rows, without columns yet, and the number of those that it has from then on; a new row of it.
QTreeWidget* makeRows();
void setHeadings(QTreeWidget& list, const QStringList& headings);
QTreeWidgetItem* addRow(QTreeWidget& list, const QStringList& cells);

/// The list of events is as wide as its texts want.
void fitEvents(QTreeWidget& list);

/// The line at the bottom in three parts.
std::array<QLabel*, 3> addStatus(QMainWindow& window);

}  // namespace showcase
