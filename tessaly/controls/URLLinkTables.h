#pragma once

#include "tessaly/controls/PropertyTable.h"

namespace tessaly {

/// What `URLLink` is to its bag, to designers and to scripts. The number of `text` is the one by which all
/// controls are asked for their text.
inline constexpr std::array<PropertyRow, 4> kURLLinkProperties{{
    {u"text", 0, 1, -517, ValueType::Text, u"Text", u"Gleamline Home Page", u"Text displayed in control",
     u"Text"},
    {u"URL", 2, 3, 2, ValueType::Text, u"URL", u"https://www.gleamline.example/",
     u"URL loaded when mouse is clicked over text. May also be a data file that has an extension registered "
     u"by an "
     u"application on your system.",
     u"Behavior"},
    {u"ShowToolTip", 4, 5, 3, ValueType::TruthValue, u"ShowToolTip", false,
     u"Determines if the URL is displayed in a tooltip when the mouse is parked over the text", u"Behavior"},
    {u"alignment", 7, 6, 4, ValueType::Integer32, u"Alignment", Long{1}, u"", u""},
}};

/// The size, in twips, that a designer gives a control for which none is drawn.
inline constexpr Long kURLLinkWidth = 1920;
inline constexpr Long kURLLinkHeight = 1095;

inline constexpr std::array<EventArgument, 2> kGoToURLArguments{{
    {u"URL", ValueType::Text},
    {u"Cancel", ValueType::TruthValue},
}};

inline constexpr std::array<EventRow, 1> kURLLinkEvents{{
    {1, u"GoToURL", kGoToURLArguments},
}};

}  // namespace tessaly
