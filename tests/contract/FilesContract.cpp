// What a body of the area Files must do, whichever it is.

#include "tessaly/platform/Files.h"

#include <gtest/gtest.h>

#include "tests/support/World.h"

namespace tessaly::tests {
namespace {

using namespace std::string_literals;

class FilesContract : public testing::TestWithParam<Body> {
 protected:
  String pathOf(std::u16string_view name) const {
    return world_->folder() + World::files().separator() + String(name);
  }

  std::vector<String> listed() { return World::files().list(world_->folder(), u".xml"); }

  std::unique_ptr<World> world_ = World::make(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Body, FilesContract, testing::Values(Body::Own, Body::Fake),
                         testing::PrintToStringParamName());

TEST_P(FilesContract, ReadsAllBytesOfAFile) {
  const std::string bytes = "\0\r\n\x1A\xFF end"s;
  world_->put(u"bytes.bin", bytes);
  EXPECT_EQ(World::files().read(pathOf(u"bytes.bin")), bytes);
}

TEST_P(FilesContract, ReadsAnEmptyFileAsNoBytes) {
  world_->put(u"empty.bin", "");
  EXPECT_EQ(World::files().read(pathOf(u"empty.bin")), "");
}

TEST_P(FilesContract, ReadsAFileOfManyBytes) {
  const std::string bytes(3'000'000, 'x');
  world_->put(u"large.bin", bytes);
  EXPECT_EQ(World::files().read(pathOf(u"large.bin")), bytes);
}

TEST_P(FilesContract, ReadsNothingWhereThereIsNoFile) {
  world_->put(u"there.xml", "x");
  EXPECT_EQ(World::files().read(pathOf(u"missing.xml")), std::nullopt);
  EXPECT_EQ(World::files().read(pathOf(u"missing") + World::files().separator() + u"there.xml"),
            std::nullopt);
  EXPECT_EQ(World::files().read(world_->folder()), std::nullopt);
  EXPECT_EQ(World::files().read(u""), std::nullopt);
}

TEST_P(FilesContract, ReadsNothingForAPathWithANul) {
  world_->put(u"there.xml", "x");
  EXPECT_EQ(World::files().read(pathOf(u"there.xml") + u"\0.txt"s), std::nullopt);
  EXPECT_EQ(World::files().read(pathOf(u"there.xml") + u"\0"s), std::nullopt);
}

TEST_P(FilesContract, OpensWhatItCanRead) {
  world_->put(u"full.bin", "x");
  world_->put(u"empty.bin", "");
  EXPECT_TRUE(World::files().opens(pathOf(u"full.bin")));
  EXPECT_TRUE(World::files().opens(pathOf(u"empty.bin")));
}

TEST_P(FilesContract, OpensNoFolderAndNothingThatIsMissing) {
  world_->put(u"there.xml", "x");
  EXPECT_FALSE(World::files().opens(pathOf(u"missing.xml")));
  EXPECT_FALSE(World::files().opens(pathOf(u"missing") + World::files().separator() + u"there.xml"));
  EXPECT_FALSE(World::files().opens(world_->folder()));
  EXPECT_FALSE(World::files().opens(world_->folder() + World::files().separator()));
  EXPECT_FALSE(World::files().opens(u""));
}

TEST_P(FilesContract, OpensNoPathWithANul) {
  world_->put(u"there.xml", "x");
  EXPECT_FALSE(World::files().opens(pathOf(u"there.xml") + u"\0.txt"s));
  EXPECT_FALSE(World::files().opens(pathOf(u"there.xml") + u"\0"s));
}

TEST_P(FilesContract, TakesPathsInEveryScript) {
  for (const std::u16string_view name :
       {u"a b.xml", u"a%20b.xml", u"a#b.xml", u"français.xml", u"日本語.xml", u"😀.xml"}) {
    world_->put(name, "x");
    EXPECT_EQ(World::files().read(pathOf(name)), "x");
    EXPECT_TRUE(World::files().opens(pathOf(name)));
  }
  EXPECT_EQ(listed().size(), 6U);
}

TEST_P(FilesContract, ListsNamesSortedByTheirUpperCase) {
  for (const std::u16string_view name :
       {u"b.xml", u"A.xml", u"_.xml", u"c.xml", u"Z.xml", u"a_.xml", u"é.xml", u"É2.xml"}) {
    world_->put(name, "x");
  }
  const std::vector<String> expected = {u"A.xml", u"a_.xml", u"b.xml", u"c.xml",
                                        u"Z.xml", u"_.xml",  u"é.xml", u"É2.xml"};
  EXPECT_EQ(listed(), expected);
}

TEST_P(FilesContract, ListsEndingsInAnyCaseAndOnlyAtTheEnd) {
  for (const std::u16string_view name :
       {u"a.xml", u"B.XML", u"c.Xml", u"d.xmlx", u"e.xml.bak", u"fxml", u"g.txt", u"h.xm"}) {
    world_->put(name, "x");
  }
  EXPECT_EQ(listed(), (std::vector<String>{u"a.xml", u"B.XML", u"c.Xml"}));
}

TEST_P(FilesContract, ListsNoNameThatBeginsWithADot) {
  world_->put(u".hidden.xml", "x");
  world_->put(u".xml", "x");
  world_->put(u"shown.xml", "x");
  EXPECT_EQ(listed(), std::vector<String>{u"shown.xml"});
}

TEST_P(FilesContract, ListsAFolderWithOrWithoutASeparatorAtItsEnd) {
  world_->put(u"a.xml", "x");
  EXPECT_EQ(World::files().list(world_->folder() + World::files().separator(), u".xml"),
            std::vector<String>{u"a.xml"});
}

TEST_P(FilesContract, ListsNothingWhereThereIsNoFolder) {
  world_->put(u"a.xml", "x");
  EXPECT_TRUE(World::files().list(pathOf(u"missing"), u".xml").empty());
  EXPECT_TRUE(World::files().list(pathOf(u"a.xml"), u".xml").empty());
  EXPECT_TRUE(World::files().list(world_->folder() + u"\0"s, u".xml").empty());
}

TEST_P(FilesContract, ListsAnEmptyFolderAsEmpty) { EXPECT_TRUE(listed().empty()); }

}  // namespace
}  // namespace tessaly::tests
