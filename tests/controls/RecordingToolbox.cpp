#include "tests/controls/RecordingToolbox.h"

#include <iomanip>
#include <sstream>

#include "tessaly/base/Text.h"
#include "tessaly/forms/Label.h"
#include "tessaly/forms/Line.h"
#include "tessaly/forms/PictureBox.h"
#include "tessaly/forms/Timer.h"
#include "tessaly/forms/UserControl.h"

namespace tessaly::tests {
namespace {

/// An object's own part of the log.
class Notes {
 public:
  Notes(CallLog& log, std::string name) : log_(&log), name_(std::move(name)) {}

  void call(const std::string& operation) const { log_->note(name_ + "." + operation); }

  void set(const std::string& property, Boolean value) const {
    call(property + " = " + (value ? "True" : "False"));
  }
  void set(const std::string& property, double value) const {
    std::ostringstream text;
    text << std::setprecision(12) << value;
    call(property + " = " + text.str());
  }
  void setColour(const std::string& property, OLE_COLOR colour) const {
    std::ostringstream text;
    text << std::hex << std::uppercase << colour;
    call(property + " = &H" + text.str());
  }

 private:
  CallLog* log_;
  std::string name_;
};

class NotingUserControl final : public UserControl {
 public:
  NotingUserControl(Container& container, UserControlEvents& control, Notes notes)
      : UserControl(container, control), notes_(std::move(notes)) {}

  void Cls() override {
    notes_.call("Cls");
    UserControl::Cls();
  }
  void Refresh() override {
    notes_.call("Refresh");
    UserControl::Refresh();
  }
  using UserControl::AutoRedraw;
  void AutoRedraw(Boolean on) override {
    notes_.set("AutoRedraw", on);
    UserControl::AutoRedraw(on);
  }
  using UserControl::ScaleMode;
  void ScaleMode(std::int16_t mode) override {
    notes_.set("ScaleMode", static_cast<double>(mode));
    UserControl::ScaleMode(mode);
  }
  double ScaleWidth() const override {
    notes_.call("ScaleWidth");
    return UserControl::ScaleWidth();
  }
  double ScaleHeight() const override {
    notes_.call("ScaleHeight");
    return UserControl::ScaleHeight();
  }
  double Width() const override {
    notes_.call("Width");
    return UserControl::Width();
  }
  void Width(double twips) override {
    notes_.set("Width", twips);
    UserControl::Width(twips);
  }
  double Height() const override {
    notes_.call("Height");
    return UserControl::Height();
  }
  void Height(double twips) override {
    notes_.set("Height", twips);
    UserControl::Height(twips);
  }
  using UserControl::BackColor;
  void BackColor(OLE_COLOR colour) override {
    notes_.setColour("BackColor", colour);
    UserControl::BackColor(colour);
  }
  void PropertyChanged(std::u16string_view name) override {
    notes_.call("PropertyChanged " + toUtf8(name));
    UserControl::PropertyChanged(name);
  }

 private:
  Notes notes_;
};

class NotingPictureBox final : public PictureBox {
 public:
  NotingPictureBox(UserControl& parent, Notes notes) : PictureBox(parent), notes_(std::move(notes)) {}

  using PictureBox::AutoRedraw;
  void AutoRedraw(Boolean on) override {
    notes_.set("AutoRedraw", on);
    PictureBox::AutoRedraw(on);
  }
  using PictureBox::ScaleMode;
  void ScaleMode(std::int16_t mode) override {
    notes_.set("ScaleMode", static_cast<double>(mode));
    PictureBox::ScaleMode(mode);
  }
  double ScaleWidth() const override {
    notes_.call("ScaleWidth");
    return PictureBox::ScaleWidth();
  }
  double ScaleHeight() const override {
    notes_.call("ScaleHeight");
    return PictureBox::ScaleHeight();
  }
  double Width() const override {
    notes_.call("Width");
    return PictureBox::Width();
  }
  void Width(double width) override {
    notes_.set("Width", width);
    PictureBox::Width(width);
  }
  double Height() const override {
    notes_.call("Height");
    return PictureBox::Height();
  }
  void Height(double height) override {
    notes_.set("Height", height);
    PictureBox::Height(height);
  }
  using PictureBox::AutoSize;
  void AutoSize(Boolean on) override {
    notes_.set("AutoSize", on);
    PictureBox::AutoSize(on);
  }
  using PictureBox::Picture;
  void Picture(const PictureReference& picture) override {
    notes_.call(picture ? "Picture = " + std::to_string(picture->size().width) + "x" +
                              std::to_string(picture->size().height)
                        : std::string("Picture = none"));
    PictureBox::Picture(picture);
  }
  using PictureBox::BackColor;
  void BackColor(OLE_COLOR colour) override {
    notes_.setColour("BackColor", colour);
    PictureBox::BackColor(colour);
  }
  PictureReference Image() const override {
    notes_.call("Image");
    return PictureBox::Image();
  }

