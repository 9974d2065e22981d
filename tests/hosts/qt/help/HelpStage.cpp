#include "tests/hosts/qt/help/HelpStage.h"

#include <QAction>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include "tests/hosts/qt/Stage.h"

namespace tessaly::tests {
namespace {

/// Where a link with a text begins, or -1.
int placeOf(const QTextDocument& document, const QString& link) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      if (at.fragment().charFormat().isAnchor() && at.fragment().text() == link)
        return at.fragment().position();
    }
  }
  return -1;
}

QAction* toolOf(const QMainWindow& window, const QString& name) {
  for (QAction* const action : window.actions()) {
    if (action->text() == name) return action;
  }
  return nullptr;
}

}  // namespace

QMainWindow* HelpOnStage::show(const std::string& file, Long command, Long data,
                               platform::WindowHandle owner) {
  const auto handle = platform::desktop().htmlHelp->HtmlHelpA(owner, file.c_str(), command, data);
  auto* const found =
      handle == 0 ? nullptr : qobject_cast<QMainWindow*>(QWidget::find(static_cast<WId>(handle)));
  if (found != nullptr) window_ = found;
  settle();
  return found;
}

QTreeWidget& HelpOnStage::tree(const QString& name) const {
  for (auto* const found : window_->findChildren<QTreeWidget*>()) {
    if (found->accessibleName() == name) return *found;
  }
  throw std::runtime_error("There is no such tree.");
}

void HelpOnStage::click(const QString& link) {
  const int place = placeOf(*page().document(), link);
  ASSERT_GE(place, 0) << link.toStdString();
  QTextCursor cursor(page().document());
  cursor.setPosition(place + 1);
  page().setTextCursor(cursor);
  page().ensureCursorVisible();
  QTest::mouseClick(page().viewport(), Qt::LeftButton, {}, page().cursorRect(cursor).center());
  settle();
}

void HelpOnStage::press(const QString& tool) {
  QAction* const action = toolOf(*window_, tool);
  ASSERT_NE(action, nullptr) << tool.toStdString();
  action->trigger();
  settle();
}

bool HelpOnStage::isEnabled(const QString& tool) const {
  const QAction* const action = toolOf(*window_, tool);
  return action != nullptr && action->isEnabled();
}

}  // namespace tessaly::tests
