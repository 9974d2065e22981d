#include "tessaly/hosts/qt/Dialogs.h"

#include "tessaly/hosts/qt/Boxes.h"
#include "tessaly/hosts/qt/HelpViewer.h"
#include "tessaly/platform/Desktop.h"

namespace tessaly::qt {

struct Dialogs::Parts {
  HelpViewer viewer;
  Boxes boxes;
  platform::Override help{viewer};
  platform::Override messages{boxes};
};

Dialogs::Dialogs() : parts_(std::make_unique<Parts>()) {}
Dialogs::~Dialogs() = default;

}  // namespace tessaly::qt
