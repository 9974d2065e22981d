#include "examples/showcase/check/FileOutline.h"

#include <algorithm>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/base/Variant.h"
#include "tessaly/platform/Core.h"

namespace showcase {

using tessaly::Long;
using tessaly::String;
using tessaly::platform::XmlNode;
using tessaly::platform::XmlNodePtr;

namespace {

String nameOf(XmlNode& node) {
  String name(node.baseName());
  std::transform(name.begin(), name.end(), name.begin(), [](char16_t c) {
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - u'a' + u'A') : c;
  });
  return name;
}

/// The text of a section's field, the last one where there are several.
std::optional<String> field(XmlNode& section, std::u16string_view name) {
  std::optional<String> text;
  for (XmlNode& child : section.childNodes()) {
    if (nameOf(child) == name) child.nodeTypedValue(text.emplace());
  }
  return text;
}

/// Takes a field over what an earlier section of the same kind said.
void takeField(std::optional<String>& into, XmlNode& section, std::u16string_view name) {
  if (auto text = field(section, name)) into = std::move(text);
}

void takeGeneral(FileOutline& outline, XmlNode& section) {
  outline.hasGeneral = true;
  takeField(outline.version, section, u"VERSION");
  takeField(outline.guid, section, u"GUID");
  takeField(outline.lang, section, u"LANG");
  takeField(outline.langId, section, u"LANGID");
}

void takeSections(FileOutline& outline, XmlNode& parent) {
  for (XmlNode& node : parent.childNodes()) {
    if (node.nodeType() != XmlNode::Element) continue;
    const String name = nameOf(node);
    if (name == u"GENERAL") takeGeneral(outline, node);
    if (name == u"FONTS") takeField(outline.gridFontSize, node, u"GRIDFONTSIZE");
    if (name == u"STRING")
      outline.strings.push_back({field(node, u"ID"), field(node, u"VALUE").value_or(u"")});
    takeSections(outline, node);
  }
}

}  // namespace

FileOutline outlineOf(std::u16string_view path) {
  FileOutline outline;
  const auto document = tessaly::platform::core().xml->createDocument();
  if (!document) return outline;
  document->async(false);
  document->validateOnParse(false);
  outline.wellFormed = document->load(path);
  if (const XmlNodePtr root = document->documentElement()) takeSections(outline, *root);
  return outline;
}

std::optional<Long> numberIn(const std::optional<String>& text) {
  if (!text) return std::nullopt;
  try {
    return tessaly::Variant(*text).toLong();
  } catch (const tessaly::RuntimeError&) {
    return std::nullopt;
  }
}

}  // namespace showcase
