#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tessaly/platform/keys/MemoryKeys.h"
#include "tests/support/TemporaryFolder.h"

namespace tessaly::tests {

/// The tool over keys in memory, which stay from one run to the next.
class Tool {
 public:
  /// Runs the tool; gives its exit code.
  int run(const std::vector<std::string>& words);

  /// Runs an import of a file of these bytes, with more words behind it.
  int import(std::string_view bytes, const std::vector<std::string>& more = {});

  /// A key and all below it as a .reg file in UTF-8.
  std::string exported(const std::string& key);

  /// What the last run wrote.
  std::string out;
  std::string errors;

  /// The answer to questions; nothing where nobody is there. The last question asked.
  std::optional<bool> answer;
  std::string question;

  /// How often stores were opened.
  int openings = 0;

  const std::shared_ptr<platform::MemoryKeys> machine = std::make_shared<platform::MemoryKeys>();
  const std::shared_ptr<platform::MemoryKeys> user = std::make_shared<platform::MemoryKeys>();

  /// What the tool works on, unless a test puts another store in its place.
  std::shared_ptr<platform::KeyStore> machineInForce = machine;
  std::shared_ptr<platform::KeyStore> userInForce = user;

  /// The files that messages name.
  std::filesystem::path machineFile = "/machine.hive";
  std::filesystem::path userFile = "/user.hive";
  const TemporaryFolder folder;
};

/// The text of a .reg file in UTF-8 with this content.
std::string regFile(std::string_view content);

}  // namespace tessaly::tests
