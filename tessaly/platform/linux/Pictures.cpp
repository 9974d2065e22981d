#include "tessaly/platform/Pictures.h"

#include <gdk-pixbuf/gdk-pixbuf.h>

#include <algorithm>
#include <memory>
#include <new>

#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/pictures/DecodedPicture.h"

namespace tessaly::platform {
namespace {

struct ReleaseObject {
  void operator()(gpointer object) const { g_object_unref(object); }
};
struct FreeMemory {
  void operator()(gpointer memory) const { g_free(memory); }
};
template <class Object>
using Owned = std::unique_ptr<Object, ReleaseObject>;

/// A loader of one name takes no other format.
const char* loaderName(PictureFormat format) {
  switch (format) {
    case PictureFormat::Bmp:
      return "bmp";
    case PictureFormat::Gif:
      return "gif";
    case PictureFormat::Jpeg:
      return "jpeg";
    case PictureFormat::Png:
      return "png";
  }
  return nullptr;
}

/// Should a loader see another size in the file than we do, it gets no memory for it.
void refuseLarge(GdkPixbufLoader* loader, gint width, gint height, gpointer /*data*/) {
  if (!isPictureSize(width, height)) gdk_pixbuf_loader_set_size(loader, 0, 0);
}

/// How far down the loader has come: it calls a picture of too few rows whole, and leaves the others grey.
void noteRows(GdkPixbufLoader* /*loader*/, gint /*x*/, gint y, gint /*width*/, gint height,
              gpointer lastRow) {
  auto& row = *static_cast<Long*>(lastRow);
  row = std::max<Long>(row, y + height);
}

std::uint32_t pixelOf(const guint8* bytes, bool hasAlpha) {
  const std::uint32_t cover = hasAlpha ? bytes[3] : 0xFFU;
  return cover << 24U | std::uint32_t{bytes[0]} << 16U | std::uint32_t{bytes[1]} << 8U | bytes[2];
}

PicturePixels pixelsOf(const GdkPixbuf* pixbuf) {
  PicturePixels picture{gdk_pixbuf_get_width(pixbuf), gdk_pixbuf_get_height(pixbuf), {}};
  const bool hasAlpha = gdk_pixbuf_get_has_alpha(pixbuf) != FALSE;
  const int pixelSize = gdk_pixbuf_get_n_channels(pixbuf);
  const int rowSize = gdk_pixbuf_get_rowstride(pixbuf);
  const guint8* const first = gdk_pixbuf_read_pixels(pixbuf);
  picture.pixels.reserve(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height));
  for (Long y = 0; y < picture.height; ++y) {
    const guint8* bytes = first + std::ptrdiff_t{y} * rowSize;
    for (Long x = 0; x < picture.width; ++x, bytes += pixelSize) {
      picture.pixels.push_back(pixelOf(bytes, hasAlpha));
    }
  }
  return picture;
}

void putPixels(GdkPixbuf* pixbuf, const PicturePixels& picture) {
  guint8* const first = gdk_pixbuf_get_pixels(pixbuf);
  const int rowSize = gdk_pixbuf_get_rowstride(pixbuf);
  auto pixel = picture.pixels.begin();
  for (Long y = 0; y < picture.height; ++y) {
    guint8* bytes = first + std::ptrdiff_t{y} * rowSize;
    for (Long x = 0; x < picture.width; ++x, ++pixel) {
      for (const unsigned shift : {16U, 8U, 0U, 24U}) *bytes++ = static_cast<guint8>(*pixel >> shift);
    }
  }
}

std::optional<PicturePixels> decodedPixels(const PictureFile& file) {
  const Owned<GdkPixbufLoader> loader(gdk_pixbuf_loader_new_with_type(loaderName(file.format), nullptr));
  if (!loader) return std::nullopt;
  g_signal_connect(loader.get(), "size-prepared", G_CALLBACK(refuseLarge), nullptr);
  Long lastRow = 0;
  g_signal_connect(loader.get(), "area-updated", G_CALLBACK(noteRows), &lastRow);
  const auto* const bytes = reinterpret_cast<const guchar*>(file.bytes.data());
  const bool isWritten = gdk_pixbuf_loader_write(loader.get(), bytes, file.bytes.size(), nullptr) != FALSE;
  // It must be closed in any case.
  const bool isClosed = gdk_pixbuf_loader_close(loader.get(), nullptr) != FALSE;
  const GdkPixbuf* const pixbuf = gdk_pixbuf_loader_get_pixbuf(loader.get());
  if (!isWritten || !isClosed || !pixbuf || lastRow < file.height) return std::nullopt;
  return pixelsOf(pixbuf);
}

class LinuxPictures final : public Pictures {
 public:
  std::optional<PicturePixels> decode(std::string_view bytes) override {
    return decodedBy(decodedPixels, bytes);
  }

  std::string encodePng(const PicturePixels& picture) override {
    if (!isWhole(picture)) return {};
    const Owned<GdkPixbuf> pixbuf(gdk_pixbuf_new(GDK_COLORSPACE_RGB, TRUE, 8, picture.width, picture.height));
    if (!pixbuf) throw std::bad_alloc();
    putPixels(pixbuf.get(), picture);
    gchar* content = nullptr;
    gsize size = 0;
    const gboolean isSaved =
        gdk_pixbuf_save_to_buffer(pixbuf.get(), &content, &size, "png", nullptr, nullptr);
    const std::unique_ptr<gchar, FreeMemory> owned(content);
    return isSaved != FALSE ? std::string(content, size) : std::string();
  }
};

}  // namespace

Pictures& ownPictures() {
  static LinuxPictures pictures;
  return pictures;
}

}  // namespace tessaly::platform
