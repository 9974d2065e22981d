// How a bag keeps a link.

#include <gtest/gtest.h>

#include "tests/controls/Figures.h"
#include "tests/controls/LinkStage.h"
#include "tests/controls/RecordingBag.h"
#include "tests/controls/URLLinkPeer.h"

namespace tessaly::tests {
namespace {

const std::string kHome = "https://www.gleamline.example/";

class LinkPersistenceTest : public testing::Test {
 protected:
  Calls restore() {
    return stage_.callsOf([&] { stage_.place().userControl().restore(bag_); });
  }

  void keep(std::u16string_view name, const PropertyValue& value) {
    bag_.PropertyBag::WriteProperty(name, value, Variant(u"no such default"));
  }

  void expectDefaults() {
    EXPECT_EQ(link_.text(), u"Gleamline Home Page");
    EXPECT_EQ(toUtf8(link_.URL()), kHome);
    EXPECT_EQ(link_.ShowToolTip(), False);
    EXPECT_EQ(link_.alignment(), 1);
    EXPECT_EQ(stage_.label().Alignment(), 1);
    EXPECT_EQ(stage_.place().toolTip(), u"");
  }

  void fillBag() {
    keep(u"Text", Variant(u"Reports"));
    keep(u"URL", Variant(u"C:\\reports.txt"));
    keep(u"ShowToolTip", Variant(True));
    keep(u"Alignment", Variant(Long{2}));
  }

