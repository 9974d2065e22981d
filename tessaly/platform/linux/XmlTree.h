#pragma once

#include <cstdint>
#include <memory_resource>
#include <string>
#include <string_view>

#include "tessaly/platform/Xml.h"

namespace tessaly::platform {

class XmlTree;

/// A node of a tree; stands in the tree's storage and goes with it.
class LinuxXmlNode final : public XmlNode {
 public:
  /// `content` is an element's or instruction's name or a text's characters, by place and length in the
  /// storage.
  LinuxXmlNode(XmlTree& tree, Type type, std::uint32_t place, std::uint32_t length)
      : tree_(&tree), type_(type), place_(place), length_(length) {}

  Long nodeType() override { return type_; }
  void baseName(String& name) override;
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
  std::string_view content() const;

  XmlTree* tree_;
  LinuxXmlNode* parent_ = nullptr;
  LinuxXmlNode* first_ = nullptr;
  LinuxXmlNode* last_ = nullptr;
  LinuxXmlNode* next_ = nullptr;
  Type type_;
  std::uint32_t place_;
  std::uint32_t length_;
  bool keepsBlanks_ = false;
  bool blanksBehind_ = false;
  bool blanksWithin_ = false;
};

/// A document's nodes and characters in two blocks of storage that grow.
class XmlTree {
 public:
  XmlTree() : root_(&add(XmlNode::Document, 0)) {}
  XmlTree(const XmlTree&) = delete;
  XmlTree& operator=(const XmlTree&) = delete;

  LinuxXmlNode& root() { return *root_; }

  /// A new node whose content is all that was stored from `place` on.
  LinuxXmlNode& add(XmlNode::Type type, std::size_t place) {
    return *std::pmr::polymorphic_allocator<>(&nodes_).new_object<LinuxXmlNode>(
        *this, type, static_cast<std::uint32_t>(place),
        static_cast<std::uint32_t>(characters_.size() - place));
  }

  /// The characters of all nodes, in UTF-8.
  std::string& characters() { return characters_; }

 private:
  std::pmr::monotonic_buffer_resource nodes_{8192};
  std::string characters_;
  LinuxXmlNode* root_;
};

inline std::string_view LinuxXmlNode::content() const {
  return std::string_view(tree_->characters()).substr(place_, length_);
}

}  // namespace tessaly::platform
