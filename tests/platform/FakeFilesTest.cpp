#include "tessaly/platform/fake/Files.h"

#include <gtest/gtest.h>

#include "tessaly/platform/Core.h"

namespace tessaly::platform::fake {
namespace {

using Names = std::vector<String>;

TEST(FakeFiles, HaveThePlatformsSeparatorOrTheOneTheyAreGiven) {
  EXPECT_EQ(Files().separator(), core().files->separator());
  EXPECT_EQ(Files(u'\\').separator(), u'\\');
  EXPECT_EQ(Files(u'/').separator(), u'/');
}

TEST(FakeFiles, TakeEitherSeparatorInAPath) {
  Files files;
  files.put(u"/texts\\french.xml", "x");
  EXPECT_EQ(files.read(u"\\texts/french.xml"), "x");
  EXPECT_EQ(files.list(u"\\texts\\", u".xml"), Names{u"french.xml"});
}

TEST(FakeFiles, ListOnlyTheFolderItself) {
  Files files;
  files.put(u"/a.xml", "x");
  files.put(u"/texts/b.xml", "x");
  files.put(u"/texts/more/c.xml", "x");
  EXPECT_EQ(files.list(u"/texts", u".xml"), Names{u"b.xml"});
  EXPECT_EQ(files.list(u"", u".xml"), Names{u"a.xml"});
}

TEST(FakeFiles, StandAPathThatIsAFolder) {
  Files files;
  files.put(u"/texts/", "x");
  EXPECT_TRUE(files.list(u"/texts", u"").empty());
}

TEST(FakeFiles, ReplaceAndRemove) {
  Files files;
  files.put(u"/a.xml", "old");
  files.put(u"/a.xml", "new");
  EXPECT_EQ(files.read(u"/a.xml"), "new");
  files.remove(u"/a.xml");
  EXPECT_EQ(files.read(u"/a.xml"), std::nullopt);
}

TEST(FakeFiles, HideFromListingsAlone) {
  Files files;
  files.put(u"/a.xml", "x");
  files.hide(u"/a.xml");
  EXPECT_TRUE(files.list(u"/", u".xml").empty());
  EXPECT_EQ(files.read(u"/a.xml"), "x");
}

TEST(FakeFiles, FailToReadAsTold) {
  Files files;
  files.put(u"/a.xml", "x");
  files.failRead(u"/a.xml");
  EXPECT_EQ(files.list(u"/", u".xml"), Names{u"a.xml"});
  EXPECT_EQ(files.read(u"/a.xml"), std::nullopt);
  EXPECT_FALSE(files.opens(u"/a.xml"));
}

TEST(FakeFiles, FailToListAsTold) {
  Files files;
  files.put(u"/a.xml", "x");
  files.failList();
  EXPECT_TRUE(files.list(u"/", u".xml").empty());
  EXPECT_EQ(files.read(u"/a.xml"), "x");
}

}  // namespace
}  // namespace tessaly::platform::fake
