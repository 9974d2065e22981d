// What a body of the area Xml must do, whichever it is.

#include <gtest/gtest.h>

#include "tessaly/base/Text.h"
#include "tests/contract/XmlTable.h"
#include "tests/support/Platform.h"
#include "tests/support/Print.h"
#include "tests/support/World.h"

namespace tessaly::tests {
namespace {

using platform::XmlDocument;
using platform::XmlNode;
using platform::XmlNodePtr;

/// A document as the library makes and loads one.
std::unique_ptr<XmlDocument> loaded(std::u16string_view path, bool expected) {
  auto document = World::xml().createDocument();
  document->async(false);
  document->validateOnParse(false);
  EXPECT_EQ(document->load(path), expected);
  return document;
}

std::string nameOf(XmlNode& node) { return toUtf8(node.baseName()); }

std::string textOf(XmlNode& node) {
  String text;
  node.nodeTypedValue(text);
  return toUtf8(text);
}

/// The children that have a name; texts and comments between them have none.
std::string childrenOf(XmlNode& node) {
  std::string result;
  for (XmlNode& child : node.childNodes()) {
    const std::string name = nameOf(child);
    if (!name.empty()) result += name + "=" + textOf(child) + "|";
  }
  return result;
}

std::vector<XmlRow> allRows() {
  std::vector<XmlRow> rows = xmlDocuments();
  for (const auto& more : {xmlEncodings(), xmlMalformed()}) rows.insert(rows.end(), more.begin(), more.end());
  return rows;
}

class XmlContract : public testing::TestWithParam<std::tuple<Body, XmlRow>> {};

std::string nameOfCase(const testing::TestParamInfo<std::tuple<Body, XmlRow>>& info) {
  return testing::PrintToString(std::get<0>(info.param)) + std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(Document, XmlContract,
                         testing::Combine(testing::Values(Body::Own, Body::Fake),
                                          testing::ValuesIn(allRows())),
                         nameOfCase);

TEST_P(XmlContract, ReadsTheTableOfDocuments) {
  const auto& [body, row] = GetParam();
  if (underWine() && !row.excuse.empty()) GTEST_SKIP() << "Wine: " << row.excuse;
  const auto world = World::make(body);
  const auto document = loaded(world->put(u"document.xml", row.bytes), row.children.has_value());
  const XmlNodePtr root = document->documentElement();
  ASSERT_EQ(root != nullptr, row.children.has_value());
  if (root) {
    EXPECT_EQ(childrenOf(*root), *row.children);
  }
}

class XmlOperations : public testing::TestWithParam<Body> {
 protected:
  std::unique_ptr<XmlDocument> documentOf(std::string_view bytes) {
    return loaded(world_->put(u"document.xml", bytes), true);
  }

  std::unique_ptr<World> world_ = World::make(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Body, XmlOperations, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(XmlOperations, FindsFilesWhateverTheirNameHolds) {
  for (const std::u16string_view name : {u"a b.xml", u"a%20b.xml", u"a#b.xml", u"a+b&c.xml", u"日本語.xml"}) {
    EXPECT_EQ(nameOf(*loaded(world_->put(name, "<r/>"), true)->documentElement()), "r") << shown(name);
  }
}

TEST_P(XmlOperations, HasNoElementWhereTheFileIsMissing) {
  EXPECT_EQ(loaded(world_->folder() + u"/missing.xml", false)->documentElement(), nullptr);
  EXPECT_EQ(loaded(world_->folder(), false)->documentElement(), nullptr);
  EXPECT_EQ(loaded(u"", false)->documentElement(), nullptr);
}

TEST_P(XmlOperations, HasNoElementBeforeAFileIsLoaded) {
  EXPECT_EQ(World::xml().createDocument()->documentElement(), nullptr);
}

TEST_P(XmlOperations, TellsTypesOfNodes) {
  const auto document = documentOf("<r><a/>text<!--c--><?p d?><![CDATA[x]]></r>");
  std::string types;
  for (XmlNode& node : document->documentElement()->childNodes())
    types += std::to_string(node.nodeType()) + " ";
  EXPECT_EQ(types, "1 3 8 7 4 ");
}

TEST_P(XmlOperations, HasNamesOnlyForElementsAndInstructions) {
  const auto document = documentOf("<r><a/>text<!--c--><?p d?><![CDATA[x]]></r>");
  std::string names;
  for (XmlNode& node : document->documentElement()->childNodes()) names += nameOf(node) + ",";
  EXPECT_EQ(names, "a,,,p,,");
}

TEST_P(XmlOperations, ReplacesWhatTheCallersTextHeld) {
  const auto document = documentOf("<r><a/></r>");
  const XmlNodePtr root = document->documentElement();
  String text = u"before";
  root->firstChild()->nodeTypedValue(text);
  EXPECT_EQ(text, u"");
}

TEST_P(XmlOperations, TellsWhetherANodeHasChildren) {
  const auto document = documentOf("<r><a>x</a><b/><c> </c><d><!--c--></d></r>");
  std::string result;
  for (XmlNode& node : document->documentElement()->childNodes()) result += node.hasChildNodes() ? "y" : "n";
  EXPECT_EQ(result, "ynny");
}

TEST_P(XmlOperations, GoesUpToTheDocument) {
  const auto document = documentOf("<r><a><b/></a></r>");
  const XmlNodePtr inner = document->documentElement()->firstChild()->firstChild();
  std::string path;
  for (XmlNodePtr node = inner->parentNode(); node; node = node->parentNode()) {
    path += nameOf(*node) + ":" + std::to_string(node->nodeType()) + " ";
  }
  EXPECT_EQ(path, "a:1 r:1 :9 ");
}

TEST_P(XmlOperations, AppendsATextNodeBehindTheLastChild) {
  const auto document = documentOf("<r xml:space='preserve'><a>1</a></r>");
  const XmlNodePtr root = document->documentElement();
  root->appendChild(*document->createTextNode(u" two é"));
  EXPECT_EQ(textOf(*root), "1 two é");
  const XmlNodePtr added = root->firstChild()->nextSibling();
  ASSERT_NE(added, nullptr);
  EXPECT_EQ(added->nodeType(), XmlNode::Text);
  EXPECT_EQ(nameOf(*added->parentNode()), "r");
  EXPECT_EQ(added->nextSibling(), nullptr);
}

TEST_P(XmlOperations, KeepsNeighbouringTextNodesApart) {
  if (underWine()) GTEST_SKIP() << "Wine: it joins text nodes that are appended one behind the other";
  const auto document = documentOf("<r xml:space='preserve'>1</r>");
  const XmlNodePtr root = document->documentElement();
  root->appendChild(*document->createTextNode(u" two"));
  root->appendChild(*document->createTextNode(u"\tthree"));
  EXPECT_EQ(textOf(*root), "1 two\tthree");
  EXPECT_EQ(textOf(*root->firstChild()->nextSibling()->nextSibling()), "\tthree");
}

TEST_P(XmlOperations, AppendsToAnElementWithoutChildren) {
  const auto document = documentOf("<r><a/></r>");
  const XmlNodePtr empty = document->documentElement()->firstChild();
  empty->appendChild(*document->createTextNode(u"x"));
  EXPECT_TRUE(empty->hasChildNodes());
  EXPECT_EQ(textOf(*empty), "x");
}

TEST_P(XmlOperations, ReadsAsDeepAsTwoHundredAndFiftySixLevels) {
  const auto nested = [](int levels) {
    std::string bytes;
    for (int i = 0; i <= levels; ++i) bytes += "<e>";
    bytes += "x";
    for (int i = 0; i <= levels; ++i) bytes += "</e>";
    return bytes;
  };
  EXPECT_EQ(textOf(*loaded(world_->put(u"deep.xml", nested(256)), true)->documentElement()), "x");
  EXPECT_EQ(loaded(world_->put(u"deeper.xml", nested(257)), false)->documentElement(), nullptr);
}

TEST_P(XmlOperations, RefusesEntityBombsAndDeepNesting) {
  for (const std::string& bytes : xmlHostile()) {
    EXPECT_EQ(loaded(world_->put(u"hostile.xml", bytes), false)->documentElement(), nullptr)
        << bytes.substr(0, 60);
  }
}

TEST_P(XmlOperations, CreatesATextNodeOfItsOwnTextAfterALoadThatFailed) {
  const auto document = loaded(world_->put(u"broken.xml", "<r>leftover"), false);
  EXPECT_EQ(textOf(*document->createTextNode(u"own")), "own");
}

TEST_P(XmlOperations, KeepsDocumentsApart) {
  const auto first = loaded(world_->put(u"first.xml", "<r>1</r>"), true);
  const auto second = loaded(world_->put(u"second.xml", "<r>2</r>"), true);
  EXPECT_EQ(textOf(*first->documentElement()), "1");
  EXPECT_EQ(textOf(*second->documentElement()), "2");
}

}  // namespace
}  // namespace tessaly::tests
