#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tessaly/forms/PropertyBag.h"
#include "tessaly/forms/Toolbox.h"
#include "tessaly/forms/UserControl.h"

namespace tessaly::tests {

/// A control that writes down its events, and does in each what a test tells it to.
class ControlOfTests final : public UserControlEvents {
 public:
  explicit ControlOfTests(Container& container)
      : surface_(container.toolbox().makeUserControl(container, *this)) {
    count() += 1;
  }
  ControlOfTests(const ControlOfTests&) = delete;
  ControlOfTests& operator=(const ControlOfTests&) = delete;
  ~ControlOfTests() override { count() -= 1; }

  /// How many there are.
  static int& count() {
    static int controls = 0;
    return controls;
  }

  /// What every control does in its InitProperties, while it is set; nobody can tell it before.
  static std::function<void(ControlOfTests&)>& onInit() {
    static std::function<void(ControlOfTests&)> action;
    return action;
  }

  UserControl& surface() { return *surface_; }

  /// The events so far, such as "MouseDown 1 0 3,4".
  std::vector<std::string> events;

  /// What it does in an event of a name, such as "Resize".
  std::map<std::string, std::function<void()>> on;

  /// The bag of a stored control, whose one property is "Size".
  Long size = 0;

  void InitProperties() override {
    note("InitProperties");
    const auto action = onInit();
    if (action) action(*this);
  }
  void ReadProperties(const PropertyBag& bag) override {
    size = longOf(bag.ReadProperty(u"Size", Variant(Long{0})));
    note("ReadProperties");
  }
  void WriteProperties(PropertyBag& bag) override {
    bag.WriteProperty(u"Size", Variant(size), Variant(Long{0}));
    note("WriteProperties");
  }
  void Resize() override { note("Resize"); }
  void Paint() override { note("Paint"); }
  void MouseDown(MouseState button, MouseState shift, float x, float y) override {
    note("MouseDown", button, shift, x, y);
  }
  void MouseMove(MouseState button, MouseState shift, float x, float y) override {
    note("MouseMove", button, shift, x, y);
  }
  void MouseUp(MouseState button, MouseState shift, float x, float y) override {
    note("MouseUp", button, shift, x, y);
  }

 private:
  void note(const std::string& name) {
    events.push_back(name);
    act(name);
  }

  void note(const std::string& name, MouseState button, MouseState shift, float x, float y) {
    events.push_back(name + ' ' + std::to_string(button) + ' ' + std::to_string(shift) + ' ' +
                     std::to_string(static_cast<int>(x)) + ',' + std::to_string(static_cast<int>(y)));
    act(name);
  }

  void act(const std::string& name) {
    const auto found = on.find(name);
    if (found == on.end()) return;
    const auto action = found->second;
    action();
  }

  std::unique_ptr<UserControl> surface_;
};

}  // namespace tessaly::tests
