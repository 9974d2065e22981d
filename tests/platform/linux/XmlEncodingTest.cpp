#include "tessaly/platform/linux/XmlEncoding.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tessaly::platform {
namespace {

TEST(XmlEncodings, PassUtf8ThroughAsItIs) {
  const std::string bytes = "<?xml version=\"1.0\" encoding=\"utf-8\"?><r>\xFF</r>";
  EXPECT_EQ(xmlInUtf8(bytes), bytes);
}

TEST(XmlEncodings, FindADeclarationOnlyWhereItBelongs) {
  for (const std::string_view text :
       {"<r encoding=\"windows-1252\">\xE9</r>", "<?xml version=\"1.0\"?><r>encoding=\"koi8-r\"</r>",
        " <?xml version=\"1.0\" encoding=\"windows-1252\"?><r/>", "<?xml encoding",
        "<?xml encoding=", "<?xml encoding=\"", "<?xml encoding=\"koi8-r", "<?xml encoding=\"koi8-r'?>",
        "<?xml-stylesheet encoding=\"koi8-r\"?><r/>"}) {
    EXPECT_EQ(xmlInUtf8(std::string(text)), text);
  }
}

TEST(XmlEncodings, RefuseNamesThatAreNone) {
  for (const char* name :
       {"x", "../windows-1252", "windows-1252,swaplfnl", "UTF-32", "UTF-7", "SCSU", "BOCU-1", "ISO-2022-JP",
        "HZ-GB-2312", "IMAP-mailbox-name", "LMBCS-1", "CESU-8", "UTF-16", "utf-16le"}) {
    const std::string bytes = std::string("<?xml version=\"1.0\" encoding=\"") + name + "\"?><r/>";
    EXPECT_EQ(xmlInUtf8(bytes), std::nullopt) << name;
  }
}

TEST(XmlEncodings, ConvertAsFarAsTheLastByte) {
  const std::string head = "<?xml version=\"1.0\" encoding=\"windows-1252\"?><r>";
  EXPECT_EQ(
      xmlInUtf8(head + std::string(1000, '\x80')), head + [] {
        std::string euros;
        for (int i = 0; i < 1000; ++i) euros += "€";
        return euros;
      }());
}

TEST(XmlEncodings, TakeNothingForNothing) { EXPECT_EQ(xmlInUtf8(""), ""); }

}  // namespace
}  // namespace tessaly::platform
