#pragma once

#include "tessaly/platform/Xml.h"
#include "tessaly/platform/windows/Com.h"
// The document model's header needs COM's first.
#include <msxml2.h>

namespace tessaly::platform {

/// A node of the system's document model; each pointer to one is an object of its own.
class WindowsXmlNode final : public XmlNode {
 public:
  /// No node gives no pointer.
  static XmlNodePtr make(ComPtr<IXMLDOMNode> node);

  Long nodeType() override;
  std::u16string_view baseName() override;
  void nodeTypedValue(String& text) override;
  bool hasChildNodes() override;
  XmlNodePtr firstChild() override;
  XmlNodePtr nextSibling() override;
  XmlNodePtr parentNode() override;
  void appendChild(XmlNode& child) override;

 protected:
  void release() noexcept override { delete this; }

 private:
  explicit WindowsXmlNode(ComPtr<IXMLDOMNode> node) : node_(std::move(node)) {}

  ComPtr<IXMLDOMNode> node_;
  String name_;
};

}  // namespace tessaly::platform
