// A folder with very many files, most of them no use, is looked through in one pass.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>

#include "tessaly/localisation/CResources.h"
#include "tests/support/LanguageFolder.h"
#include "tests/support/Print.h"
#include "tests/support/World.h"

namespace tessaly {
namespace {

using tests::document;
using tests::general;
using tests::shown;
using tests::text;

/// Files that count how often each is read.
class CountedFiles final : public platform::Files {
 public:
  explicit CountedFiles(platform::Files& real) : real_(&real) {}

  char16_t separator() override { return real_->separator(); }
  std::optional<std::string> read(std::u16string_view path) override {
    ++reads[String(path)];
    return real_->read(path);
  }
  bool opens(std::u16string_view path) override { return real_->opens(path); }
  std::vector<String> list(std::u16string_view folder, std::u16string_view ending) override {
    ++listings;
    return real_->list(folder, ending);
  }

  std::map<String, int> reads;
  int listings = 0;

 private:
  platform::Files* real_;
};

String fileName(int n) { return fromUtf8(std::to_string(10000 + n) + ".xml"); }

std::string langName(int n) { return "Language " + std::to_string(n); }

/// One file of four is a language, one is another application's, one is broken, one has no language's name.
std::string contentOf(int n) {
  const std::array<std::string, 4> contents = {document(general(langName(n), n + 1) + text(1, langName(n))),
                                               document(general(langName(n), n + 1, "other")), "<broken",
                                               document(general("", n + 1))};
  return contents[static_cast<std::size_t>(n % 4)];
}

/// 2000 of these files make a list of 1000.
void expectTheList(CResources& resources) {
  ASSERT_EQ(resources.numberOfLangs(), 1000);
  for (Long position = 1; position <= 1000; position += 2) {
    const Long file = (position - 1) * 2;
    EXPECT_EQ(shown(resources.resLang(position)), langName(file));
    EXPECT_EQ(resources.resLangID(position), file + 1);
    EXPECT_EQ(resources.resLang(position + 1), u"");
    EXPECT_EQ(resources.resLangID(position + 1), 0);
  }
}

class ManyFilesTest : public testing::Test {
 protected:
  /// Puts them in another order than that of their names.
  void put(int count) {
    for (int i = count - 1; i >= 0; --i) folder_.put(fileName(i), contentOf(i));
  }

  std::ptrdiff_t xmlCalls(const char* call) const {
    return std::count(folder_.xml.calls().begin(), folder_.xml.calls().end(), call);
  }

  void prepare() {
    resources_.applicationGUID(u"G");
    resources_.resourcesPath(u"/texts");
  }

  tests::LanguageFolder folder_;
  CountedFiles files_{folder_.files};
  platform::Override filesInForce_{files_};
  CResources resources_;
};

TEST_F(ManyFilesTest, AreListedInTheOrderOfTheirNames) {
  put(2000);
  prepare();
  expectTheList(resources_);
}

TEST(ManyRealFilesTest, AreListedInTheOrderOfTheirNames) {
  const auto world = tests::World::make(tests::Body::Own);
  for (int i = 1999; i >= 0; --i) world->put(fileName(i), contentOf(i));
  CResources resources;
  resources.applicationGUID(u"G");
  resources.resourcesPath(world->folder());
  expectTheList(resources);
  resources.lang(1 + 1996);
  EXPECT_EQ(shown(resources.res(0)), langName(1996));
}

TEST_F(ManyFilesTest, AreReadOnceEach) {
  put(2000);
  prepare();
  resources_.numberOfLangs();
  resources_.resLang(7);
  resources_.resLangID(7);
  EXPECT_EQ(files_.listings, 1);
  EXPECT_EQ(files_.reads.size(), 2000U);
  EXPECT_TRUE(std::all_of(files_.reads.begin(), files_.reads.end(),
                          [](const auto& file) { return file.second == 1; }));
  EXPECT_EQ(xmlCalls("createDocument"), 2000);
  EXPECT_EQ(xmlCalls("load"), 2000);
  EXPECT_EQ(xmlCalls("release"), 2000);
}

TEST_F(ManyFilesTest, CostALanguageChoiceOneFileMore) {
  put(2000);
  prepare();
  resources_.lang(1 + 1996);
  EXPECT_EQ(shown(resources_.res(0)), "Language 1996");
  EXPECT_EQ(xmlCalls("load"), 2001);
}

TEST_F(ManyFilesTest, CostTwiceTheCallsForTwiceTheFiles) {
  std::ptrdiff_t calls[2] = {};
  for (const int round : {0, 1}) {
    put(round == 0 ? 500 : 1000);
    CResources resources;
    resources.applicationGUID(u"G");
    resources.resourcesPath(u"/texts");
    const auto before = static_cast<std::ptrdiff_t>(folder_.xml.calls().size());
    resources.numberOfLangs();
    calls[round] = static_cast<std::ptrdiff_t>(folder_.xml.calls().size()) - before;
  }
  EXPECT_GT(calls[0], 500);
  EXPECT_EQ(calls[1], 2 * calls[0]);
}

}  // namespace
}  // namespace tessaly
