#include "tessaly/platform/Xml.h"

#include <memory>
#include <optional>

#include "tessaly/base/Text.h"
#include "tessaly/platform/Bodies.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/linux/XmlEncoding.h"
#include "tessaly/platform/linux/XmlParser.h"
#include "tessaly/platform/linux/XmlTree.h"

namespace tessaly::platform {
namespace {

class LinuxXmlDocument final : public XmlDocument {
 public:
  // Expat is at its end when it returns and knows no validation, so both hold what the library asks for
  // anyway.
  void async(bool /*value*/) override {}
  void validateOnParse(bool /*value*/) override {}

  bool load(std::u16string_view path) override {
    std::optional<std::string> bytes = core().files->read(path);
    const std::optional<std::string> document = bytes ? xmlInUtf8(std::move(*bytes)) : std::nullopt;
    loaded_ = document && parseXml(*document, tree_);
    return loaded_;
  }

  XmlNodePtr documentElement() override {
    if (!loaded_) return nullptr;
    XmlNodePtr node = tree_.root().firstChild();
    while (node && node->nodeType() != XmlNode::Element) node = node->nextSibling();
    return node;
  }

  XmlNodePtr createTextNode(std::u16string_view text) override {
    tree_.dropText();  // what a failed parse may have left
    tree_.addText(toUtf8(text));
    return XmlNodePtr(&tree_.add(XmlNode::Text));
  }

 private:
  XmlTree tree_;
  bool loaded_ = false;
};

class LinuxXml final : public Xml {
 public:
  std::unique_ptr<XmlDocument> createDocument() override { return std::make_unique<LinuxXmlDocument>(); }
};

}  // namespace

Xml& ownXml() {
  static LinuxXml xml;
  return xml;
}

}  // namespace tessaly::platform
