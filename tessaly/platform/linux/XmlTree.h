#pragma once

#include <array>
#include <cstdint>
#include <memory_resource>
#include <string>
#include <string_view>

#include "tessaly/platform/Xml.h"

namespace tessaly::platform {

class XmlTree;

constexpr bool isXmlBlank(char32_t c) { return c == U' ' || c == U'\t' || c == U'\r' || c == U'\n'; }

/// A node of a tree; stands in the tree's storage and goes with it.
class LinuxXmlNode final : public XmlNode {
 public:
  struct Place {
    std::uint32_t begin = 0;
    std::uint32_t length = 0;
  };

  /// What a node holds, by place and length in the tree's storage: the name of an element, the name and data
  /// of an instruction, the characters of a text.
  struct Content {
    Place name;
    Place text;
  };

  LinuxXmlNode(XmlTree& tree, Type type, const Content& content)
      : tree_(&tree), type_(type), content_(content) {}

  Long nodeType() override { return type_; }
  std::u16string_view baseName() override;
  void nodeTypedValue(String& text) override;
  bool hasChildNodes() override { return first_ != nullptr; }
  XmlNodePtr firstChild() override { return XmlNodePtr(first_); }
  XmlNodePtr nextSibling() override { return XmlNodePtr(next_); }
  XmlNodePtr parentNode() override { return XmlNodePtr(parent_); }
  void appendChild(XmlNode& child) override { append(static_cast<LinuxXmlNode&>(child)); }

  void append(LinuxXmlNode& child);
  LinuxXmlNode* parent() const { return parent_; }

  /// Whether xml:space keeps the blanks within; children take it over from their parent.
  bool keepsBlanks() const { return keepsBlanks_; }
  void keepBlanks(bool value) { keepsBlanks_ = value; }

  /// A text of blanks alone was left out behind the last child.
  void noteBlanks();

 protected:
  void release() noexcept override {}

 private:
  friend class TextOfNodes;
  bool hasOneText() const { return first_ != nullptr && first_ == last_ && first_->type_ == Text; }
  std::string_view text() const;

  XmlTree* tree_;
  LinuxXmlNode* parent_ = nullptr;
  LinuxXmlNode* first_ = nullptr;
  LinuxXmlNode* last_ = nullptr;
  LinuxXmlNode* next_ = nullptr;
  Type type_;
  Content content_;
  bool keepsBlanks_ = false;
  bool blanksBehind_ = false;
  bool blanksWithin_ = false;
};

/// A document's nodes and what they hold, each kind in a block of storage that grows. Names are kept as they
/// are asked for, in UTF-16; texts, of which only a part is ever asked for, as the parser gives them, in
/// UTF-8.
class XmlTree {
 public:
  XmlTree() : root_(&add(XmlNode::Document)) {}
  XmlTree(const XmlTree&) = delete;
  XmlTree& operator=(const XmlTree&) = delete;

  LinuxXmlNode& root() { return *root_; }

  /// Makes room for a document of this many bytes.
  void reserve(std::size_t size) { texts_.reserve(size); }

  /// Whether there is more than a place can count, with room for what one document may still add at once.
  bool isFull() const { return names_.size() > kMost || texts_.size() > kMost; }

  /// Adds to the text of the node that comes next, or drops what was added.
  void addText(std::string_view text) { texts_ += text; }
  void dropText() { texts_.resize(used_); }
  std::string_view pendingText() const { return std::string_view(texts_).substr(used_); }

  /// A new node with a name, and with the text that was added since the last node.
  LinuxXmlNode& add(XmlNode::Type type, std::string_view name = {});

  std::u16string_view name(LinuxXmlNode::Place place) const {
    return {names_.data() + place.begin, place.length};
  }
  std::string_view text(LinuxXmlNode::Place place) const {
    return {texts_.data() + place.begin, place.length};
  }

 private:
  /// The name that was stored last of those of one length: the few that a document has come again and again.
  struct RecentName {
    std::string utf8;
    LinuxXmlNode::Place place;
  };

  LinuxXmlNode::Place store(std::string_view name);

  static constexpr std::size_t kMost = std::size_t{1} << 30U;

  std::pmr::monotonic_buffer_resource nodes_{8192};
  String names_;
  std::array<RecentName, 16> recentNames_;
  std::string texts_;
  std::size_t used_ = 0;
  LinuxXmlNode* root_;
};

inline std::u16string_view LinuxXmlNode::baseName() { return tree_->name(content_.name); }
inline std::string_view LinuxXmlNode::text() const { return tree_->text(content_.text); }

}  // namespace tessaly::platform
