#pragma once

#include <QString>
#include <QUrl>

#include "tessaly/hosts/qt/help/HelpShelf.h"

/// Pages that stand where there is none to show, and say what was looked for.
namespace tessaly::qt {

/// For an address of the shelf that has no page: the file is missing or can't be read, it has no such page or
/// map number, the page is damaged, or the address tells of a link that leads where the viewer does not go.
QString noticeFor(const HelpShelf& shelf, const QUrl& url);

/// For a page that could not be read for want of memory.
QString noticeOfFailure();

}  // namespace tessaly::qt
