#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/controls/InputStage.h"

namespace tessaly::tests {

constexpr MouseState kLeft = 1;
constexpr MouseState kRight = 2;
constexpr MouseState kShift = 1;

/// A control under a hand, with what it is and what its host has heard compared in one.
class InputFixture : public testing::Test {
 protected:
  void expect(const std::string& state, const std::string& heard) {
    EXPECT_EQ(stage_.state(), state);
    EXPECT_EQ(stage_.heard(), heard);
  }
  void hover() {
    stage_.moveOn();
    expect("hovered raised polling counting", "selected");
  }

  InputStage stage_;
  transparentBitmap& control_ = stage_.control;
};

}  // namespace tessaly::tests
