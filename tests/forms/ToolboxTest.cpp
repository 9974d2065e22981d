// A toolbox of a test's own, whose objects write down what a control tells them.

#include "tessaly/forms/Toolbox.h"

#include <gtest/gtest.h>

#include "tessaly/forms/Label.h"
#include "tessaly/forms/Line.h"
#include "tessaly/forms/PictureBox.h"
#include "tessaly/forms/Timer.h"
#include "tessaly/forms/headless/Form.h"

namespace tessaly::tests {
namespace {

using Record = std::vector<std::string>;

class RecordingLine final : public Line {
 public:
  RecordingLine(UserControl& parent, std::string_view name, Record& record)
      : Line(parent), name_(name), record_(&record) {}

  using Line::Visible;
  void Visible(Boolean visible) override {
    record_->push_back(name_ + (visible ? " shown" : " hidden"));
    Line::Visible(visible);
  }

 private:
  std::string name_;
  Record* record_;
};

struct RecordingToolbox final : Toolbox {
  std::unique_ptr<Line> makeLine(UserControl& parent, std::string_view name) override {
    record.push_back("made " + std::string(name));
    return std::make_unique<RecordingLine>(parent, name, record);
  }
  Record record;
};

/// A control with one object of each kind.
class FurnishedControl final : public UserControlEvents {
 public:
  explicit FurnishedControl(Container& container)
      : surface(container.toolbox().makeUserControl(container, *this)),
        box(container.toolbox().makePictureBox(*surface, "Picture1")),
        line(container.toolbox().makeLine(*surface, "Line1(0)")),
        label(container.toolbox().makeLabel(*surface, "lblURL")),
        timer(container.toolbox().makeTimer(*surface, "Timer1", [this] { ++ticks; })) {}

  void InitProperties() override { timer->Interval(10); }
  void ReadProperties(const PropertyBag&) override {}
  void WriteProperties(PropertyBag&) override {}
  void Resize() override {
    timer->Enabled(True);
    line->Visible(True);
  }
  void Paint() override {}
  void MouseDown(MouseState, MouseState, float, float) override {}
  void MouseMove(MouseState, MouseState, float, float) override {}
  void MouseUp(MouseState, MouseState, float, float) override {}

  int ticks = 0;
  std::unique_ptr<UserControl> surface;
  std::unique_ptr<PictureBox> box;
  std::unique_ptr<Line> line;
  std::unique_ptr<Label> label;
  std::unique_ptr<Timer> timer;
};

TEST(ToolboxTest, MakesTheEnginesOwnObjectsWhereNothingElseIsTold) {
  headless::Form form;
  auto& control = form.add<FurnishedControl>({0, 0, 3, 3});
  EXPECT_EQ(control.surface->lines().size(), 1U);
  EXPECT_EQ(control.surface->labels().size(), 1U);
  EXPECT_EQ(control.box->Width(), 0);
  form.advance(25);
  EXPECT_EQ(control.ticks, 2);
}

TEST(ToolboxTest, OneOfATestsOwnSeesWhatTheControlDoes) {
  headless::Form form;
  RecordingToolbox toolbox;
  form.setToolbox(toolbox);
  auto& control = form.add<FurnishedControl>({0, 0, 3, 3});
  form.placeOf(control).drag({4, 4});
  EXPECT_EQ(toolbox.record, (Record{"made Line1(0)", "Line1(0) shown", "Line1(0) shown"}));
  EXPECT_TRUE(control.line->Visible());
}

}  // namespace
}  // namespace tessaly::tests
