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

String sectionName(XmlNode& node) { return node.nodeType() == XmlNode::Element ? nameOf(node) : String(); }

/// Goes through a document in the order of a catalogue: its header first, then all of it.
class Reading {
 public:
  explicit Reading(FileOutline& outline) : outline_(&outline) {}

  /// A GENERAL section ends the list that it stands in.
  void readHeader(XmlNode& parent) {
    for (XmlNode& node : parent.childNodes()) {
      if (sectionName(node) == u"GENERAL") {
        outline_->hasGeneral = true;
        return takeGeneral(node, outline_->header);
      }
      readHeader(node);
      if (hasEnded()) return;
    }
  }

  void readAll(XmlNode& parent) {
    for (XmlNode& node : parent.childNodes()) {
      takeSection(node);
      if (!hasEnded()) readAll(node);
      if (hasEnded()) return;
    }
  }

  bool hasEnded() const { return outline_->end.has_value(); }

 private:
  template <class Take>
  void forEachField(XmlNode& section, Take take) {
    for (XmlNode& child : section.childNodes()) {
      FileOutline::Field field{nameOf(child), u""};
      child.nodeTypedValue(field.text);
      take(field);
      if (hasEnded()) return;
    }
  }

  std::optional<Long> number(const FileOutline::Field& field) {
    const auto value = numberIn(field.text);
    if (!value) outline_->end = field;
    return value;
  }

  void takeSection(XmlNode& node) {
    const String name = sectionName(node);
    FileOutline::Header later;
    if (name == u"GENERAL") takeGeneral(node, later);
    if (name == u"FONTS") takeFonts(node);
    if (name == u"STRING") takeString(node);
  }

  void takeGeneral(XmlNode& section, FileOutline::Header& header) {
    forEachField(section, [&](const FileOutline::Field& field) {
      if (field.name == u"VERSION") number(field);
      if (field.name == u"GUID") header.guid = field.text;
      if (field.name == u"LANG") header.lang = field.text;
      if (field.name == u"LANGID" && number(field)) header.langId = field.text;
    });
  }

  void takeFonts(XmlNode& section) {
    forEachField(section, [&](const FileOutline::Field& field) {
      if (field.name == u"GRIDFONTSIZE") number(field);
    });
  }

  void takeString(XmlNode& section) {
    FileOutline::Entry entry;
    forEachField(section, [&](const FileOutline::Field& field) {
      if (field.name == u"ID") entry.id = number(field);
      if (field.name == u"VALUE") entry.value = field.text;
    });
    if (!hasEnded()) outline_->strings.push_back(std::move(entry));
  }

  FileOutline* outline_;
};

}  // namespace

FileOutline outlineOf(std::u16string_view path) {
  FileOutline outline;
  const auto document = tessaly::platform::core().xml->createDocument();
  if (!document) return outline;
  document->async(false);
  document->validateOnParse(false);
  outline.wellFormed = document->load(path);
  const XmlNodePtr root = document->documentElement();
  if (!root) return outline;
  Reading reading(outline);
  reading.readHeader(*root);
  outline.headerIsWhole = !reading.hasEnded();
  if (outline.headerIsWhole) reading.readAll(*root);
  return outline;
}

std::optional<Long> numberIn(const String& text) {
  try {
    return tessaly::Variant(text).toLong();
  } catch (const tessaly::RuntimeError&) {
    return std::nullopt;
  }
}

}  // namespace showcase
