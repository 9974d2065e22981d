// What pictures that mean harm must not do to the process.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "tessaly/platform/Desktop.h"
#include "tests/contract/PicturesTable.h"
#include "tests/support/linux/Forked.h"

namespace tessaly::tests {
namespace {

void decode(const std::vector<PictureRow>& rows) {
  for (const PictureRow& row : rows) platform::desktop().pictures->decode(row.bytes);
}

/// The most memory that this process has had.
long mostKilobytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

TEST(PicturesOnLinux, TakeNoMemoryForWhatIsTooLarge) {
  // Far below what the smallest of them would take.
  constexpr long kMost = 32'768;
  EXPECT_EQ(inProcess([] {
              const std::vector<PictureRow> huge = hugePictures();
              for (const auto& sound : {pngPictures(), bmpPictures(), gifPictures(), jpegPictures()}) {
                decode(sound);
              }
              const long before = mostKilobytes();
              decode(huge);
              return mostKilobytes() - before < kMost ? 0 : 1;
            }),
            0);
}

TEST(PicturesOnLinux, SayNothingOnTheErrorStream) {
  EXPECT_EQ(inProcess([] {
              char name[] = "/tmp/tessaly-pictures-XXXXXX";
              const int file = mkstemp(name);
              unlink(name);
              dup2(file, STDERR_FILENO);
              for (const auto& rows : {malformedPictures(), hugePictures(), iconPictures()}) decode(rows);
              struct stat written {};
              fstat(file, &written);
              return written.st_size == 0 ? 0 : 1;
            }),
            0);
}

}  // namespace
}  // namespace tessaly::tests
