#pragma once

#include <unistd.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

/// What a program is started with, in the form that the system takes.
namespace tessaly::tests {

/// For as long as the texts stay, with a null pointer at the end.
inline std::vector<char*> pointersTo(std::vector<std::string>& texts) {
  std::vector<char*> result;
  result.reserve(texts.size() + 1);
  for (std::string& text : texts) result.push_back(text.data());
  result.push_back(nullptr);
  return result;
}

/// The test's own environment, with variables beside its own or in their place.
inline std::vector<std::string> environmentWith(
    const std::vector<std::pair<std::string, std::string>>& variables) {
  std::vector<std::string> result;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    const std::string text = *variable;
    const bool replaced = std::any_of(variables.begin(), variables.end(),
                                      [&](const auto& entry) { return text.starts_with(entry.first + "="); });
    if (!replaced) result.push_back(text);
  }
  for (const auto& [name, value] : variables) result.push_back(std::string(name).append("=").append(value));
  return result;
}

}  // namespace tessaly::tests
