#pragma once

#include <QImage>
#include <QObject>
#include <QPointer>
#include <string>
#include <vector>

#include "tessaly/hosts/qt/PictureButton.h"

namespace tessaly::tests {

/// Gives the button its pictures and writes a line whenever something else is seen of it on the screen
/// ("shows idle", "shows raised", "shows sunken", each being what a form without a display shows then) or
/// other timers run for it ("timers none", "timers 50 1000").
class Watcher final : public QObject {
 public:
  explicit Watcher(qt::PictureButton& button);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void customEvent(QEvent* event) override;

 private:
  struct Look {
    const char* name;
    QImage image;
  };

  std::string shown() const;

  QPointer<qt::PictureButton> button_;
  std::vector<Look> looks_;
  bool isLookWaiting_ = false;
  std::string lastShown_;
  std::string lastTimers_ = "timers none";
};

}  // namespace tessaly::tests
