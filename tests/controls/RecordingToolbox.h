#pragma once

#include <functional>
#include <map>
#include <string>

#include "tessaly/forms/Toolbox.h"
#include "tessaly/platform/Drawing.h"
#include "tests/controls/CallLog.h"

namespace tessaly::tests {

/// Makes engine objects that work as usual and write down what they are told and which measures they are
/// asked for, such as "Picture1.AutoSize = True". The control itself is "UserControl".
class RecordingToolbox final : public Toolbox {
 public:
  explicit RecordingToolbox(CallLog& log) : log_(&log) {}

  std::unique_ptr<UserControl> makeUserControl(Container& container, UserControlEvents& control) override;
  std::unique_ptr<PictureBox> makePictureBox(UserControl& parent, std::string_view name) override;
  std::unique_ptr<Line> makeLine(UserControl& parent, std::string_view name) override;
  std::unique_ptr<Label> makeLabel(UserControl& parent, std::string_view name) override;
  std::unique_ptr<Timer> makeTimer(UserControl& parent, std::string_view name,
                                   std::function<void()> onTick) override;

  /// Whose surface that is.
  std::string nameOf(platform::DeviceContext surface) const;

 private:
  std::string begun(std::string_view name);

  CallLog* log_;
  std::map<std::string, std::function<platform::DeviceContext()>> surfaces_;
};

}  // namespace tessaly::tests
