#include "tests/support/TemporaryFolder.h"

#include <fstream>
#include <random>
#include <stdexcept>

namespace tessaly::tests {

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  do {
    path_ = std::filesystem::temp_directory_path() / ("tessaly-test-" + std::to_string(random()));
  } while (!std::filesystem::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

String TemporaryFolder::write(std::u16string_view name, std::string_view bytes) const {
  const std::filesystem::path file = path_ / name;
  std::ofstream out(file, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (!out) throw std::runtime_error("can't write " + file.string());
  return file.u16string();
}

}  // namespace tessaly::tests
