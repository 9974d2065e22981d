#pragma once

#include <QImage>
#include <QPixmap>

#include "tessaly/forms/Picture.h"
#include "tessaly/hosts/qt/Export.h"

namespace tessaly::qt {

/// An image as a picture, an empty one for a null image. A pixel that covers less than half covers nothing,
/// as where a file is loaded. An image for dense screens comes in logical pixels, each the nearest of its
/// own. Error 7 where there is no memory for it.
TESSALY_QT_API PictureReference toPicture(const QImage& image);
TESSALY_QT_API PictureReference toPicture(const QPixmap& pixmap);

/// A picture as an image of its own; a null one for none, and for an empty picture. A pixmap needs a
/// QGuiApplication.
TESSALY_QT_API QImage toImage(const PictureReference& picture);
TESSALY_QT_API QPixmap toPixmap(const PictureReference& picture);

}  // namespace tessaly::qt