 private:
  Notes notes_;
};

class NotingLine final : public Line {
 public:
  NotingLine(UserControl& parent, Notes notes) : Line(parent), notes_(std::move(notes)) {}

  using Line::X1;
  void X1(double x) override {
    notes_.set("X1", x);
    Line::X1(x);
  }
  using Line::Y1;
  void Y1(double y) override {
    notes_.set("Y1", y);
    Line::Y1(y);
  }
  using Line::X2;
  void X2(double x) override {
    notes_.set("X2", x);
    Line::X2(x);
  }
  using Line::Y2;
  void Y2(double y) override {
    notes_.set("Y2", y);
    Line::Y2(y);
  }
  using Line::BorderColor;
  void BorderColor(OLE_COLOR colour) override {
    notes_.setColour("BorderColor", colour);
    Line::BorderColor(colour);
  }
  using Line::BorderWidth;
  void BorderWidth(std::int16_t width) override {
    notes_.set("BorderWidth", static_cast<double>(width));
    Line::BorderWidth(width);
  }
  using Line::Visible;
  void Visible(Boolean visible) override {
    notes_.set("Visible", visible);
    Line::Visible(visible);
  }

 private:
  Notes notes_;
};

class NotingLabel final : public Label {
 public:
  NotingLabel(UserControl& parent, Notes notes) : Label(parent), notes_(std::move(notes)) {}

  using Label::Caption;
  void Caption(std::u16string_view text) override {
    notes_.call("Caption = " + toUtf8(text));
    Label::Caption(text);
  }
  using Label::Alignment;
  void Alignment(Long alignment) override {
    notes_.set("Alignment", static_cast<double>(alignment));
    Label::Alignment(alignment);
  }
  using Label::ToolTipText;
  void ToolTipText(std::u16string_view text) override {
    notes_.call("ToolTipText = " + toUtf8(text));
    Label::ToolTipText(text);
  }
  using Label::Left;
  void Left(double left) override {
    notes_.set("Left", left);
    Label::Left(left);
  }
  using Label::Top;
  void Top(double top) override {
    notes_.set("Top", top);
    Label::Top(top);
  }
  using Label::Width;
  void Width(double width) override {
    notes_.set("Width", width);
    Label::Width(width);
  }
  using Label::Height;
  void Height(double height) override {
    notes_.set("Height", height);
    Label::Height(height);
  }
  void Move(double left, double top, double width, double height) override {
    std::ostringstream text;
    text << "Move " << left << ' ' << top << ' ' << width << ' ' << height;
    notes_.call(text.str());
    Label::Move(left, top, width, height);
  }

 private:
  Notes notes_;
};

class NotingTimer final : public Timer {
 public:
  NotingTimer(UserControl& parent, std::function<void()> onTick, Notes notes)
      : Timer(parent, std::move(onTick)), notes_(std::move(notes)) {}

  using Timer::Enabled;
  void Enabled(Boolean enabled) override {
    notes_.set("Enabled", enabled);
    Timer::Enabled(enabled);
  }
  using Timer::Interval;
  void Interval(Long milliseconds) override {
    notes_.set("Interval", static_cast<double>(milliseconds));
    Timer::Interval(milliseconds);
  }

 private:
  Notes notes_;
};

}  // namespace

std::string RecordingToolbox::begun(std::string_view name) {
  log_->note("new " + std::string(name));
  return std::string(name);
}

std::unique_ptr<UserControl> RecordingToolbox::makeUserControl(Container& container,
                                                               UserControlEvents& control) {
  auto made = std::make_unique<NotingUserControl>(container, control, Notes(*log_, begun("UserControl")));
  surfaces_["UserControl"] = [surface = made.get()] { return surface->hDC(); };
  return made;
}

std::unique_ptr<PictureBox> RecordingToolbox::makePictureBox(UserControl& parent, std::string_view name) {
  auto made = std::make_unique<NotingPictureBox>(parent, Notes(*log_, begun(name)));
  surfaces_[std::string(name)] = [box = made.get()] { return box->hDC(); };
  return made;
}

std::unique_ptr<Line> RecordingToolbox::makeLine(UserControl& parent, std::string_view name) {
  return std::make_unique<NotingLine>(parent, Notes(*log_, begun(name)));
}

std::unique_ptr<Label> RecordingToolbox::makeLabel(UserControl& parent, std::string_view name) {
  return std::make_unique<NotingLabel>(parent, Notes(*log_, begun(name)));
}

std::unique_ptr<Timer> RecordingToolbox::makeTimer(UserControl& parent, std::string_view name,
                                                   std::function<void()> onTick) {
  return std::make_unique<NotingTimer>(parent, std::move(onTick), Notes(*log_, begun(name)));
}

std::string RecordingToolbox::nameOf(platform::DeviceContext surface) const {
  if (surface == 0) return "none";
  for (const auto& [name, context] : surfaces_) {
    if (context() == surface) return name;
  }
  return "unknown";
}

}  // namespace tessaly::tests
