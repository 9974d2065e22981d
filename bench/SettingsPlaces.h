#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

/// The settings that every contestant holds: keys of 20 values, ten numbers and ten texts of 40 characters.
namespace tessaly::bench {

inline constexpr std::size_t kNumbersOfKey = 10;
inline constexpr std::size_t kTextsOfKey = 10;

/// A store of a size. The library's is the user's or the machine's hive, so that one process has both.
struct Store {
  std::string_view name;
  std::string_view values;
  std::size_t keys;
  Long root;
};
inline constexpr Store kFew{"few", "200 values", 10, 2};
inline constexpr Store kMany{"many", "200,000 values", 10'000, 0};

/// A number and a text have the same name but for the word before it. The index behind the last names a value
/// that is not there.
struct Place {
  std::size_t key = 0;
  std::size_t value = 0;
};
inline constexpr std::size_t kMissing = kNumbersOfKey;

/// The default of every read.
inline constexpr Long kDefault = -1;

/// "Software\Vendor\Tool7", with the divider of the contestant.
std::string keyName(std::size_t key, std::string_view divider);

/// "Number3" and "Text3".
std::string numberName(std::size_t value);
std::string textName(std::size_t value);

/// What the value holds, or the default.
Long numberAt(const Place& place);
std::string textAt(const Place& place);

/// One place in the middle of a store, one without a value, and one that another process writes.
std::vector<Place> onePlace(const Store& store);
std::vector<Place> missingPlace(const Store& store);
std::vector<Place> writtenPlace(const Store& store);

/// Places in mixed order, the same for everybody: some of them, and all.
inline constexpr std::size_t kSomePlaces = 4096;
std::vector<Place> somePlaces(const Store& store);
std::vector<Place> allPlaces(const Store& store);

}  // namespace tessaly::bench
