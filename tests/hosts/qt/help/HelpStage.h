#pragma once

#include <gtest/gtest.h>

#include <QMainWindow>
#include <QTextBrowser>
#include <QTreeWidget>
#include <string>

#include "tessaly/hosts/qt/Dialogs.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Shell.h"

namespace tessaly::tests {

/// The viewer as a host calls it, and its window as a user sees it.
class HelpOnStage : public testing::Test {
 protected:
  HelpOnStage() : shell_(fakeShell_) {}

  /// The viewer's window, or none.
  QMainWindow* show(const std::string& file, Long command = platform::help_command::kDisplayTopic,
                    Long data = 0, platform::WindowHandle owner = 0);

  /// A page of the guide, such as "Overview.html".
  QMainWindow* showGuide(const std::string& page) { return show(kGuide + std::string("::/") + page); }
  void closeAll() { show("0", platform::help_command::kCloseAll); }

  QMainWindow& window() const { return *window_; }
  QTextBrowser& page() const { return *window_->findChild<QTextBrowser*>(); }
  QTreeWidget& tree(const QString& name) const;

  /// The text that the page shows.
  std::string text() const { return page().toPlainText().toStdString(); }
  bool shows(const std::string& part) const { return text().find(part) != std::string::npos; }

  /// Presses on the link that bears the text.
  void click(const QString& link);

  /// Chooses what stands in the tool bar.
  void press(const QString& tool);
  bool isEnabled(const QString& tool) const;

  static constexpr const char* kGuide = "tests/hosts/qt/help/guide.chm";

  qt::Dialogs dialogs_;
  platform::fake::Shell fakeShell_;
  platform::Override shell_;
  QMainWindow* window_ = nullptr;
};

}  // namespace tessaly::tests
