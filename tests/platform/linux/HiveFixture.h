#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "tests/platform/linux/HiveSupport.h"
#include "tests/support/TemporaryFolder.h"

namespace tessaly::tests {

/// A hive in a folder of the test's own, which is not there at first.
class HiveTest : public testing::Test {
 protected:
  std::filesystem::path folder() const { return temporary_.path() / "config" / "tessaly"; }
  std::filesystem::path file() const { return folder() / "user.hive"; }
  std::unique_ptr<platform::KeyStore> open(
      platform::HiveReaders readers = platform::HiveReaders::Owner) const {
    return platform::hiveAt(file(), readers);
  }

  TemporaryFolder temporary_;
  std::unique_ptr<platform::KeyStore> hive_ = open();
};

}  // namespace tessaly::tests
