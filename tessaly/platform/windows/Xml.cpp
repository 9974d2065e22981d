#include "tessaly/platform/Xml.h"

#include <optional>
#include <string>

#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/windows/XmlNode.h"

namespace tessaly::platform {
namespace {

constexpr CLSID kDomDocument = {0xF6D90F11, 0x9C73, 0x11D3, {0xB3, 0x2E, 0x00, 0xC0, 0x4F, 0x99, 0x0B, 0xB4}};
constexpr int kDeepest = 256;

ComPtr<IStream> streamOf(const std::string& bytes) {
  auto stream = taken<IStream>([](IStream** out) { return CreateStreamOnHGlobal(nullptr, TRUE, out); });
  if (!stream || FAILED(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr)))
    return nullptr;
  const LARGE_INTEGER start{};
  return SUCCEEDED(stream->Seek(start, STREAM_SEEK_SET, nullptr)) ? std::move(stream) : nullptr;
}

/// The system's parser of old has no bound of its own everywhere, and who walks the tree goes down with it.
bool isDeeperThan(int levels, XmlNode& node) {
  if (levels < 0) return true;
  for (XmlNode& child : node.childNodes()) {
    if (child.nodeType() == XmlNode::Element && isDeeperThan(levels - 1, child)) return true;
  }
  return false;
}

class WindowsXmlDocument final : public XmlDocument {
 public:
  static std::unique_ptr<XmlDocument> create() {
    auto document = std::make_unique<WindowsXmlDocument>();
    if (!document->document_) return nullptr;
    return document;
  }

  WindowsXmlDocument()
      : document_(taken<IXMLDOMDocument>([](IXMLDOMDocument** out) {
          return CoCreateInstance(kDomDocument, nullptr, CLSCTX_INPROC_SERVER, IID_IXMLDOMDocument,
                                  reinterpret_cast<void**>(out));
        })) {
    if (document_) document_->put_resolveExternals(VARIANT_FALSE);
  }

  void async(bool value) override { document_->put_async(value ? VARIANT_TRUE : VARIANT_FALSE); }
  void validateOnParse(bool value) override {
    document_->put_validateOnParse(value ? VARIANT_TRUE : VARIANT_FALSE);
  }

  bool load(std::u16string_view path) override {
    // The file is opened here, since the model's own `load` takes its argument for an address.
    const std::optional<std::string> bytes = core().files->read(path);
    const ComPtr<IStream> stream = bytes ? streamOf(*bytes) : nullptr;
    loaded_ = stream && parse(stream.get());
    const XmlNodePtr root = documentElement();
    loaded_ = root && !isDeeperThan(kDeepest, *root);
    return loaded_;
  }

  XmlNodePtr documentElement() override {
    if (!loaded_) return nullptr;
    return WindowsXmlNode::make(taken<IXMLDOMNode>([&](IXMLDOMNode** out) {
      return document_->get_documentElement(reinterpret_cast<IXMLDOMElement**>(out));
    }));
  }

  XmlNodePtr createTextNode(std::u16string_view text) override {
    const ComText data(text);
    return WindowsXmlNode::make(taken<IXMLDOMNode>([&](IXMLDOMNode** out) {
      return document_->createTextNode(data.get(), reinterpret_cast<IXMLDOMText**>(out));
    }));
  }

 private:
  bool parse(IStream* stream) {
    VARIANT source;
    VariantInit(&source);
    source.vt = VT_UNKNOWN;
    source.punkVal = stream;
    VARIANT_BOOL wellFormed = VARIANT_FALSE;
    return document_->load(source, &wellFormed) == S_OK && wellFormed != VARIANT_FALSE;
  }

  ComApartment apartment_;
  ComPtr<IXMLDOMDocument> document_;
  bool loaded_ = false;
};

class WindowsXml final : public Xml {
 public:
  std::unique_ptr<XmlDocument> createDocument() override { return WindowsXmlDocument::create(); }
};

}  // namespace

Xml& ownXml() {
  static WindowsXml xml;
  return xml;
}

}  // namespace tessaly::platform
