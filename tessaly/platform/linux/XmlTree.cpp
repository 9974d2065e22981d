#include "tessaly/platform/linux/XmlTree.h"

#include <algorithm>

#include "tessaly/base/Unicode.h"

namespace tessaly::platform {
namespace {

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isXmlBlank(static_cast<unsigned char>(text.front()))) text.remove_prefix(1);
  while (!text.empty() && isXmlBlank(static_cast<unsigned char>(text.back()))) text.remove_suffix(1);
  return text;
}

void appendCharacters(String& text, std::string_view utf8) {
  unicode::appendUtf8(text, utf8, [](unsigned char) { return unicode::kReplacement; });
}

}  // namespace

/// Puts the text below an element together, as the Windows parser does: where a text of blanks alone was left
/// out between two others, one blank stands for it; what comes from a CDATA section is kept from the
/// trimming.
class TextOfNodes {
 public:
  explicit TextOfNodes(String& text) : text_(&text) {}

  /// Gives whether blanks were left out behind the last text.
  bool addChildrenOf(const LinuxXmlNode& node) {
    const std::size_t begin = text_->size();
    bool gap = node.blanksWithin_;
    for (const LinuxXmlNode* child = node.first_; child != nullptr; child = child->next_) {
      const bool gapBefore = gapBefore_;
      gapBefore_ = gapBefore || (gap && text_->size() > begin);
      const std::size_t before = text_->size();
      const bool gapWithin = add(*child);
      if (text_->size() > before || child->type_ == XmlNode::CData) {
        gap = gapWithin;
      } else {
        gap = gap || gapWithin;
        gapBefore_ = gapBefore;
      }
      gap = gap || child->blanksBehind_;
    }
    return gap;
  }

  void trim() {
    const auto first =
        static_cast<std::size_t>(std::find_if_not(text_->begin(), text_->end(), isXmlBlank) - text_->begin());
    const std::size_t from = std::min(first, keptFrom_);
    std::size_t to = text_->size();
    while (to > std::max(from, keptTo_) && isXmlBlank((*text_)[to - 1])) --to;
    text_->resize(to);
    text_->erase(0, from);
  }

 private:
  bool add(const LinuxXmlNode& node) {
    if (node.type_ == XmlNode::Element) return addChildrenOf(node);
    if (node.type_ != XmlNode::Text && node.type_ != XmlNode::CData) return false;
    if (gapBefore_) text_->push_back(u' ');
    gapBefore_ = false;
    const std::size_t begin = text_->size();
    appendCharacters(*text_, node.text());
    if (node.type_ == XmlNode::CData) {
      keptFrom_ = std::min(keptFrom_, begin);
      keptTo_ = text_->size();
    }
    return false;
  }

  String* text_;
  std::size_t keptFrom_ = String::npos;
  std::size_t keptTo_ = 0;
  bool gapBefore_ = false;
};

LinuxXmlNode& XmlTree::add(XmlNode::Type type, std::string_view name) {
  const LinuxXmlNode::Place text{static_cast<std::uint32_t>(used_),
                                 static_cast<std::uint32_t>(texts_.size() - used_)};
  used_ = texts_.size();
  const LinuxXmlNode::Content content{name.empty() ? LinuxXmlNode::Place() : store(name), text};
  return *std::pmr::polymorphic_allocator<>(&nodes_).new_object<LinuxXmlNode>(*this, type, content);
}

LinuxXmlNode::Place XmlTree::store(std::string_view name) {
  RecentName& recent = recentNames_[name.size() % recentNames_.size()];
  if (recent.utf8 != name) {
    recent.place.begin = static_cast<std::uint32_t>(names_.size());
    appendCharacters(names_, name);
    recent.place.length = static_cast<std::uint32_t>(names_.size()) - recent.place.begin;
    recent.utf8 = name;
  }
  return recent.place;
}

void LinuxXmlNode::nodeTypedValue(String& text) {
  text.clear();
  if (type_ == Element && hasOneText()) {
    appendCharacters(text, keepsBlanks_ ? first_->text() : trimmed(first_->text()));
  } else if (type_ == Element || type_ == Document) {
    TextOfNodes texts(text);
    texts.addChildrenOf(*this);
    if (!keepsBlanks_) texts.trim();
  } else {
    appendCharacters(text, this->text());
  }
}

void LinuxXmlNode::append(LinuxXmlNode& child) {
  child.parent_ = this;
  if (last_ != nullptr) {
    last_->next_ = &child;
  } else {
    first_ = &child;
  }
  last_ = &child;
}

void LinuxXmlNode::noteBlanks() {
  if (last_ != nullptr) {
    last_->blanksBehind_ = true;
  } else {
    blanksWithin_ = true;
  }
}

}  // namespace tessaly::platform
