#pragma once

#include <vector>

#include "tessaly/controls/URLLink.h"
#include "tests/support/Slots.h"

namespace tessaly {

/// Sees of a link what its host does not.
class URLLinkPeer {
 public:
  static std::vector<std::size_t> slots() {
    using tests::slotOf;
    using Text = std::u16string_view;
    return {slotOf<String (URLLink::*)() const>(&URLLink::text),
            slotOf<void (URLLink::*)(Text)>(&URLLink::text),
            slotOf<String (URLLink::*)() const>(&URLLink::URL),
            slotOf<void (URLLink::*)(Text)>(&URLLink::URL),
            slotOf<Boolean (URLLink::*)() const>(&URLLink::ShowToolTip),
            slotOf<void (URLLink::*)(Boolean)>(&URLLink::ShowToolTip),
            slotOf<void (URLLink::*)(Long)>(&URLLink::alignment),
            slotOf<Long (URLLink::*)() const>(&URLLink::alignment),
            slotOf(&URLLink::updateToolTip)};
  }

  static void InitProperties(URLLink& link) { link.InitProperties(); }
};

}  // namespace tessaly
