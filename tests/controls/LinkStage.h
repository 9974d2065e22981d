#pragma once

#include "tessaly/base/Text.h"
#include "tessaly/controls/URLLink.h"
#include "tessaly/forms/Label.h"
#include "tessaly/forms/headless/Form.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/MessageBoxes.h"
#include "tessaly/platform/fake/Shell.h"
#include "tests/controls/CallLog.h"
#include "tests/controls/RecordingToolbox.h"

namespace tessaly::tests {

/// A screen that writes down which pointer it is told.
class RecordingScreen final : public Screen {
 public:
  explicit RecordingScreen(CallLog& log) : log_(&log) {}

  using Screen::MousePointer;
  void MousePointer(std::int16_t pointer) override {
    log_->note("Screen.MousePointer = " + std::to_string(pointer));
    Screen::MousePointer(pointer);
  }

 private:
  CallLog* log_;
};

/// A link on a form without a display, on a platform of stand-ins, with all written down that they are told.
class LinkStage {
 public:
  LinkStage() {
    form_->setToolbox(toolbox_);
    form_->setScreen(screen_);
    shell.onOpen([this](const platform::fake::Shell::Opened& call) {
      log_.note("ShellExecuteA " + call.file.value_or("none"));
    });
    boxes.answer([this](const platform::fake::MessageBoxes::Box& box) -> Long {
      log_.note("MessageBoxW " + toUtf8(box.text));
      return 1;
    });
    link_ = &form_->add<URLLink>({10, 20, 100, 40});
    link_->URL(u"https://host.example/");
    log_.take();
  }

  /// The calls since they were taken last.
  Calls take() { return log_.take(); }

  /// What an operation calls, up to its end or to an error.
  template <class Operation>
  Calls callsOf(const Operation& operation) {
    take();
    try {
      operation();
    } catch (const RuntimeError& error) {
      log_.note("error " + std::to_string(error.number()));
    }
    return take();
  }

  /// What a press of a button on the link calls; the button is up again then.
  Calls press(MouseState button = 1) {
    form_->movePointer({30, 40});
    return callsOf([&] {
      form_->press(button);
      if (form_) form_->release(button);
    });
  }

  /// The form goes, with the link.
  void endForm() { form_.reset(); }

  CallLog& log() { return log_; }
  headless::Form& form() { return *form_; }
  URLLink& link() { return *link_; }
  headless::Place& place() { return form_->placeOf(*link_); }
  const Label& label() { return *place().userControl().labels().front(); }

  platform::fake::Shell shell;
  platform::fake::MessageBoxes boxes;

 private:
  platform::fake::Locale locale_{1033, u"."};
  platform::Override localeInForce_{locale_};
  platform::Override shellInForce_{shell};
  platform::Override boxesInForce_{boxes};
  CallLog log_;
  RecordingToolbox toolbox_{log_};
  RecordingScreen screen_{log_};
  std::unique_ptr<headless::Form> form_ = std::make_unique<headless::Form>();
  URLLink* link_ = nullptr;
};

}  // namespace tessaly::tests
