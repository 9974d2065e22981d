#pragma once

#include <string_view>

#include "tessaly/base/Types.h"

namespace tessaly::qt {

/// What a caller or a link names: an archive, and a page in it as a reference that `readings` reads; empty
/// where none is named.
struct HelpAddress {
  String file;
  String page;

  bool operator==(const HelpAddress&) const = default;
};

/// The parts of "file::/page#anchor" and of "file>window". The file may have a scheme of archives before it,
/// such as "ms-its:", which goes. Any text is an address.
HelpAddress helpAddress(std::u16string_view text);

/// Whether the text of a link leads into an archive that it names.
bool namesArchive(std::u16string_view text);

}  // namespace tessaly::qt
