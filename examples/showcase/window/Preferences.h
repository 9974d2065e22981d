#pragma once

#include "tessaly/localisation/CResources.h"

namespace showcase {

/// What the user has chosen, kept in his settings from one start to the next.
struct Preferences {
  /// 0 is the language of the system.
  tessaly::Long language = 0;
  bool showsStringNumbers = false;

  /// Empty and 0 are the language's own font and size, in points.
  tessaly::String gridFont;
  tessaly::Long gridFontSize = 0;

  /// The report that was open last.
  tessaly::String report;

  bool operator==(const Preferences&) const = default;
};

/// The user's settings, with defaults for what is not there.
Preferences loadPreferences();

/// What can't be written is dropped.
void storePreferences(const Preferences& preferences, tessaly::CResources& resources);

/// Chooses the language, and whether its texts tell their numbers.
void speakAs(tessaly::CResources& resources, tessaly::Long language, bool showsStringNumbers);

/// Whether the machine's settings switch the trace on; and switches it, false where they are not the user's
/// to change.
bool writesTrace();
bool setWritesTrace(bool isOn);

}  // namespace showcase
