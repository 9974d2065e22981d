#include "tessaly/platform/Xml.h"

#include <algorithm>
#include <new>
#include <optional>
#include <string>

#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/windows/XmlNode.h"

namespace tessaly::platform {
namespace {

constexpr CLSID kDomDocument = {0xF6D90F11, 0x9C73, 0x11D3, {0xB3, 0x2E, 0x00, 0xC0, 0x4F, 0x99, 0x0B, 0xB4}};
/// The newer form of the document's interface; the import library has no name for it.
constexpr IID kDomDocument2 = {0x2933BF95, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

/// A document's bytes as the model takes them.
class Source {
 public:
  explicit Source(const std::string& bytes) {
    VariantInit(&value_);
    // A stream is what every version takes in every encoding. Some copy it page by page, which takes half a
    // minute for 50 MB, so what is that large goes in as an array.
    bytes.size() <= kMostForStream ? setStream(bytes) : setArray(bytes);
  }
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;
  ~Source() { VariantClear(&value_); }

  const VARIANT& get() const { return value_; }

 private:
  static constexpr std::size_t kMostForStream = std::size_t{1} << 20U;

  void setStream(const std::string& bytes) {
    auto stream = taken<IStream>([](IStream** out) { return CreateStreamOnHGlobal(nullptr, TRUE, out); });
    if (!stream || FAILED(stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr))) {
      throw std::bad_alloc();
    }
    stream->Seek(LARGE_INTEGER{}, STREAM_SEEK_SET, nullptr);
    value_.vt = VT_UNKNOWN;
    value_.punkVal = stream.release();
  }

  void setArray(const std::string& bytes) {
    value_.parray = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(bytes.size()));
    if (value_.parray == nullptr) throw std::bad_alloc();
    value_.vt = VT_ARRAY | VT_UI1;
    std::copy(bytes.begin(), bytes.end(), static_cast<char*>(value_.parray->pvData));
  }

  VARIANT value_;
};

/// What the system's parser lets through and who reads the tree goes down with: the parser of old has no
/// bound of its own everywhere, and puts entities together only when their text is asked for.
class HostileTree {
 public:
  explicit HostileTree(std::size_t documentSize) : mostReferences_(kMostText / documentSize) {}

  bool isHostile(XmlNode& node, int levelsLeft = kMostXmlLevels) {
    if (levelsLeft < 0) return true;
    for (XmlNode& child : node.childNodes()) {
      const Long type = child.nodeType();
      const bool isReference = type == NODE_ENTITY_REFERENCE;
      if (isReference && ++references_ > mostReferences_) return true;
      if ((isReference || type == XmlNode::Element) && isHostile(child, levelsLeft - 1)) return true;
    }
    return false;
  }

 private:
  /// A reference brings at most the whole document.
  static constexpr std::size_t kMostText = std::size_t{256} << 20U;

  std::size_t mostReferences_;
  std::size_t references_ = 0;
};

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
    if (!document_) return;
    document_->put_resolveExternals(VARIANT_FALSE);
    boundDepth();
  }

  void async(bool value) override { document_->put_async(value ? VARIANT_TRUE : VARIANT_FALSE); }
  void validateOnParse(bool value) override {
    document_->put_validateOnParse(value ? VARIANT_TRUE : VARIANT_FALSE);
  }

  bool load(std::u16string_view path) override {
    // The file is opened here, since the model's own `load` takes its argument for an address.
    const std::optional<std::string> bytes = core().files->read(path);
    loaded_ = bytes && !bytes->empty() && parse(*bytes);
    const XmlNodePtr root = documentElement();
    loaded_ = root && !HostileTree(bytes->size()).isHostile(*root);
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
    auto node = taken<IXMLDOMNode>([&](IXMLDOMNode** out) {
      return document_->createTextNode(data.get(), reinterpret_cast<IXMLDOMText**>(out));
    });
    if (!node) throw std::bad_alloc();
    return WindowsXmlNode::make(std::move(node));
  }

 private:
  /// So that the parser itself does not go down with its stack; where it does not know the property, it has a
  /// bound.
  void boundDepth() {
    const auto extended = taken<IXMLDOMDocument2>([this](IXMLDOMDocument2** out) {
      return document_->QueryInterface(kDomDocument2, reinterpret_cast<void**>(out));
    });
    if (!extended) return;
    const ComText name(u"MaxElementDepth");
    VARIANT depth{};
    depth.vt = VT_I4;
    depth.lVal = kMostXmlLevels + 1;
    extended->setProperty(name.get(), depth);
  }

  bool parse(const std::string& bytes) {
    const Source source(bytes);
    VARIANT_BOOL wellFormed = VARIANT_FALSE;
    return document_->load(source.get(), &wellFormed) == S_OK && wellFormed != VARIANT_FALSE;
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
