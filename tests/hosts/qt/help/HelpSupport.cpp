#include "tests/hosts/qt/help/HelpSupport.h"

#include <fstream>
#include <iterator>

namespace tessaly::tests {

std::string helpFileBytes(const std::string& name) {
  std::ifstream file("tests/hosts/qt/help/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::optional<std::string> SomeHelpFiles::read(std::u16string_view name) const {
  const auto file = files.find(String(name));
  return file == files.end() ? std::nullopt : std::optional(file->second);
}

std::vector<String> SomeHelpFiles::names() const {
  std::vector<String> names;
  for (const auto& file : files) names.push_back(file.first);
  return names;
}

std::shared_ptr<SomeHelpFiles> helpFiles(std::map<String, std::string> content) {
  return std::make_shared<SomeHelpFiles>(std::move(content));
}

std::string systemEntry(std::uint32_t code, const std::string& content) {
  return Bytes().word(code).word(static_cast<std::uint32_t>(content.size())).get() + content;
}

std::string systemTable(const std::vector<std::string>& entries) {
  std::string table = Bytes().number(3).get();
  for (const std::string& entry : entries) table += entry;
  return table;
}

std::string aliasTable(const std::vector<std::pair<Long, std::uint32_t>>& rows) {
  Bytes table;
  table.number(static_cast<std::uint32_t>(rows.size() * 8));
  for (const auto& [number, place] : rows) table.number(static_cast<std::uint32_t>(number)).number(place);
  return table.get();
}

std::string windowTable(std::uint32_t size, const std::map<std::size_t, std::uint32_t>& fields) {
  std::string table = Bytes().number(1).number(size).get();
  for (std::size_t at = 0; at < size; at += 4) {
    const auto field = fields.find(at);
    table += Bytes().number(field == fields.end() ? 0 : field->second).get();
  }
  return table;
}

}  // namespace tessaly::tests
