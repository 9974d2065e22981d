#include "tessaly/platform/Shell.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "tessaly/controls/URLLink.h"
#include "tessaly/forms/headless/Form.h"
#include "tessaly/platform/Ansi.h"
#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/MessageBoxes.h"
#include "tessaly/platform/linux/Opener.h"
#include "tessaly/platform/linux/ShellBody.h"
#include "tests/contract/linux/OpenerOfTests.h"
#include "tests/support/Errors.h"

namespace tessaly::platform {
namespace {

using namespace shell_result;
using tests::errorOf;
using tests::OpenerOfTests;
using tests::SearchPath;

std::intptr_t openIn(const char* directory, const std::string& file) {
  return desktop().shell->ShellExecuteA(0, "open", file.c_str(), nullptr, directory, kShowNormal);
}

std::intptr_t openFile(const std::string& file) { return openIn(nullptr, file); }

/// A shell that waits for the opener however long it takes, in force as long as this lives.
struct PatientShell {
  LinuxShell shell{std::chrono::minutes(1)};
  Override inForce{shell};
};

/// By a shell that does not wait.
std::intptr_t openAtOnce(const std::string& file) {
  LinuxShell shell(std::chrono::nanoseconds(0));
  const Override inForce(shell);
  return openFile(file);
}

TEST(LinuxShell, RaisesError453WhereNothingOpens) {
  const tests::TemporaryFolder empty;
  const SearchPath path(empty.path().c_str());
  EXPECT_EQ(errorOf([] { openFile("x"); }), 453);
}

TEST(LinuxShell, RaisesError453WhereTheOpenerIsNoProgram) {
  const PatientShell shell;
  const tests::TemporaryFolder folder;
  const SearchPath path(folder.path().c_str());
  const std::filesystem::path opener = folder.path() / "xdg-open";
  std::ofstream(opener) << "#!/no/such/program\n";
  EXPECT_EQ(errorOf([] { openFile("x"); }), 453);
  std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
  EXPECT_EQ(errorOf([] { openFile("x"); }), 453);
  std::filesystem::remove(opener);
  std::filesystem::create_directory(opener);
  EXPECT_EQ(errorOf([] { openFile("x"); }), 453);
}

TEST(LinuxShell, LooksForTheOpenerInWholePathsAlone) {
  OpenerOfTests opener;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(opener.folder());
  for (const char* const folders : {"", ":", "::", ".", "..", "/no/such/folder:.::"}) {
    const SearchPath path(folders);
    EXPECT_EQ(errorOf([] { openFile("x"); }), 453) << folders;
  }
  std::filesystem::current_path(before);
  const std::string late = ":/no/such/folder::" + opener.folder().string() + ":";
  const SearchPath path(late.c_str());
  EXPECT_EQ(openFile("x"), kSuccess);
  EXPECT_EQ(opener.next(), "x");
}

TEST(LinuxShell, LooksInTheUsualFoldersWhereThereIsNoSearchPath) {
  std::optional<std::string> usual;
  {
    const SearchPath path("/usr/local/bin:/usr/bin:/bin");
    usual = openerPath();
  }
  const SearchPath none(nullptr);
  EXPECT_EQ(openerPath(), usual);
}

TEST(LinuxShell, OpensAsHostsHaveIt) {
  OpenerOfTests opener;
  EXPECT_EQ(ownShell().ShellExecuteA(0, "open", "x", nullptr, nullptr, kShowNormal), kSuccess);
  EXPECT_EQ(opener.next(), "x");
}

TEST(LinuxShell, TellsHowTheOpenerEnded) {
  OpenerOfTests opener;
  EXPECT_EQ(openFile("tessaly-code:0"), kSuccess);
  EXPECT_EQ(openFile("tessaly-code:1"), kFileNotFound);
  EXPECT_EQ(openFile("tessaly-code:2"), kFileNotFound);
  EXPECT_EQ(openFile("tessaly-code:3"), kNoAssociation);
  EXPECT_EQ(openFile("tessaly-code:4"), kNoAssociation);
  EXPECT_EQ(openFile("tessaly-code:127"), kNoAssociation);
  EXPECT_EQ(openFile("tessaly-killed:"), kNoAssociation);
}

TEST(LinuxShell, DoesNotWaitForAnOpenerThatStays) {
  OpenerOfTests opener;
  EXPECT_EQ(openAtOnce("tessaly-held:"), kSuccess);
  EXPECT_EQ(opener.next(), "tessaly-held:");
  opener.release();
}

TEST(LinuxShell, OpensNothingForAnotherOperationOrNoFile) {
  const tests::TemporaryFolder empty;
  const SearchPath path(empty.path().c_str());
  EXPECT_EQ(desktop().shell->ShellExecuteA(0, "print", "x", nullptr, nullptr, 1), kNoAssociation);
  EXPECT_EQ(desktop().shell->ShellExecuteA(0, "open", nullptr, nullptr, nullptr, 1), kFileNotFound);
}

TEST(LinuxShell, GivesTheOpenerOneWordThatIsNoOption) {
  OpenerOfTests opener;
  using Words = std::vector<std::string>;
  for (const char* const text :
       {"", "a b", "a\"b'c", "%", "#", "..", "a\\b", "a\nb", "./x", "+x", "$(x)`y`"}) {
    openFile(text);
    EXPECT_EQ(opener.nextStart().words, (Words{"xdg-open", text}));
  }
  openFile("--help");
  EXPECT_EQ(opener.nextStart().words, (Words{"xdg-open", "./--help"}));
  openFile("-");
  EXPECT_EQ(opener.nextStart().words, (Words{"xdg-open", "./-"}));
}

TEST(LinuxShell, TakesALongTextAndFailsForOneThatIsTooLong) {
  OpenerOfTests opener;
  const std::string text = "http://host.example/" + std::string(30000, 'x');
  EXPECT_EQ(openFile(text), kSuccess);
  EXPECT_EQ(opener.next(), text);
  EXPECT_EQ(openFile(std::string(200000, 'x')), kOutOfMemory);
}

TEST(LinuxShell, ReadsTheTextInTheSystemsCodePage) {
  fake::Locale locale(1049, u",", 1251);
  const Override inForce(locale);
  OpenerOfTests opener;
  const String text = u"http://host.example/\u0416\u0443\u043A";
  openFile(toAnsi(text));
  EXPECT_EQ(opener.next(), "http://host.example/\u0416\u0443\u043A");
}

TEST(LinuxShell, OpensInTheFolderThatIsTold) {
  OpenerOfTests opener;
  openFile("x");
  EXPECT_EQ(opener.nextStart().folder, std::filesystem::current_path());
  EXPECT_EQ(openIn("/usr", "x"), kSuccess);
  EXPECT_EQ(opener.nextStart().folder, "/usr");
  EXPECT_EQ(openIn("", "x"), kSuccess);
  EXPECT_EQ(opener.nextStart().folder, std::filesystem::current_path());
}

// It was error 453, as if there were no opener.
TEST(LinuxShell, FailsForAFolderThatIsNone) {
  OpenerOfTests opener;
  for (const char* const folder : {"/no/such/folder", "/proc/version", "no such folder"})
    EXPECT_EQ(openIn(folder, "x"), kPathNotFound) << folder;
}

TEST(LinuxShell, HasALinkSayThatItCannotBeLoadedWhereNothingOpens) {
  const tests::TemporaryFolder empty;
  const SearchPath path(empty.path().c_str());
  fake::MessageBoxes boxes;
  const Override inForce(boxes);
  headless::Form form;
  form.add<URLLink>({0, 0, 60, 20}).URL(u"x");
  form.movePointer({10, 10});
  form.press();
  ASSERT_EQ(boxes.boxes().size(), 1U);
  EXPECT_EQ(boxes.boxes()[0].text, u"Unable to load 'x' : Entry point not found (Error 453)");
}

}  // namespace
}  // namespace tessaly::platform
