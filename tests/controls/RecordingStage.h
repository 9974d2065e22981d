#pragma once

#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/forms/headless/Form.h"
#include "tests/controls/RecordingDrawing.h"
#include "tests/controls/RecordingToolbox.h"
#include "tests/controls/transparentBitmapPeer.h"

namespace tessaly::tests {

/// A control on a form without a display, with all written down that engine and platform are told.
class RecordingStage {
 public:
  explicit RecordingStage(PixelSize size = {100, 80}) : size_(size) { form_.setToolbox(toolbox_); }

  /// A new control, or a stored one.
  transparentBitmap& add() { return noted(form_.add<transparentBitmap>(bounds())); }
  transparentBitmap& add(const PropertyBag& bag) {
    return noted(form_.add<transparentBitmap>(bounds(), bag));
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

  CallLog& log() { return log_; }
  headless::Form& form() { return form_; }
  transparentBitmap& control() { return *control_; }
  headless::Place& place() { return form_.placeOf(*control_); }

 private:
  headless::Bounds bounds() const { return {0, 0, size_.width, size_.height}; }

  transparentBitmap& noted(transparentBitmap& control) {
    control_ = &control;
    return control;
  }

  PixelSize size_;
  CallLog log_;
  RecordingToolbox toolbox_{log_};
  RecordingDrawing drawing_{log_, toolbox_};
  headless::Form form_;
  transparentBitmap* control_ = nullptr;
};

/// Calls one after the other.
inline Calls joined(std::initializer_list<Calls> parts) {
  Calls all;
  for (const Calls& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

}  // namespace tessaly::tests
