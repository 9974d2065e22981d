#pragma once

#include <QString>

/// Texts for places where Qt takes some texts for more than they are; here they are shown as they stand.
namespace tessaly::qt {

/// For a tool tip, where what looks like markup is markup.
QString toolTipOf(const QString& text);

/// For a window's title, where "[*]" is the mark of a document that has changed.
QString titleOf(const QString& text);

}  // namespace tessaly::qt
