#include "tessaly/platform/windows/XmlNode.h"

namespace tessaly::platform {

XmlNodePtr WindowsXmlNode::make(ComPtr<IXMLDOMNode> node) {
  return XmlNodePtr(node ? new WindowsXmlNode(std::move(node)) : nullptr);
}

Long WindowsXmlNode::nodeType() {
  DOMNodeType type = NODE_INVALID;
  node_->get_nodeType(&type);
  return type;
}

std::u16string_view WindowsXmlNode::baseName() {
  ComText text;
  node_->get_baseName(text.out());
  name_ = text.view();
  return name_;
}

void WindowsXmlNode::nodeTypedValue(String& text) {
  // The text itself, which is the typed value of a node without a data type: no attribute is to make it
  // another.
  ComText value;
  node_->get_text(value.out());
  text = value.view();
}

bool WindowsXmlNode::hasChildNodes() {
  VARIANT_BOOL has = VARIANT_FALSE;
  node_->hasChildNodes(&has);
  return has != VARIANT_FALSE;
}

XmlNodePtr WindowsXmlNode::firstChild() {
  return make(taken<IXMLDOMNode>([&](IXMLDOMNode** out) { return node_->get_firstChild(out); }));
}

XmlNodePtr WindowsXmlNode::nextSibling() {
  return make(taken<IXMLDOMNode>([&](IXMLDOMNode** out) { return node_->get_nextSibling(out); }));
}

XmlNodePtr WindowsXmlNode::parentNode() {
  return make(taken<IXMLDOMNode>([&](IXMLDOMNode** out) { return node_->get_parentNode(out); }));
}

void WindowsXmlNode::appendChild(XmlNode& child) {
  IXMLDOMNode* added = static_cast<WindowsXmlNode&>(child).node_.get();
  taken<IXMLDOMNode>([&](IXMLDOMNode** out) { return node_->appendChild(added, out); });
}

}  // namespace tessaly::platform
