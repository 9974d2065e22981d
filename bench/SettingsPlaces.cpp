#include "bench/SettingsPlaces.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <random>

namespace tessaly::bench {

std::string keyName(std::size_t key, std::string_view divider) {
  const std::string between(divider);
  return "Software" + between + "Vendor" + between + "Tool" + std::to_string(key);
}

std::string numberName(std::size_t value) { return "Number" + std::to_string(value); }
std::string textName(std::size_t value) { return "Text" + std::to_string(value); }

Long numberAt(const Place& place) {
  return place.value < kNumbersOfKey ? static_cast<Long>(place.key * 100 + place.value) : kDefault;
}

std::string textAt(const Place& place) {
  std::array<char, 41> text{};
  std::snprintf(text.data(), text.size(), "A text of forty characters, number %05zu",
                place.key * kTextsOfKey % 100'000 + place.value);
  return text.data();
}

std::vector<Place> onePlace(const Store& store) { return {{store.keys / 2, 3}}; }
std::vector<Place> missingPlace(const Store& store) { return {{store.keys / 2, kMissing}}; }
std::vector<Place> writtenPlace(const Store& store) { return {{store.keys - 1, 1}}; }

std::vector<Place> allPlaces(const Store& store) {
  std::vector<Place> places;
  for (std::size_t n = 0; n < store.keys * kNumbersOfKey; ++n)
    places.push_back({n / kNumbersOfKey, n % kNumbersOfKey});
  std::shuffle(places.begin(), places.end(), std::mt19937(1));
  return places;
}

std::vector<Place> somePlaces(const Store& store) {
  std::vector<Place> places = allPlaces(store);
  places.resize(std::min(places.size(), kSomePlaces));
  return places;
}

}  // namespace tessaly::bench
