#include "tessaly/platform/Pictures.h"

#include "tessaly/platform/windows/Com.h"
// The imaging component's header needs windows.h first.
#include <wincodec.h>

#include "tessaly/platform/DesktopBodies.h"
#include "tessaly/platform/pictures/DecodedPicture.h"

namespace tessaly::platform {
namespace {

constexpr UINT kPixelSize = sizeof(std::uint32_t);

ComPtr<IWICImagingFactory> imagingFactory() {
  return taken<IWICImagingFactory>([](IWICImagingFactory** out) {
    return CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER, IID_IWICImagingFactory,
                            reinterpret_cast<void**>(out));
  });
}

const GUID& containerOf(PictureFormat format) {
  switch (format) {
    case PictureFormat::Bmp:
      return GUID_ContainerFormatBmp;
    case PictureFormat::Gif:
      return GUID_ContainerFormatGif;
    case PictureFormat::Jpeg:
      return GUID_ContainerFormatJpeg;
    case PictureFormat::Png:
      break;
  }
  return GUID_ContainerFormatPng;
}

ComPtr<IWICStream> streamOf(IWICImagingFactory& factory, const std::string& bytes) {
  auto stream = taken<IWICStream>([&](IWICStream** out) { return factory.CreateStream(out); });
  if (!stream) return nullptr;
  // The stream is read alone.
  auto* const data = reinterpret_cast<BYTE*>(const_cast<char*>(bytes.data()));
  const HRESULT result = stream->InitializeFromMemory(data, static_cast<DWORD>(bytes.size()));
  return SUCCEEDED(result) ? std::move(stream) : nullptr;
}

/// The first frame, by the decoder of this format and no other.
ComPtr<IWICBitmapFrameDecode> frameOf(IWICImagingFactory& factory, PictureFormat format, IStream& stream) {
  const auto decoder = taken<IWICBitmapDecoder>(
      [&](IWICBitmapDecoder** out) { return factory.CreateDecoder(containerOf(format), nullptr, out); });
  if (!decoder || FAILED(decoder->Initialize(&stream, WICDecodeMetadataCacheOnDemand))) return nullptr;
  return taken<IWICBitmapFrameDecode>([&](IWICBitmapFrameDecode** out) { return decoder->GetFrame(0, out); });
}

ComPtr<IWICFormatConverter> asPixels(IWICImagingFactory& factory, IWICBitmapSource& source) {
  auto converter = taken<IWICFormatConverter>(
      [&](IWICFormatConverter** out) { return factory.CreateFormatConverter(out); });
  if (!converter) return nullptr;
  const HRESULT result = converter->Initialize(&source, GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                                               nullptr, 0, WICBitmapPaletteTypeCustom);
  return SUCCEEDED(result) ? std::move(converter) : nullptr;
}

std::optional<PicturePixels> pixelsOf(IWICImagingFactory& factory, IWICBitmapSource& source) {
  UINT width = 0;
  UINT height = 0;
  if (FAILED(source.GetSize(&width, &height)) || !isPictureSize(width, height)) return std::nullopt;
  const auto converter = asPixels(factory, source);
  if (!converter) return std::nullopt;
  PicturePixels picture{static_cast<Long>(width), static_cast<Long>(height), {}};
  picture.pixels.resize(std::size_t{width} * height);
  const HRESULT result = converter->CopyPixels(nullptr, width * kPixelSize, width * height * kPixelSize,
                                               reinterpret_cast<BYTE*>(picture.pixels.data()));
  if (result == E_OUTOFMEMORY) throw std::bad_alloc();
  return SUCCEEDED(result) ? std::optional(std::move(picture)) : std::nullopt;
}

std::optional<PicturePixels> decodedPixels(const PictureFile& file) {
  const ComApartment apartment;
  const auto factory = imagingFactory();
  const auto stream = factory ? streamOf(*factory, file.bytes) : nullptr;
  const auto frame = stream ? frameOf(*factory, file.format, *stream) : nullptr;
  return frame ? pixelsOf(*factory, *frame) : std::nullopt;
}

bool writePixels(IWICBitmapFrameEncode& frame, const PicturePixels& picture) {
  const auto width = static_cast<UINT>(picture.width);
  const auto height = static_cast<UINT>(picture.height);
  WICPixelFormatGUID format = GUID_WICPixelFormat32bppBGRA;
  // The pixels are read alone.
  auto* const data = reinterpret_cast<BYTE*>(const_cast<std::uint32_t*>(picture.pixels.data()));
  return SUCCEEDED(frame.Initialize(nullptr)) && SUCCEEDED(frame.SetSize(width, height)) &&
         SUCCEEDED(frame.SetPixelFormat(&format)) && IsEqualGUID(format, GUID_WICPixelFormat32bppBGRA) &&
         SUCCEEDED(frame.WritePixels(height, width * kPixelSize, width * height * kPixelSize, data)) &&
         SUCCEEDED(frame.Commit());
}

bool writePng(IWICImagingFactory& factory, IStream& stream, const PicturePixels& picture) {
  const auto encoder = taken<IWICBitmapEncoder>(
      [&](IWICBitmapEncoder** out) { return factory.CreateEncoder(GUID_ContainerFormatPng, nullptr, out); });
  if (!encoder || FAILED(encoder->Initialize(&stream, WICBitmapEncoderNoCache))) return false;
  const auto frame = taken<IWICBitmapFrameEncode>(
      [&](IWICBitmapFrameEncode** out) { return encoder->CreateNewFrame(out, nullptr); });
  return frame && writePixels(*frame, picture) && SUCCEEDED(encoder->Commit());
}

std::string contentOf(IStream& stream) {
  STATSTG stat{};
  if (FAILED(stream.Stat(&stat, STATFLAG_NONAME))) return {};
  std::string bytes(static_cast<std::size_t>(stat.cbSize.QuadPart), '\0');
  ULONG count = 0;
  stream.Seek(LARGE_INTEGER{}, STREAM_SEEK_SET, nullptr);
  stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), &count);
  return count == bytes.size() ? bytes : std::string();
}

class WindowsPictures final : public Pictures {
 public:
  std::optional<PicturePixels> decode(std::string_view bytes) override {
    return decodedBy(decodedPixels, bytes);
  }

  std::string encodePng(const PicturePixels& picture) override {
    if (!isWhole(picture)) return {};
    const ComApartment apartment;
    const auto factory = imagingFactory();
    const auto stream =
        taken<IStream>([](IStream** out) { return CreateStreamOnHGlobal(nullptr, TRUE, out); });
    return factory && stream && writePng(*factory, *stream, picture) ? contentOf(*stream) : std::string();
  }
};

}  // namespace

Pictures& ownPictures() {
  static WindowsPictures pictures;
  return pictures;
}

}  // namespace tessaly::platform
