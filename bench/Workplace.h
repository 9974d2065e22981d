#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tessaly/base/Types.h"

/// What all benchmarks of the area stand on: the same texts for everybody, and a folder for what peers need.
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

/// A new folder within a temporary one that goes when the program ends.
std::filesystem::path newFolder(std::string_view name);

void writeFile(const std::filesystem::path& path, std::string_view bytes);

/// Runs a peer's own compiler; ends the program with a message where it fails.
void runTool(const std::string& command);

/// All bytes of a file by the shortest way there is.
std::string readFile(const std::filesystem::path& path);

}  // namespace tessaly::bench
