// Language files that mean harm, or are only very large: each ends quickly, and none reaches outside.

#include <gtest/gtest.h>

#include "tessaly/localisation/CResources.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Platform.h"
#include "tests/support/Print.h"
#include "tests/support/TemporaryFolder.h"

namespace tessaly {
namespace {

using tests::document;
using tests::general;
using tests::shown;
using tests::text;

std::string firstText(const CResources& resources) { return shown(resources.res(0)); }

class HostileFilesTest : public testing::Test {
 protected:
  HostileFilesTest() { resources_.applicationGUID(u"G"); }

  void load(std::string bytes) {
    folder_.put(u"file.xml", std::move(bytes));
    resources_.LoadXMLFile(tests::LanguageFolder::pathOf(u"file.xml"));
  }

  tests::LanguageFolder folder_;
  CResources resources_;
};

const std::string kHeader = general("F", 1036);

TEST(HostileFilesOnDisk, ReadNoExternalEntity) {
  const tests::TemporaryFolder disk;
  disk.write(u"secret.txt", "secret");
  const std::string type = "<!DOCTYPE LANGUAGE [<!ENTITY s SYSTEM \"secret.txt\">]>";
  CResources resources;
  resources.applicationGUID(u"G");
  resources.LoadXMLFile(disk.write(u"file.xml", type + document(kHeader + text(1, "x&s;y"))));
  EXPECT_EQ(firstText(resources), "xy");
}

TEST_F(HostileFilesTest, EndsAnEntityBombQuickly) {
  std::string bomb = "<!DOCTYPE L [<!ENTITY a0 \"aaaaaaaaaa\">";
  for (int i = 1; i <= 10; ++i) {
    std::string ten;
    for (int k = 0; k < 10; ++k) ten += "&a" + std::to_string(i - 1) + ";";
    bomb += "<!ENTITY a" + std::to_string(i) + " \"" + ten + "\">";
  }
  load(bomb + "]>" + document(kHeader + text(1, "&a10;")));
  EXPECT_EQ(firstText(resources_), "&Cancel");
}

TEST_F(HostileFilesTest, EndsDeepNestingWithoutItsStack) {
  std::string deep;
  for (int i = 0; i < 200'000; ++i) deep += "<e>";
  load(document(kHeader + deep));
  EXPECT_EQ(firstText(resources_), "&Cancel");
}

TEST_F(HostileFilesTest, WalksDownToTheDeepestLevelThereIs) {
  std::string open;
  std::string close;
  // The text's own elements are the last two of 256 levels below the root.
  for (int i = 0; i < 254; ++i) {
    open += "<e>";
    close += "</e>";
  }
  load(document(kHeader + open + text(1, "deep") + close));
  EXPECT_EQ(firstText(resources_), "deep");
}

TEST_F(HostileFilesTest, ReadsFiftyMegabytesOfTexts) {
  std::string many = kHeader;
  const std::string entry = text(1, std::string(200, 'x'));
  while (many.size() < 50'000'000) many += entry;
  load(document(many + text(1, "last")));
  EXPECT_EQ(firstText(resources_), "last");
}

TEST_F(HostileFilesTest, ReadsOneTextOfFiftyMegabytes) {
  // Wine's parser may cut a text at ten million characters.
  const std::size_t size = tests::underWine() ? 5'000'000 : 50'000'000;
  load(document(kHeader + text(1, std::string(size, 'x'))));
  EXPECT_EQ(resources_.res(0).size(), size);
}

TEST_F(HostileFilesTest, ReadsATextInAMillionPieces) {
  // Wine's time for putting pieces together grows with their square.
  const std::size_t count = tests::underWine() ? 40'000 : 1'000'000;
  std::string pieces;
  for (std::size_t i = 0; i < count; ++i) pieces += i % 2 == 0 ? "x&amp;" : "\n<!---->y";
  load(document(kHeader + text(1, pieces)));
  EXPECT_EQ(resources_.res(0).size(), count * 2);
}

TEST_F(HostileFilesTest, ReadsManyAttributes) {
  std::string attributes;
  for (int i = 0; i < 5'000; ++i) attributes += " a" + std::to_string(i) + "='x'";
  load(document(kHeader + "<e" + attributes + "/>" + text(1, "behind")));
  EXPECT_EQ(firstText(resources_), "behind");
}

TEST_F(HostileFilesTest, EndsAChainOfEntitiesWithoutItsStack) {
  // Each is the one before; the parser goes through them on its stack.
  std::string chain = "<!DOCTYPE LANGUAGE [<!ENTITY e0 \"x\">";
  for (int i = 1; i <= 100'000; ++i)
    chain += "<!ENTITY e" + std::to_string(i) + " \"&e" + std::to_string(i - 1) + ";\">";
  load(chain + "]>" + document(kHeader + text(1, "&e100000;")));
  EXPECT_EQ(firstText(resources_), "&Cancel");
}

TEST_F(HostileFilesTest, EndsAttributesThatTheDocumentTypeAdds) {
  std::string type = "<!DOCTYPE LANGUAGE [<!ATTLIST e";
  for (int i = 0; i < 900; ++i) type += " a" + std::to_string(i) + " CDATA 'x'";
  std::string elements;
  for (int i = 0; i < 100'000; ++i) elements += "<e/>";
  load(type + ">]>" + document(kHeader + elements + text(1, "un")));
  EXPECT_EQ(firstText(resources_), tests::underWine() ? "un" : "&Cancel");
}

TEST_F(HostileFilesTest, EndsADocumentTypeOfManyAttributes) {
  std::string type = "<!DOCTYPE LANGUAGE [<!ATTLIST e";
  for (int i = 0; i < 80'000; ++i) type += " a" + std::to_string(i) + " CDATA 'x'";
  load(type + ">]>" + document(kHeader + text(1, "un")));
  EXPECT_EQ(firstText(resources_), tests::underWine() ? "un" : "&Cancel");
}

TEST_F(HostileFilesTest, FillsATextOfManyPlaceholders) {
  std::string many;
  for (int i = 0; i < 300'000; ++i) many += "%a1";
  load(document(kHeader + text(1, many)));
  EXPECT_EQ(resources_.resWithArg(0, u"longer", u"x").size(), 300'000U * 6);
}

TEST_F(HostileFilesTest, ReadsALongNumber) {
  load(document(kHeader + "<STRING><ID>" + std::string(1'000'000, '0') + "1</ID><VALUE>x</VALUE></STRING>"));
  EXPECT_EQ(firstText(resources_), "x");
}

}  // namespace
}  // namespace tessaly
