#include "tessaly/platform/linux/XmlParser.h"

#include <expat.h>

#include <algorithm>
#include <climits>
#include <exception>
#include <memory>
#include <new>

namespace tessaly::platform {
namespace {

/// Between a name and its namespace; no document can hold this character.
constexpr char kSeparator = '\f';
constexpr std::string_view kSpaceAttribute = "http://www.w3.org/XML/1998/namespace\fspace";
/// Of entities and attributes in a document type. Expat goes through a chain of entities on the stack, and
/// looks through all attributes for each that is declared.
constexpr int kMostDeclarations = 1000;

struct FreeParser {
  void operator()(XML_ParserStruct* parser) const { XML_ParserFree(parser); }
};

std::string_view localName(std::string_view name) { return name.substr(name.find(kSeparator) + 1); }

/// Builds the tree from what Expat tells. No exception passes through Expat: it is kept and raised behind it.
class TreeBuilder {
 public:
  TreeBuilder(XML_Parser parser, XmlTree& tree, std::size_t documentSize)
      : parser_(parser), tree_(&tree), open_(&tree.root()), attributesLeft_(documentSize) {}

  void registerHandlers() {
    XML_SetUserData(parser_, this);
    XML_SetElementHandler(parser_, onStart, onEnd);
    XML_SetCharacterDataHandler(parser_, onCharacters);
    XML_SetCdataSectionHandler(parser_, onCDataStart, onCDataEnd);
    XML_SetCommentHandler(parser_, onComment);
    XML_SetProcessingInstructionHandler(parser_, onInstruction);
    XML_SetXmlDeclHandler(parser_, onDeclaration);
    XML_SetEntityDeclHandler(parser_, onEntity);
    XML_SetAttlistDeclHandler(parser_, onAttribute);
    // For parameter entities of the document's own; without a handler for external ones, none of those is
    // read.
    XML_SetParamEntityParsing(parser_, XML_PARAM_ENTITY_PARSING_ALWAYS);
  }

  void raiseError() const {
    if (error_) std::rethrow_exception(error_);
  }

 private:
  template <class Step>
  static void guarded(void* self, Step step) {
    auto& builder = *static_cast<TreeBuilder*>(self);
    try {
      step(builder);
      if (builder.tree_->isFull()) XML_StopParser(builder.parser_, XML_FALSE);
    } catch (...) {
      builder.error_ = std::current_exception();
      XML_StopParser(builder.parser_, XML_FALSE);
    }
  }

  static void onStart(void* self, const char* name, const char** attributes) {
    guarded(self, [&](TreeBuilder& builder) { builder.start(name, attributes); });
  }
  static void onEnd(void* self, const char* /*name*/) {
    guarded(self, [](TreeBuilder& builder) { builder.end(); });
  }
  static void onCharacters(void* self, const char* text, int length) {
    guarded(self, [&](TreeBuilder& builder) {
      builder.tree_->addText({text, static_cast<std::size_t>(length)});
    });
  }
  static void onCDataStart(void* self) {
    guarded(self, [](TreeBuilder& builder) { builder.endText(); });
  }
  static void onCDataEnd(void* self) {
    guarded(self, [](TreeBuilder& builder) { builder.addNode(XmlNode::CData); });
  }
  static void onComment(void* self, const char* text) {
    guarded(self, [&](TreeBuilder& builder) { builder.addOther(XmlNode::Comment, {}, text); });
  }
  static void onInstruction(void* self, const char* target, const char* data) {
    guarded(self,
            [&](TreeBuilder& builder) { builder.addOther(XmlNode::ProcessingInstruction, target, data); });
  }
  static void onDeclaration(void* self, const char* version, const char* /*encoding*/, int /*standalone*/) {
    // An external entity's declaration may lack the version; a document's never does.
    const auto& builder = *static_cast<TreeBuilder*>(self);
    if (version != nullptr && !std::string_view(version).starts_with("1."))
      XML_StopParser(builder.parser_, XML_FALSE);
  }

  static void onEntity(void* self, const char* /*name*/, int /*isParameter*/, const char* /*value*/,
                       int /*length*/, const char* /*base*/, const char* /*system*/, const char* /*publicId*/,
                       const char* /*notation*/) {
    static_cast<TreeBuilder*>(self)->countDeclaration();
  }
  static void onAttribute(void* self, const char* /*element*/, const char* /*attribute*/,
                          const char* /*type*/, const char* /*value*/, int /*required*/) {
    static_cast<TreeBuilder*>(self)->countDeclaration();
  }

  void countDeclaration() {
    if (++declarations_ > kMostDeclarations) XML_StopParser(parser_, XML_FALSE);
  }

  /// Attributes that a document type adds cost no bytes in the document, so they could be without end.
  void countAttribute() {
    if (attributesLeft_-- == 0) XML_StopParser(parser_, XML_FALSE);
  }

  void start(const char* name, const char** attributes) {
    endText();
    if (depth_++ > kMostXmlLevels) {
      XML_StopParser(parser_, XML_FALSE);
      return;
    }
    LinuxXmlNode& element = addNode(XmlNode::Element, localName(name));
    element.keepBlanks(open_->keepsBlanks());
    for (; *attributes != nullptr; attributes += 2) {
      countAttribute();
      if (*attributes == kSpaceAttribute) element.keepBlanks(attributes[1] == std::string_view("preserve"));
    }
    open_ = &element;
  }

  void end() {
    endText();
    open_ = open_->parent();
    --depth_;
  }

  /// What was added since the last node becomes one text, or is noted and left out where it is blanks alone.
  void endText() {
    const std::string_view text = tree_->pendingText();
    if (text.empty()) return;
    const bool blank = std::all_of(text.begin(), text.end(), isXmlBlank);
    if (!blank || open_->keepsBlanks()) {
      addNode(XmlNode::Text);
    } else {
      open_->noteBlanks();
      tree_->dropText();
    }
  }

  void addOther(XmlNode::Type type, std::string_view name, std::string_view text) {
    endText();
    tree_->addText(text);
    addNode(type, name);
  }

  LinuxXmlNode& addNode(XmlNode::Type type, std::string_view name = {}) {
    LinuxXmlNode& node = tree_->add(type, name);
    open_->append(node);
    return node;
  }

  XML_Parser parser_;
  XmlTree* tree_;
  LinuxXmlNode* open_;
  int depth_ = 0;
  int declarations_ = 0;
  std::size_t attributesLeft_;
  std::exception_ptr error_;
};

}  // namespace

bool parseXml(std::string_view document, XmlTree& tree) {
  if (document.size() > INT_MAX) return false;
  const std::unique_ptr<XML_ParserStruct, FreeParser> parser(XML_ParserCreateNS("UTF-8", kSeparator));
  if (!parser) throw std::bad_alloc();
  tree.reserve(document.size());
  TreeBuilder builder(parser.get(), tree, document.size());
  builder.registerHandlers();
  const XML_Status status =
      XML_Parse(parser.get(), document.data(), static_cast<int>(document.size()), XML_TRUE);
  builder.raiseError();
  return status == XML_STATUS_OK;
}

}  // namespace tessaly::platform
