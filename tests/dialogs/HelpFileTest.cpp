// Where the help file is looked for.

#include <gtest/gtest.h>

#include "tests/dialogs/HelpFixture.h"

namespace tessaly::tests {
namespace {

using platform::fake::HtmlHelp;

/// The file of an object that is made now.
std::string helpFile() {
  HtmlHelp viewer;
  const platform::Override inForce(viewer);
  CHelp().DisplayIndex(0);
  return viewer.shown().at(0).file;
}

TEST(HelpFile, LiesInTheLibrarysFolder) {
  LibraryFolder folder;
  folder.tell(u"C:\\P");
  EXPECT_EQ(helpFile(), "C:\\P\\Tessaly.chm");
}

TEST(HelpFile, GetsNoSecondSeparatorBehindTheFolder) {
  LibraryFolder folder;
  folder.tell(u"C:\\P\\");
  EXPECT_EQ(helpFile(), "C:\\P\\Tessaly.chm");
  folder.tell(u"C:\\P\\\\");
  EXPECT_EQ(helpFile(), "C:\\P\\\\Tessaly.chm");
}

TEST(HelpFile, LiesAtTheRootWhereNoFolderIsTold) {
  LibraryFolder folder;
  EXPECT_EQ(helpFile(), "\\Tessaly.chm");
  folder.tell(u"");
  EXPECT_EQ(helpFile(), "\\Tessaly.chm");
}

TEST(HelpFile, LiesAtTheRootWhereTheSettingsFail) {
  LibraryFolder folder;
  folder.tell(u"C:\\P");
  folder.registry().fail("RegQueryValueExA", 5);
  EXPECT_EQ(helpFile(), "\\Tessaly.chm");
  folder.registry().fail("RegOpenKeyExA", 5);
  EXPECT_EQ(helpFile(), "\\Tessaly.chm");
  EXPECT_EQ(folder.registry().openKeys(), 0);
}

TEST(HelpFile, HasThePlatformsOwnSeparator) {
  LibraryFolder folder(u'/');
  EXPECT_EQ(helpFile(), "/Tessaly.chm");
  folder.tell(u"/usr/share/tessaly");
  EXPECT_EQ(helpFile(), "/usr/share/tessaly/Tessaly.chm");
  folder.tell(u"/usr/share/tessaly/");
  EXPECT_EQ(helpFile(), "/usr/share/tessaly/Tessaly.chm");
}

TEST(HelpFile, IsAskedForWhenTheObjectIsMadeAndNotAgain) {
  LibraryFolder folder;
  folder.tell(u"C:\\P");
  HtmlHelp viewer;
  const platform::Override inForce(viewer);
  CHelp help;
  folder.tell(u"C:\\Q");
  const CHelp copy = help;
  const std::size_t calls = folder.registry().calls().size();
  help.DisplayIndex(0);
  CHelp(copy).DisplayIndex(0);
  EXPECT_EQ(viewer.shown().at(0).file, "C:\\P\\Tessaly.chm");
  EXPECT_EQ(viewer.shown().at(1).file, "C:\\P\\Tessaly.chm");
  EXPECT_EQ(folder.registry().calls().size(), calls);
  EXPECT_EQ(helpFile(), "C:\\Q\\Tessaly.chm");
}

}  // namespace
}  // namespace tessaly::tests
