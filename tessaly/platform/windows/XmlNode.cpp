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
  VARIANT value;
  VariantInit(&value);
  text.clear();
  if (SUCCEEDED(node_->get_nodeTypedValue(&value)) && value.vt == VT_BSTR) {
    text.assign(reinterpret_cast<const char16_t*>(value.bstrVal), SysStringLen(value.bstrVal));
  }
  VariantClear(&value);
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
