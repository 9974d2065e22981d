#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "tessaly/hosts/qt/help/ArchiveReader.h"
#include "tessaly/hosts/qt/help/HelpFiles.h"

namespace tessaly::qt {

/// The files of a .chm archive.
class HelpArchive final : public HelpFiles {
 public:
  /// None where the bytes are no archive that can be read.
  static std::shared_ptr<const HelpArchive> of(std::string bytes);

  bool has(std::u16string_view name) const override;
  std::optional<std::string> read(std::u16string_view name) const override;
  std::vector<String> names() const override { return names_; }

 private:
  HelpArchive(ArchiveReader reader, const std::vector<std::string>& names);

  ArchiveReader reader_;
  std::vector<String> names_;
  std::unordered_map<String, std::size_t> places_;
};

}  // namespace tessaly::qt
