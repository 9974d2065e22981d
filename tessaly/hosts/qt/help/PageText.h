#pragma once

#include <QString>
#include <string>

#include "tessaly/base/Types.h"

namespace tessaly::qt {

/// A page's text in the encoding that it declares, or else in that of `helpText`.
QString pageText(const std::string& bytes, Long codePage);

/// Whether Qt lays the page out in some seconds: it is of no excessive length, and not nested without end.
bool isFitToShow(const QString& html);

/// The page with a type for each link to a style that has none, without which Qt does not follow it.
QString withTypedStyles(QString html);

/// Whether the page's root or body says that it reads from right to left.
bool readsFromTheRight(const QString& html);

}  // namespace tessaly::qt
