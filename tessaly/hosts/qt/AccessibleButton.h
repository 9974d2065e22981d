#pragma once

namespace tessaly::qt {

class PictureButton;

/// Lets assistive technology know picture buttons: a button's role and state, the widget's accessible name,
/// and how to press it. Once for all; it takes nothing until somebody asks.
void installAccessibleButton();

/// Tells those who listen that `enabled` has changed.
void tellAccessibility(PictureButton& button);

}  // namespace tessaly::qt
