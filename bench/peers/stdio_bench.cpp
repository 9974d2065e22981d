// A line into a file by the C library, with a flush: when the call returns, the line is with the system.

#include <cstdio>
#include <memory>

#include "bench/Folder.h"
#include "bench/RoundTrips.h"

namespace tessaly::bench {
namespace {

struct Close {
  void operator()(FILE* file) const { std::fclose(file); }
};

LineSender open() {
  const std::string path = (newFolder("stdio") / "log").string();
  const std::shared_ptr<FILE> file(std::fopen(path.c_str(), "we"), Close());
  if (file == nullptr) fail("can't write to " + path);
  return {[file] {
            std::fprintf(file.get(), "%s\n", kLine);
            std::fflush(file.get());
          },
          {}};
}

const bool added = (addLineSender("fprintf and fflush to a file", &open), true);

}  // namespace
}  // namespace tessaly::bench
