// The two routines that lay out a document for a writer.

#include <gtest/gtest.h>

#include "tests/support/CResourcesPeer.h"
#include "tests/support/Platform.h"
#include "tests/support/World.h"

namespace tessaly {
namespace {

using platform::XmlNode;
using platform::XmlNodePtr;
using tests::World;

/// A document in which each blank counts: root, in it a, in it b.
class FormattingTest : public testing::TestWithParam<tests::Body> {
 protected:
  FormattingTest() {
    document_->async(false);
    document_->load(world_->put(u"file.xml", "<r xml:space='preserve'><a><b/></a></r>"));
    root_ = document_->documentElement();
    a_ = root_->firstChild();
    b_ = a_->firstChild();
  }

  static std::string textOf(XmlNode& node) {
    String text;
    node.nodeTypedValue(text);
    return toUtf8(text);
  }

  static int countOfTexts(XmlNode& parent) {
    int count = 0;
    for (XmlNode& node : parent.childNodes()) count += node.nodeType() == XmlNode::Text ? 1 : 0;
    return count;
  }

  /// How many text nodes there are where that many were appended; Wine joins those that come one behind the
  /// other.
  static void expectTexts(XmlNode& parent, int appended) {
    EXPECT_EQ(countOfTexts(parent), tests::underWine() ? 1 : appended);
  }

  /// Wine takes the carriage return away when it makes the node.
  static std::string lineBreak() { return tests::underWine() ? "\n" : "\r\n"; }

  void indent(XmlNode& parent, Boolean newLineFirst, XmlNode* node) {
    CResourcesPeer::appendIndentation(resources_, *document_, parent, newLineFirst, node);
  }

  std::unique_ptr<World> world_ = World::make(GetParam());
  CResources resources_;
  std::unique_ptr<platform::XmlDocument> document_ = World::xml().createDocument();
  XmlNodePtr root_;
  XmlNodePtr a_;
  XmlNodePtr b_;
};

INSTANTIATE_TEST_SUITE_P(Body, FormattingTest, testing::Values(tests::Body::Own, tests::Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(FormattingTest, ALineBreakIsATextNodeOfCarriageReturnAndLineFeed) {
  CResourcesPeer::appendLineBreak(resources_, *document_, *root_);
  EXPECT_EQ(textOf(*root_), lineBreak());
  expectTexts(*root_, 1);
}

TEST_P(FormattingTest, AnIndentationHasATabForEachAncestorTheDocumentIncluded) {
  indent(*root_, False, b_.get());
  EXPECT_EQ(textOf(*root_), "\t\t\t");
  expectTexts(*root_, 3);
}

TEST_P(FormattingTest, WithoutANodeTheParentIsMeant) {
  indent(*a_, False, nullptr);
  EXPECT_EQ(textOf(*a_), "\t\t");
  indent(*root_, False, nullptr);
  EXPECT_EQ(textOf(*root_), "\t\t\t");
}

TEST_P(FormattingTest, TheRootHasTheDocumentAboveItAlone) {
  indent(*a_, False, root_.get());
  EXPECT_EQ(textOf(*a_), "\t");
}

TEST_P(FormattingTest, ANewLineComesFirstWhereItIsAskedFor) {
  indent(*a_, True, b_.get());
  EXPECT_EQ(textOf(*a_), lineBreak() + "\t\t\t");
  expectTexts(*a_, 4);
  EXPECT_EQ(a_->firstChild()->nodeType(), XmlNode::Element);
}

}  // namespace
}  // namespace tessaly
