// What a link begins with and shows, and what its assignments do, in their order.

#include <gtest/gtest.h>

#include "tests/controls/LinkStage.h"

namespace tessaly::tests {
namespace {

class LinkPropertiesTest : public testing::Test {
 protected:
  LinkStage stage_;
  URLLink& link_ = stage_.link();
};

TEST_F(LinkPropertiesTest, ANewLinkHasTheDefaults) {
  auto& link = stage_.form().add<URLLink>({0, 0, 50, 10});
  EXPECT_EQ(link.text(), u"Gleamline Home Page");
  EXPECT_EQ(link.URL(), u"https://www.gleamline.example/");
  EXPECT_EQ(link.ShowToolTip(), False);
  EXPECT_EQ(link.alignment(), 1);
}

TEST_F(LinkPropertiesTest, ANewLinkIsMadeInOrder) {
  EXPECT_EQ(stage_.callsOf([&] {
    stage_.form().add<URLLink>({0, 0, 50, 10});
  }),
            (Calls{"new UserControl", "new lblURL", "UserControl.ScaleMode = 1", "lblURL.Caption = Label1",
                   "lblURL.Move 240 120 1395 615",
                   // InitProperties
                   "lblURL.Caption = Gleamline Home Page", "UserControl.Width", "UserControl.Height",
                   "lblURL.Move 0 0 750 150", "UserControl.PropertyChanged Text",
                   "lblURL.ToolTipText = ", "UserControl.PropertyChanged ShowToolTip", "lblURL.Alignment = 1",
                   // Resize
                   "lblURL.Left = 0", "lblURL.Top = 0", "UserControl.Width", "lblURL.Width = 750",
                   "UserControl.Height", "lblURL.Height = 150"}));
}

TEST_F(LinkPropertiesTest, ItsLabelLooksAsItIsDesigned) {
  const Label& label = stage_.label();
  EXPECT_EQ(label.ForeColor(), 0xFF0000);
  EXPECT_EQ(label.BackColor(), static_cast<OLE_COLOR>(0x8000000F));
  EXPECT_EQ(label.font(), (Font{u"MS Sans Serif", 8.25, 400, true}));
  EXPECT_EQ(stage_.place().userControl().ScaleMode(), 1);
}

TEST_F(LinkPropertiesTest, NothingOfItsLookChangesWithTheMouse) {
  const Font font = stage_.label().font();
  stage_.press();
  stage_.form().movePointer({500, 500});
  EXPECT_EQ(stage_.label().ForeColor(), 0xFF0000);
  EXPECT_EQ(stage_.label().font(), font);
}

TEST_F(LinkPropertiesTest, TheTextIsTheLabels) {
  EXPECT_EQ(stage_.callsOf([&] { link_.text(u"Reports"); }),
            (Calls{"lblURL.Caption = Reports", "UserControl.Width", "UserControl.Height",
                   "lblURL.Move 0 0 1500 600", "UserControl.PropertyChanged Text"}));
  EXPECT_EQ(link_.text(), u"Reports");
  EXPECT_EQ(stage_.label().Caption(), u"Reports");
}

TEST_F(LinkPropertiesTest, TheURLIsStoredAndTheToolTipBroughtUpToDate) {
  EXPECT_EQ(stage_.callsOf([&] { link_.URL(u"a b"); }),
            (Calls{"lblURL.ToolTipText = ", "UserControl.PropertyChanged URL"}));
  EXPECT_EQ(link_.URL(), u"a b");
  EXPECT_EQ(stage_.callsOf([&] { link_.ShowToolTip(True); }),
            (Calls{"lblURL.ToolTipText = a b", "UserControl.PropertyChanged ShowToolTip"}));
  EXPECT_EQ(stage_.callsOf([&] { link_.URL(u"c"); }),
            (Calls{"lblURL.ToolTipText = c", "UserControl.PropertyChanged URL"}));
  EXPECT_EQ(stage_.callsOf([&] { link_.ShowToolTip(False); }),
            (Calls{"lblURL.ToolTipText = ", "UserControl.PropertyChanged ShowToolTip"}));
}

TEST_F(LinkPropertiesTest, TheToolTipFollowsTheURLWhileItIsShown) {
  EXPECT_EQ(stage_.place().toolTip(), u"");
  link_.ShowToolTip(Boolean(2));
  EXPECT_EQ(link_.ShowToolTip(), 2);
  EXPECT_EQ(stage_.place().toolTip(), u"https://host.example/");
  link_.URL(u"");
  EXPECT_EQ(stage_.place().toolTip(), u"");
  link_.URL(u"C:\\a b.txt");
  EXPECT_EQ(stage_.place().toolTip(), u"C:\\a b.txt");
}

TEST_F(LinkPropertiesTest, TheAlignmentIsTheLabelsAndNobodyIsTold) {
  for (const Long alignment : {0, 1, 2, 3, -1, 2147483647}) {
    EXPECT_EQ(stage_.callsOf([&] { link_.alignment(alignment); }),
              (Calls{"lblURL.Alignment = " + std::to_string(alignment)}));
    EXPECT_EQ(link_.alignment(), alignment);
    EXPECT_EQ(stage_.label().Alignment(), alignment);
  }
}

TEST_F(LinkPropertiesTest, TheLabelCoversTheControlWhateverItsSize) {
  EXPECT_EQ(stage_.callsOf([&] {
    stage_.place().drag({70, 0});
  }),
            (Calls{"lblURL.Left = 0", "lblURL.Top = 0", "UserControl.Width", "lblURL.Width = 1050",
                   "UserControl.Height", "lblURL.Height = 0"}));
}

TEST_F(LinkPropertiesTest, WhatTheLabelRaisesComesOutOfTheAssignment) {
  stage_.log().fail("lblURL.Caption = x", RuntimeError::OutOfMemory);
  EXPECT_EQ(stage_.callsOf([&] { link_.text(u"x"); }), (Calls{"lblURL.Caption = x", "error 7"}));
  stage_.log().fail("lblURL.ToolTipText = ", RuntimeError::OutOfMemory);
  EXPECT_EQ(stage_.callsOf([&] { link_.URL(u"x"); }), (Calls{"lblURL.ToolTipText = ", "error 7"}));
  EXPECT_EQ(link_.URL(), u"x");
  stage_.log().fail("lblURL.Width = 1050", RuntimeError::OutOfMemory);
  stage_.place().drag({70, 9});
  EXPECT_EQ(stage_.form().errors().back().number(), RuntimeError::OutOfMemory);
}

}  // namespace
}  // namespace tessaly::tests
