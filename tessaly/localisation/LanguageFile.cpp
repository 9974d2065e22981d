// CResources reads a language file: an XML document whose GENERAL section tells what it is, whose FONTS suit
// the language, and whose STRING sections are the texts.

#include <algorithm>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/localisation/CResources.h"
#include "tessaly/localisation/TextToLong.h"
#include "tessaly/platform/Core.h"

namespace tessaly {

using platform::XmlChildNodes;
using platform::XmlDocument;
using platform::XmlNode;
using platform::XmlNodePtr;

namespace {

// For literals whose length is known when they are compiled: g++ counts that of a plain u"" each time.
using namespace std::string_view_literals;

/// Whether a name, in upper case, is one of the format's. Only a to z have a capital that matters.
bool isName(std::u16string_view name, std::u16string_view upperCased) {
  return std::equal(name.begin(), name.end(), upperCased.begin(), upperCased.end(),
                    [](char16_t c, char16_t upper) {
                      return c == upper || (c >= u'a' && c <= u'z' && c - u'a' + u'A' == upper);
                    });
}

/// A child of a section, whatever its type, by name and text; the text is fetched where the name is wanted.
class Field {
 public:
  explicit Field(XmlNode& section) : section_(&section) {}

  template <class Take>
  void forEach(Take take) {
    for (XmlNode& child : section_->childNodes()) {
      name_ = child.baseName();
      child_ = &child;
      take(*this);
    }
  }

  bool is(std::u16string_view upperCased) const { return isName(name_, upperCased); }

  const String& text() {
    text(text_);
    return text_;
  }
  void text(String& into) { child_->nodeTypedValue(into); }

 private:
  XmlNode* section_;
  XmlNode* child_ = nullptr;
  std::u16string_view name_;
  String text_;
};

}  // namespace

void CResources::LoadXMLFile(std::u16string_view path) { LoadLanguageFile(path, False); }

Boolean CResources::LoadLanguageFile(std::u16string_view path, Boolean headerOnly) {
  Boolean rejected = False;
  try {
    readLanguageFile(path, headerOnly, rejected);
  } catch (const RuntimeError&) {
    // A broken file is no foreign one: what was read stays, and the rest stays built-in.
  }
  return rejected;
}

void CResources::readLanguageFile(std::u16string_view path, Boolean headerOnly, Boolean& rejected) {
  if (!headerOnly) FillBuiltInStrings();
  const auto document = platform::core().xml->createDocument();
  if (!document) return;
  document->async(false);
  document->validateOnParse(false);
  document->load(path);
  clearFileFields();
  const XmlNodePtr root = document->documentElement();
  if (!root) return;
  WalkLanguageNodes(root->childNodes(), True);
  rejected = applicationGUID_ != fileGUID_ || fileLang_.empty() || fileLangID_ == 0;
  if (!rejected && !headerOnly) WalkLanguageNodes(root->childNodes(), False);
}

void CResources::clearFileFields() {
  // fileVersion stays: it is the one field of a header that no read clears.
  fileLangID_ = 0;
  fileGUID_.clear();
  fileLang_.clear();
  reportFontName_.clear();
  gridFontName_.clear();
  gridFontSize_ = 0;
  mailFontName_.clear();
}

void CResources::WalkLanguageNodes(XmlChildNodes nodes, Boolean headerOnly) {
  String text;
  for (XmlNode& node : nodes) {
    if (node.nodeType() == XmlNode::Element) {
      const std::u16string_view name = node.baseName();
      if (isName(name, u"GENERAL"sv)) {
        readGeneral(node);
        // This ends the list at this depth alone; an outer walk goes on.
        if (headerOnly) return;
      } else if (!headerOnly && isName(name, u"FONTS"sv)) {
        readFonts(node);
      } else if (!headerOnly && isName(name, u"STRING"sv)) {
        readString(node, text);
      }
    }
    if (node.hasChildNodes()) WalkLanguageNodes(node.childNodes(), headerOnly);
  }
}

void CResources::readGeneral(XmlNode& section) {
  Field(section).forEach([this](Field& field) {
    if (field.is(u"VERSION"sv)) fileVersion_ = textToLong(field.text());
    if (field.is(u"GUID"sv)) fileGUID_ = field.text();
    if (field.is(u"LANG"sv)) fileLang_ = field.text();
    if (field.is(u"LANGID"sv)) fileLangID_ = textToLong(field.text());
  });
}

void CResources::readFonts(XmlNode& section) {
  Field(section).forEach([this](Field& field) {
    if (field.is(u"PRINTFONTNAME"sv)) reportFontName_ = field.text();
    if (field.is(u"GRIDFONTNAME"sv)) gridFontName_ = field.text();
    if (field.is(u"GRIDFONTSIZE"sv)) gridFontSize_ = textToLong(field.text());
    if (field.is(u"MAILFONTNAME"sv)) mailFontName_ = field.text();
  });
}

void CResources::readString(XmlNode& section, String& text) {
  Long number = 0;
  text.clear();
  Field(section).forEach([&](Field& field) {
    if (field.is(u"ID"sv)) number = textToLong(field.text());
    if (field.is(u"VALUE"sv)) field.text(text);
  });
  if (number < 1 || number > kStringCount || text.empty()) return;
  strings_[static_cast<std::size_t>(number - 1)] = text;
}

void CResources::AppendLineBreak(XmlDocument& document, XmlNode& parent) {
  parent.appendChild(*document.createTextNode(u"\r\n"));
}

void CResources::AppendIndentation(XmlDocument& document, XmlNode& parent, Boolean newLineFirst,
                                   XmlNode* node) {
  if (newLineFirst) AppendLineBreak(document, parent);
  XmlNode& innermost = node != nullptr ? *node : parent;
  for (XmlNodePtr above = innermost.parentNode(); above; above = above->parentNode()) {
    parent.appendChild(*document.createTextNode(u"\t"));
  }
}

}  // namespace tessaly
