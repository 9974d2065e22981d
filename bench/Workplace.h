#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "bench/Folder.h"
#include "tessaly/base/Types.h"

/// What all benchmarks of the area stand on: the same texts for everybody.
namespace tessaly::bench {

/// A language file of the showcase, such as "german.xml".
std::filesystem::path languageFile(std::string_view name);

/// The identity that the showcase's language files carry.
inline constexpr std::u16string_view kShowcase = u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3";

/// The French and the English texts, in slot order.
const std::vector<String>& frenchTexts();
const std::vector<String>& englishTexts();

/// The same in UTF-8, for peers that work in it.
std::vector<std::string> inUtf8(const std::vector<String>& texts);

}  // namespace tessaly::bench
