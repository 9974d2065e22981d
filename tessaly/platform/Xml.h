#pragma once

#include <memory>
#include <string_view>

#include "tessaly/base/Types.h"

/// What the library needs of an XML document object model. Documents belong to one thread; a node is valid as
/// long as its document lives. Names are those of the model that Windows has.
namespace tessaly::platform {

struct XmlNode;
class XmlChildNodes;

/// How many levels of elements a document may have below its root.
inline constexpr int kMostXmlLevels = 256;

struct ReleaseXmlNode {
  void operator()(XmlNode* node) const noexcept;
};
using XmlNodePtr = std::unique_ptr<XmlNode, ReleaseXmlNode>;

/// One node. Two pointers may stand for one node of the document.
struct XmlNode {
  enum Type : Long { Element = 1, Text = 3, CData = 4, ProcessingInstruction = 7, Comment = 8, Document = 9 };

  /// One of `Type`, or a further number of the model; only elements matter to the library.
  virtual Long nodeType() = 0;

  /// The local name, without a prefix; empty for nodes without a name. Valid until this pointer is asked
  /// again or goes.
  virtual std::u16string_view baseName() = 0;

  /// Puts the text of the node and of all below it into `text`. Blanks at both ends of an element's text are
  /// gone unless xml:space keeps them; CDATA sections stay whole.
  virtual void nodeTypedValue(String& text) = 0;

  virtual bool hasChildNodes() = 0;
  virtual XmlNodePtr firstChild() = 0;
  virtual XmlNodePtr nextSibling() = 0;

  /// The node above, at last the document, whose parent is none.
  virtual XmlNodePtr parentNode() = 0;

  /// Puts a node of the same document, which stands nowhere yet, behind the last child.
  virtual void appendChild(XmlNode& child) = 0;

  /// The children in document order, for a range-based `for`.
  XmlChildNodes childNodes();

 protected:
  virtual ~XmlNode() = default;
  virtual void release() noexcept = 0;
  friend struct ReleaseXmlNode;
};

struct XmlDocument {
  virtual ~XmlDocument() = default;

  /// With false, `load` returns when parsing is finished. The library asks for nothing else.
  virtual void async(bool value) = 0;

  /// With false, no document is held against a document type. The library asks for nothing else.
  virtual void validateOnParse(bool value) = 0;

  /// Parses a file, once for each document. Gives false, and no element, where the file is missing, not
  /// well-formed, or nested deeper than `kMostXmlLevels`. External entities are never read.
  virtual bool load(std::u16string_view path) = 0;

  /// The root element, or none.
  virtual XmlNodePtr documentElement() = 0;

  /// A text node that stands nowhere yet, never none; the document keeps it.
  virtual XmlNodePtr createTextNode(std::u16string_view text) = 0;
};

struct Xml {
  virtual ~Xml() = default;

  /// A new, empty document, or none where the platform can't create one.
  virtual std::unique_ptr<XmlDocument> createDocument() = 0;
};

/// The children of a node, gone through once; the node's own pointer may be gone by then.
class XmlChildNodes {
 public:
  class Iterator {
   public:
    explicit Iterator(XmlNodePtr node) : node_(std::move(node)) {}
    XmlNode& operator*() const { return *node_; }
    Iterator& operator++() {
      node_ = node_->nextSibling();
      return *this;
    }
    bool operator!=(std::nullptr_t) const { return node_ != nullptr; }

   private:
    XmlNodePtr node_;
  };

  explicit XmlChildNodes(XmlNodePtr first) : first_(std::move(first)) {}
  Iterator begin() { return Iterator(std::move(first_)); }
  std::nullptr_t end() const { return nullptr; }

 private:
  XmlNodePtr first_;
};

inline void ReleaseXmlNode::operator()(XmlNode* node) const noexcept { node->release(); }
inline XmlChildNodes XmlNode::childNodes() { return XmlChildNodes(firstChild()); }

}  // namespace tessaly::platform
