#include "tools/zplogger/LogPath.h"

#include <gtest/gtest.h>

#include "tests/support/Print.h"

namespace tessaly::zplogger {
namespace {

using tests::shown;

TEST(ZpLogPath, IsAbsoluteAndInItsPlainForm) {
  const std::pair<String, String> rows[] = {
      {u"C:\\a.log", u"C:\\a.log"},
      {u"c:\\L\\\\a.log", u"c:\\L\\a.log"},
      {u"C:\\L\\.\\x\\..\\a.log", u"C:\\L\\a.log"},
      {u"C:\\L/a.log", u"C:\\L\\a.log"},
      {u"C:\\..\\a.log", u"C:\\a.log"},
      {u"\\\\server\\share\\L\\a.log", u"\\\\server\\share\\L\\a.log"},
      {u"\\\\server\\share\\..\\a.log", u"\\\\server\\share\\a.log"},
  };
  for (const auto& [text, path] : rows) {
    const LogPath result = logPath(text);
    EXPECT_EQ(result.fault, "") << shown(text);
    EXPECT_EQ(shown(result.path), shown(path));
  }
}

TEST(ZpLogPath, HasOneKeyInAnyCase) { EXPECT_EQ(logPath(u"c:\\L\\Ä.log").key, logPath(u"C:\\l\\ä.LOG").key); }

TEST(ZpLogPath, IsRefusedWhereItIsNone) {
  const std::pair<String, std::string> rows[] = {
      {u"a.log", "it is no absolute path"},
      {u"\\a.log", "it is no absolute path"},
      {u"C:a.log", "it is no absolute path"},
      {u"C:", "it is no absolute path"},
      {u"C:\\", "it is no absolute path"},
      {u"/tmp/a.log", "it is no absolute path"},
      {u"CON", "it is no absolute path"},
      {u"\\\\.\\C:\\a.log", "it is no absolute path"},
      {u"\\\\.\\PhysicalDrive0", "it is no absolute path"},
      {u"\\\\?\\C:\\a.log", "it is no absolute path"},
      {u"\\\\server", "it is no absolute path"},
      {u"\\\\server\\share", "it is no absolute path"},
      {u"\\\\server\\share\\", "it is no absolute path"},
      {u"\\\\\\a.log", "it is no absolute path"},
      {u"C:\\L\\", "it is a folder"},
      {u"C:\\L\\a.log:stream", "it is a stream within a file"},
      {u"C:\\L\\a.log::$DATA", "it is a stream within a file"},
      {u"C:\\L\\*.log", "its name is none that a file can have"},
      {u"C:\\L\\a?.log", "its name is none that a file can have"},
      {u"C:\\L\\a\n.log", "its name is none that a file can have"},
      {u"\\\\server\\pipe\\a", "it is a pipe"},
      {u"\\\\server\\PIPE\\x\\a", "it is a pipe"},
      {u"\\\\server\\mailslot\\a", "it is a pipe"},
  };
  for (const auto& [text, fault] : rows) {
    const LogPath result = logPath(text);
    EXPECT_EQ(result.fault, fault) << shown(text);
    EXPECT_EQ(result.path, u"");
  }
}

TEST(ZpLogPath, IsRefusedWhereItIsADevice) {
  for (const char16_t* text : {u"C:\\L\\COM1", u"C:\\COM1", u"C:\\L\\lpt1"}) {
    EXPECT_EQ(logPath(text).fault, "it is a device") << shown(text);
  }
}

TEST(ZpLogPath, IsNoneWhereNoneIsNamed) {
  EXPECT_EQ(logPath(u"").path, u"");
  EXPECT_EQ(logPath(u"").fault, "");
}

}  // namespace
}  // namespace tessaly::zplogger
