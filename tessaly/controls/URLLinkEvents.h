#pragma once

#include <functional>

#include "tessaly/base/Types.h"

namespace tessaly {

/// What a host hears of a `URLLink`: it sets the field where it wants to be called. The call comes on the
/// form's thread, and the link goes on when it has returned. The host may change properties and this field in
/// it, and let go of the link, which still ends what it is at. What the host raises goes on to whoever has
/// brought the click, and nothing is opened.
struct URLLinkEvents {
  /// The user has clicked. A host that changes `URL` has that opened, for this one click; one that sets
  /// `Cancel` to True has nothing opened.
  std::function<void(String& URL, Boolean& Cancel)> GoToURL;
};

}  // namespace tessaly
