#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tessaly/hosts/qt/help/HelpFiles.h"
#include "tests/support/pictures/Bytes.h"

namespace tessaly::tests {

/// The bytes of a file in the folder of these tests.
std::string helpFileBytes(const std::string& name);

/// The files of an archive that a test puts together, found by their exact names.
struct SomeHelpFiles final : qt::HelpFiles {
  explicit SomeHelpFiles(std::map<String, std::string> content) : files(std::move(content)) {}

  bool has(std::u16string_view name) const override { return files.contains(String(name)); }
  std::optional<std::string> read(std::u16string_view name) const override;
  std::vector<String> names() const override;

  std::map<String, std::string> files;
};

std::shared_ptr<SomeHelpFiles> helpFiles(std::map<String, std::string> content);

/// Parts of the tables of an archive.
std::string systemEntry(std::uint32_t code, const std::string& content);
std::string systemTable(const std::vector<std::string>& entries);
std::string aliasTable(const std::vector<std::pair<Long, std::uint32_t>>& rows);
std::string windowTable(std::uint32_t size, const std::map<std::size_t, std::uint32_t>& fields);

}  // namespace tessaly::tests
