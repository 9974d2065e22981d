#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <string_view>

#include "bench/SettingsPlaces.h"

namespace tessaly::bench {

/// Writes again and again until the function gives false; the function waits for the next time.
using Writer = std::function<void(const Store& store, const std::function<bool()>& goesOn)>;

/// Makes a writer known under the name of its kind of store.
void addWriter(std::string_view kind, Writer writer);

/// This program once more, writing to a store ten times a second from before the constructor returns until
/// the destructor runs.
class OtherProcess {
 public:
  OtherProcess(std::string_view kind, const Store& store);

 private:
  struct Close {
    void operator()(FILE* output) const { pclose(output); }
  };
  std::unique_ptr<FILE, Close> output_;
};

/// What the other process does with its arguments; false where they are not those of one.
bool runAsWriter(int argc, char** argv);

}  // namespace tessaly::bench
