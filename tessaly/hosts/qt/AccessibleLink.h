#pragma once

namespace tessaly::qt {

class UrlLink;

/// Lets assistive technology know links: a link's role, its text as a name where the widget has none of its
/// own, its address as its value, and how to follow it. Once for all; it takes nothing until somebody asks.
void installAccessibleLink();

/// Tells those who listen that the text has changed.
void tellNameOfLink(UrlLink& link);

}  // namespace tessaly::qt
