#include "tests/support/World.h"

#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Files.h"
#include "tessaly/platform/fake/Xml.h"
#include "tests/support/TemporaryFolder.h"

namespace tessaly::tests {
namespace {

class OwnWorld final : public World {
 public:
  String folder() const override { return folder_.text(); }
  String put(std::u16string_view name, std::string_view bytes) override { return folder_.write(name, bytes); }

 private:
  TemporaryFolder folder_;
};

class FakeWorld final : public World {
 public:
  String folder() const override { return u"/texts"; }

  String put(std::u16string_view name, std::string_view bytes) override {
    String path = folder() + u"/" + String(name);
    files_.put(path, std::string(bytes));
    return path;
  }

 private:
  platform::fake::Files files_;
  platform::fake::Xml xml_;
  platform::Override filesInForce_{files_};
  platform::Override xmlInForce_{xml_};
};

}  // namespace

void PrintTo(Body body, std::ostream* out) {
  switch (body) {
    case Body::Own:
      *out << "Own";
      break;
    case Body::Fake:
      *out << "Fake";
      break;
    case Body::Toolkit:
      *out << "Toolkit";
      break;
  }
}

std::unique_ptr<World> World::make(Body body) {
  if (body == Body::Fake) return std::make_unique<FakeWorld>();
  return std::make_unique<OwnWorld>();
}

platform::Files& World::files() { return *platform::core().files; }
platform::Xml& World::xml() { return *platform::core().xml; }

}  // namespace tessaly::tests
