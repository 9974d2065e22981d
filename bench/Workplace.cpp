#include "bench/Workplace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iostream>

#include "tessaly/base/Text.h"
#include "tessaly/localisation/CResources.h"

namespace tessaly::bench {
namespace {

[[noreturn]] void fail(const std::string& what) {
  std::cerr << "localisation-bench: " << what << '\n';
  std::exit(1);
}

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tessaly-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) fail("no temporary folder");
    path_ = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

std::vector<String> readFrenchTexts() {
  CResources resources;
  resources.applicationGUID(kShowcase);
  resources.LoadXMLFile(languageFile("french.xml").u16string());
  std::vector<String> texts;
  texts.reserve(kStringCount);
  for (Long n = 0; n < kStringCount; ++n) texts.push_back(resources.res(n));
  if (texts.front() != u"&Annuler") fail("french.xml could not be read");
  return texts;
}

}  // namespace

std::filesystem::path languageFile(std::string_view name) {
  return std::filesystem::path(TESSALY_LANGUAGES) / name;
}

const std::vector<String>& frenchTexts() {
  static const std::vector<String> texts = readFrenchTexts();
  return texts;
}

const std::vector<String>& englishTexts() {
  static const std::vector<String> texts(showcaseStrings.begin(), showcaseStrings.end());
  return texts;
}

std::vector<std::string> inUtf8(const std::vector<String>& texts) {
  std::vector<std::string> result;
  result.reserve(texts.size());
  for (const String& text : texts) result.push_back(toUtf8(text));
  return result;
}

std::filesystem::path newFolder(std::string_view name) {
  static const TemporaryFolder folder;
  std::filesystem::path path = folder.path() / name;
  std::filesystem::create_directories(path);
  return path;
}

void writeFile(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

void runTool(const std::string& command) {
  // NOLINTNEXTLINE(cert-env33-c, concurrency-mt-unsafe): the names in the command are this program's own.
  if (std::system(command.c_str()) != 0) fail("this failed: " + command);
}

std::string readFile(const std::filesystem::path& path) {
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  struct stat status {};
  if (file < 0 || fstat(file, &status) != 0) fail("can't read " + path.string());
  std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
  if (read(file, bytes.data(), bytes.size()) != status.st_size) fail("can't read " + path.string());
  close(file);
  return bytes;
}

}  // namespace tessaly::bench
