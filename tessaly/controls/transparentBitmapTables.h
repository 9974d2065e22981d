#pragma once

#include "tessaly/controls/PropertyTable.h"

namespace tessaly {

/// What `transparentBitmap` is to its bag, to designers and to scripts.
inline constexpr std::array<PropertyRow, 12> kTransparentBitmapProperties{{
    {u"automaticClick", 0, 1, 1, ValueType::TruthValue, u"automaticClick", false, u"", u""},
    {u"Picture", 2, 3, 2, ValueType::PictureObject, u"Picture", {}, u"", u""},
    {u"disabledPicture", 4, 5, 3, ValueType::PictureObject, u"disabledPicture", {}, u"", u""},
    {u"maskColor", 6, 7, 4, ValueType::Colour, u"maskColor", Long{0xFF00FF}, u"", u""},
    {u"automaticClickTiming", 8, 9, 5, ValueType::Integer32, u"automaticClickTiming", Long{500}, u"", u""},
    {u"backcolor", 10, 11, 6, ValueType::Colour, u"BackColor", Long{0},
     u"Returns/sets the background color used to display text and graphics in an object.", u""},
    {u"withBorder", 14, 15, 9, ValueType::Integer32, u"WithBorder", Long{0}, u"", u""},
    {u"AutoResize", 16, 17, 10, ValueType::TruthValue, u"AutoResize", false, u"", u""},
    {u"enabled", 18, 19, 11, ValueType::TruthValue, u"enabled", true, u"", u""},
    {u"automaticClickFirstTiming", 20, 21, 12, ValueType::Integer32, u"automaticClickFirstTiming", Long{500},
     u"", u""},
    {u"stretch", 22, 23, 13, ValueType::TruthValue, u"stretch", false, u"", u""},
    {u"resultPicture", 24, 25, 14, ValueType::PictureObject, u"", {}, u"", u""},
}};

/// The size, in twips, that a designer gives a control for which none is drawn.
inline constexpr Long kTransparentBitmapWidth = 3540;
inline constexpr Long kTransparentBitmapHeight = 2805;

inline constexpr std::array<EventArgument, 4> kMouseArguments{{
    {u"Button", ValueType::Integer16},
    {u"Shift", ValueType::Integer16},
    {u"x", ValueType::Float32},
    {u"y", ValueType::Float32},
}};

inline constexpr std::array<EventRow, 6> kTransparentBitmapEvents{{
    {1, u"OnButtonClick", {}},
    {2, u"OnButtonSelected", {}},
    {3, u"OnButtonSelectedTiming", {}},
    {4, u"MouseMove", kMouseArguments},
    {5, u"MouseDown", kMouseArguments},
    {6, u"MouseUp", kMouseArguments},
}};

}  // namespace tessaly
