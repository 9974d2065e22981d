#pragma once

#include <functional>
#include <string>

#include "bench/SettingsPlaces.h"

/// Writes that are on disk when they return. What a disk takes for one comes and goes within a second by more
/// than what there is to measure, so all contestants take turns, in an order that changes each time.
namespace tessaly::bench {

struct DurableWriter {
  std::function<void(Long value)> write;
  std::function<Long()> read;
};

using OpenDurableWriter = std::function<DurableWriter(const Store& store)>;

/// Lets a contestant take part where the store has the size.
void addDurableWriter(const std::string& name, const Store& store, const OpenDurableWriter& open);

}  // namespace tessaly::bench
