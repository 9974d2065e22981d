#include "tools/zplogger/LogPath.h"

#include <gtest/gtest.h>

#include "tests/support/Print.h"

namespace tessaly::zplogger {
namespace {

using tests::shown;

TEST(ZpLogPath, IsAbsoluteAndInItsPlainForm) {
  const std::pair<String, String> rows[] = {{u"/a", u"/a"},
                                            {u"/a/b.log", u"/a/b.log"},
                                            {u"//a///b.log", u"/a/b.log"},
                                            {u"/a/./b/../c.log", u"/a/c.log"},
                                            {u"/../../c.log", u"/c.log"},
                                            {u"/a\\b\n.log", u"/a\\b\n.log"},
                                            {u"/Ä/...", u"/Ä/..."}};
  for (const auto& [text, path] : rows) {
    const LogPath result = logPath(text);
    EXPECT_EQ(shown(result.path), shown(path));
    EXPECT_EQ(result.key, path);
    EXPECT_EQ(result.fault, "");
  }
}

TEST(ZpLogPath, IsRefusedWhereItIsNone) {
  const std::pair<String, std::string> rows[] = {{u"a.log", "it is no absolute path"},
                                                 {u"./a.log", "it is no absolute path"},
                                                 {u"C:\\L\\a.log", "it is no absolute path"},
                                                 {u"\\a.log", "it is no absolute path"},
                                                 {u" /a.log", "it is no absolute path"},
                                                 {u"/", "it is a folder"},
                                                 {u"/a/", "it is a folder"},
                                                 {u"/a/.", "it is a folder"},
                                                 {u"/a/..", "it is a folder"},
                                                 {String(u"/a\0b", 4), "its name has a NUL in it"}};
  for (const auto& [text, fault] : rows) {
    const LogPath result = logPath(text);
    EXPECT_EQ(result.fault, fault) << shown(text);
    EXPECT_EQ(result.path, u"");
  }
}

TEST(ZpLogPath, IsNoneWhereNoneIsNamed) {
  EXPECT_EQ(logPath(u"").path, u"");
  EXPECT_EQ(logPath(u"").fault, "");
}

}  // namespace
}  // namespace tessaly::zplogger
