#pragma once

#include <memory>

#include "tessaly/hosts/qt/Export.h"

namespace tessaly::qt {

/// Help and message boxes in windows of Qt's, for as long as this lives: `CHelp`, `MsgBoxW` and whatever else
/// of the library shows help or a box then does so. One stands in a host's `main`, behind its QApplication.
/// Without a QApplication, and on other threads than that of the user interface, help and boxes give 0 and
/// nothing is shown. What can't be shown is told on a page of help; nothing but want of memory comes out of a
/// call. The help window is no reason for the program to go on, and goes with this.
class TESSALY_QT_API Dialogs {
 public:
  /// Puts Qt's bodies in the place of the platform's, and takes them away: the last first where there are
  /// several, and while no other thread uses the library.
  Dialogs();
  ~Dialogs();
  Dialogs(const Dialogs&) = delete;
  Dialogs& operator=(const Dialogs&) = delete;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace tessaly::qt
