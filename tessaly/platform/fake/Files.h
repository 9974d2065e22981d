#pragma once

#include <map>
#include <set>

#include "tessaly/base/Export.h"
#include "tessaly/platform/Files.h"

namespace tessaly::platform::fake {

/// Files in memory, for tests. Folders are what stands before a name; either separator divides. Not for
/// several threads at once.
class TESSALY_API Files final : public platform::Files {
 public:
  /// A folder and its name are joined by this; the platform's own by default.
  explicit Files(char16_t separator);
  Files();

  /// Puts a file in place, or another content into it.
  void put(std::u16string_view path, std::string bytes);

  /// A file that the listings leave out, as they do hidden ones, but that can be read.
  void hide(std::u16string_view path);

  void remove(std::u16string_view path);

  /// From now on the file stands in its listing but can't be read.
  void failRead(std::u16string_view path);

  /// From now on every listing is empty, as of a folder that can't be listed.
  void failList();

  char16_t separator() override { return separator_; }
  std::optional<std::string> read(std::u16string_view path) override;
  bool opens(std::u16string_view path) override;
  std::vector<String> list(std::u16string_view folder, std::u16string_view ending) override;

 private:
  char16_t separator_;
  std::map<String, std::string> files_;
  std::set<String> hidden_;
  std::set<String> unreadable_;
  bool listFails_ = false;
};

}  // namespace tessaly::platform::fake
