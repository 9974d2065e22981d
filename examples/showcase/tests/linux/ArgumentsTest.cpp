// A file is found by the name that the command line gives, whatever bytes it is made of.

#include <gtest/gtest.h>

#include <array>
#include <fstream>

#include "examples/support/Console.h"
#include "tessaly/platform/Core.h"
#include "tests/support/TemporaryFolder.h"

namespace showcase {
namespace {

tessaly::String argument(std::string word) {
  std::string program = "showcase";
  std::array<char*, 3> words = {program.data(), word.data(), nullptr};
  return examples::arguments(2, words.data()).at(0);
}

TEST(Arguments, BytesThatAreNoUtf8TravelAsLoneSurrogates) {
  EXPECT_EQ(argument("å😀.xml"), u"å😀.xml");
  EXPECT_EQ(argument("\x80\xE9\xFF.xml"), u"\xDC80\xDCE9\xDCFF.xml");
}

TEST(Arguments, LeadToTheFile) {
  const tessaly::tests::TemporaryFolder folder;
  const std::string path = folder.path() /
                           "fran\xE7"
                           "ais.xml";
  std::ofstream(path) << "content";
  EXPECT_EQ(tessaly::platform::core().files->read(argument(path)), "content");
}

}  // namespace
}  // namespace showcase
