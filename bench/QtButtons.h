#pragma once

#include <string>

namespace tessaly::bench {

// What buttons in a window of Qt are measured at, and who takes part.
inline const std::string kMove = "a move of the mouse on a button in a window of Qt";
inline const std::string kClick = "a press and a release on it, painted";
inline const std::string kVisit = "a pointer that comes to it and goes, painted";
inline const std::string kCreation = "200 of them, from the first to all painted";
inline const std::string kPictureButton = "Tessaly";
inline const std::string kToolButton = "QToolButton";

}  // namespace tessaly::bench