  LinkStage stage_;
  URLLink& link_ = stage_.link();
  RecordingBag bag_{stage_.log()};
};

const Calls kResize{"lblURL.Left = 0",     "lblURL.Top = 0",     "UserControl.Width",
                    "lblURL.Width = 1500", "UserControl.Height", "lblURL.Height = 600"};

Calls followedByResize(Calls calls) {
  calls.insert(calls.end(), kResize.begin(), kResize.end());
  return calls;
}

const Calls kInit{"lblURL.Caption = Gleamline Home Page",
                  "UserControl.Width",
                  "UserControl.Height",
                  "lblURL.Move 0 0 1500 600",
                  "UserControl.PropertyChanged Text",
                  "lblURL.ToolTipText = ",
                  "UserControl.PropertyChanged ShowToolTip",
                  "lblURL.Alignment = 1"};

TEST_F(LinkPersistenceTest, InitPropertiesAssignsAndStoresInOrder) {
  link_.ShowToolTip(True);
  link_.alignment(0);
  EXPECT_EQ(stage_.callsOf([&] { URLLinkPeer::InitProperties(link_); }), kInit);
  expectDefaults();
}

TEST_F(LinkPersistenceTest, ReadPropertiesReadsInOrder) {
  fillBag();
  EXPECT_EQ(
      restore(),
      followedByResize({"read Text or 'Gleamline Home Page'", "lblURL.Caption = Reports", "UserControl.Width",
                        "UserControl.Height", "lblURL.Move 0 0 1500 600", "UserControl.PropertyChanged Text",
                        "read URL or '" + kHome + "'", "read ShowToolTip or False",
                        "lblURL.ToolTipText = C:\\reports.txt", "UserControl.PropertyChanged ShowToolTip",
                        "read Alignment or 1", "lblURL.Alignment = 2"}));
  EXPECT_EQ(link_.URL(), u"C:\\reports.txt");
  EXPECT_EQ(link_.alignment(), 2);
}

TEST_F(LinkPersistenceTest, AnEmptyBagGivesTheDefaults) {
  link_.ShowToolTip(True);
  restore();
  expectDefaults();
}

TEST_F(LinkPersistenceTest, WritePropertiesWritesInOrder) {
  link_.text(u"Reports");
  link_.alignment(0);
  EXPECT_EQ(stage_.callsOf([&] { stage_.place().userControl().save(bag_); }),
            (Calls{"write Text 'Reports' or 'Gleamline Home Page'",
                   "write URL 'https://host.example/' or '" + kHome + "'", "write ShowToolTip False or False",
                   "write Alignment 0 or 1"}));
}

TEST_F(LinkPersistenceTest, WhatWasWrittenIsReadAgain) {
  link_.text(u"\u65E5\u672C \"x\"");
  link_.URL(u"a\nb");
  link_.ShowToolTip(True);
  link_.alignment(-7);
  const PropertyBag bag = PropertyBag::fromText(stage_.place().save().text());
  auto& other = stage_.form().add<URLLink>({0, 0, 9, 9}, bag);
  EXPECT_EQ(other.text(), link_.text());
  EXPECT_EQ(other.URL(), link_.URL());
  EXPECT_EQ(other.ShowToolTip(), True);
  EXPECT_EQ(other.alignment(), -7);
  EXPECT_EQ(stage_.form().placeOf(other).toolTip(), u"a\nb");
}

TEST_F(LinkPersistenceTest, DefaultsAreNotKept) {
  auto& link = stage_.form().add<URLLink>({0, 0, 9, 9});
  EXPECT_EQ(stage_.form().placeOf(link).save().text(), u"");
}

TEST_F(LinkPersistenceTest, KeysAreFoundInAnyCase) {
  keep(u"TEXT", Variant(u"Reports"));
  keep(u"url", Variant(u"x"));
  restore();
  EXPECT_EQ(link_.text(), u"Reports");
  EXPECT_EQ(link_.URL(), u"x");
}

TEST_F(LinkPersistenceTest, AValueOfAnotherKindIsConverted) {
  keep(u"Text", Variant(2.5));
  keep(u"URL", Variant(True));
  keep(u"ShowToolTip", Variant(u"true"));
  keep(u"Alignment", Variant(u" 2 "));
  restore();
  EXPECT_EQ(link_.text(), u"2.5");
  EXPECT_EQ(link_.URL(), u"True");
  EXPECT_EQ(link_.ShowToolTip(), True);
  EXPECT_EQ(link_.alignment(), 2);
}

TEST_F(LinkPersistenceTest, ABadBagGivesAllTheDefaults) {
  struct Bad {
    std::u16string_view name;
    PropertyValue value;
  };
  const std::vector<Bad> values{{u"Text", slope({1, 1}, 1)},
                                {u"URL", PictureReference()},
                                {u"ShowToolTip", Variant(u"perhaps")},
                                {u"Alignment", Variant(u"left")},
                                {u"Alignment", Variant(4294967296.0)}};
  for (const auto& [name, value] : values) {
    fillBag();
    keep(name, value);
    EXPECT_NE(restore().back(), "error 13");
    expectDefaults();
  }
}

TEST_F(LinkPersistenceTest, AReadThatFailsIsFollowedByInitProperties) {
  fillBag();
  stage_.log().fail("read ShowToolTip or False", RuntimeError::OutOfMemory);
  Calls calls{"read Text or 'Gleamline Home Page'",
              "lblURL.Caption = Reports",
              "UserControl.Width",
              "UserControl.Height",
              "lblURL.Move 0 0 1500 600",
              "UserControl.PropertyChanged Text",
              "read URL or '" + kHome + "'",
              "read ShowToolTip or False"};
  calls.insert(calls.end(), kInit.begin(), kInit.end());
  EXPECT_EQ(restore(), followedByResize(calls));
  expectDefaults();
}

TEST_F(LinkPersistenceTest, ALabelThatFailsIsFollowedByInitPropertiesToo) {
  fillBag();
  stage_.log().fail("lblURL.Alignment = 2", RuntimeError::InvalidPropertyValue);
  restore();
  expectDefaults();
}

TEST_F(LinkPersistenceTest, AnInitPropertiesThatFailsAfterABadBagComesOut) {
  fillBag();
  keep(u"Alignment", Variant(u"left"));
  stage_.log().fail("lblURL.Caption = Gleamline Home Page", RuntimeError::OutOfMemory);
  EXPECT_EQ(restore().back(), "error 7");
}

TEST_F(LinkPersistenceTest, AFailingWriteComesOutOfTheSave) {
  stage_.log().fail("write ShowToolTip False or False", RuntimeError::OutOfMemory);
  const Calls calls = stage_.callsOf([&] { stage_.place().userControl().save(bag_); });
  EXPECT_EQ(calls.size(), 4U);
  EXPECT_EQ(calls.back(), "error 7");
}

}  // namespace
}  // namespace tessaly::tests
