#include "tessaly/platform/fake/Xml.h"

#include "tessaly/platform/Core.h"

namespace tessaly::platform::fake {

class Xml::Recorder final : public XmlDocument {
 public:
  Recorder(Xml& owner, std::unique_ptr<XmlDocument> real) : owner_(&owner), real_(std::move(real)) {}
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;
  ~Recorder() override { note("release"); }

  void async(bool value) override {
    note(value ? "async true" : "async false");
    real_->async(value);
  }

  void validateOnParse(bool value) override {
    note(value ? "validateOnParse true" : "validateOnParse false");
    real_->validateOnParse(value);
  }

  bool load(std::u16string_view path) override {
    note("load");
    return !owner_->loadFails_ && real_->load(path);
  }

  XmlNodePtr documentElement() override {
    note("documentElement");
    return real_->documentElement();
  }

  XmlNodePtr createTextNode(std::u16string_view text) override {
    note("createTextNode");
    return real_->createTextNode(text);
  }

 private:
  void note(const char* call) { owner_->calls_.emplace_back(call); }

  Xml* owner_;
  std::unique_ptr<XmlDocument> real_;
};

Xml::Xml() : real_(core().xml) {}

std::unique_ptr<XmlDocument> Xml::createDocument() {
  calls_.emplace_back("createDocument");
  auto document = createFails_ ? nullptr : real_->createDocument();
  if (!document) return nullptr;
  return std::make_unique<Recorder>(*this, std::move(document));
}

}  // namespace tessaly::platform::fake
