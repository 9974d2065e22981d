#include "tessaly/platform/fake/Xml.h"

#include <gtest/gtest.h>

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Files.h"

namespace tessaly::platform::fake {
namespace {

class FakeXml : public testing::Test {
 protected:
  FakeXml() { files_.put(u"/r.xml", "<r/>"); }

  Files files_;
  Override filesInForce_{files_};
  Xml xml_;
};

TEST_F(FakeXml, ReadsDocumentsThatStandInMemory) {
  const auto document = xml_.createDocument();
  EXPECT_TRUE(document->load(u"/r.xml"));
  EXPECT_NE(document->documentElement(), nullptr);
}

TEST_F(FakeXml, RecordsWhatIsAskedOfIt) {
  {
    const auto document = xml_.createDocument();
    document->async(false);
    document->validateOnParse(true);
    document->load(u"/r.xml");
    document->documentElement();
    document->createTextNode(u"x");
  }
  const std::vector<std::string> expected = {"createDocument", "async false",     "validateOnParse true",
                                             "load",           "documentElement", "createTextNode",
                                             "release"};
  EXPECT_EQ(xml_.calls(), expected);
}

TEST_F(FakeXml, FailsToCreateAsTold) {
  xml_.failCreate();
  EXPECT_EQ(xml_.createDocument(), nullptr);
}

TEST_F(FakeXml, FailsToLoadAsTold) {
  xml_.failLoad();
  const auto document = xml_.createDocument();
  EXPECT_FALSE(document->load(u"/r.xml"));
  EXPECT_EQ(document->documentElement(), nullptr);
}

}  // namespace
}  // namespace tessaly::platform::fake
