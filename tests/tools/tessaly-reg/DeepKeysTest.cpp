// Trees that are very deep, and files made by hand that hold no tree.

#include <gtest/gtest.h>

#include "tessaly/base/Text.h"
#include "tests/tools/tessaly-reg/Tool.h"

namespace tessaly::tests {
namespace {

using platform::KeyPath;
using platform::KeyStore;

/// A store whose keys all have the same subkeys.
class EndlessKeys final : public KeyStore {
 public:
  /// `step` is what a subkey's number is more than its key's; with 0, all keys below the root are one.
  EndlessKeys(Id step, std::vector<String> names) : step_(step), names_(std::move(names)) {}

  std::uint64_t revision() override { return 1; }
  bool isWritable() override { return true; }
  Long find(Id from, KeyPath path, Id& key) override {
    const bool isRing = step_ == 0 && !path.empty();
    key = isRing ? kRing : from + step_ * static_cast<Id>(path.size());
    return 0;
  }
  Long create(Id from, KeyPath path, Id& key) override { return find(from, path, key); }
  Long remove(Id /*from*/, KeyPath /*path*/) override { return 0; }
  Long subkeys(Id /*key*/, std::vector<String>& names) override {
    ++listings;
    names = names_;
    return 0;
  }
  Long value(Id /*key*/, std::u16string_view /*name*/, platform::KeyValue& /*value*/) override {
    return platform::registry_result::kNotFound;
  }
  Long setValue(Id /*key*/, std::u16string_view /*name*/, const platform::KeyValue& /*value*/) override {
    return 0;
  }
  Long removeValue(Id /*key*/, std::u16string_view /*name*/) override { return 0; }
  Long values(Id /*key*/, std::vector<platform::NamedValue>& values) override {
    values.clear();
    return 0;
  }
  Long transact(const std::function<Long()>& changes) override { return changes(); }

  int listings = 0;

 private:
  static constexpr Id kRing = kRoot + 1;

  Id step_;
  std::vector<String> names_;
};

// Such a file was gone through without an end.
TEST(RegDeepKeys, EndInAFailureWhereTheyAreNoTree) {
  for (const KeyStore::Id step : {0, 1}) {
    for (const std::vector<std::string>& words : {std::vector<std::string>{"query", "HKCU", "/s"},
                                                  {"export", "HKU", "-"},
                                                  {"delete", "HKCU\\A", "/f"}}) {
      Tool tool;
      const auto keys = std::make_shared<EndlessKeys>(step, std::vector<String>{u"A", u"B"});
      tool.userInForce = keys;
      EXPECT_EQ(tool.run(words), 1) << words[0] << ' ' << step;
      EXPECT_NE(tool.errors.find("is damaged"), std::string::npos) << tool.errors;
      EXPECT_LE(keys->listings, 520) << words[0] << ' ' << step;
    }
  }
}

TEST(RegDeepKeys, AreTakenAsFarAsAStoreTakesThem) {
  Tool tool;
  String path;
  for (int i = 0; i < 512; ++i) path += u"\\k" + String(1, static_cast<char16_t>(u'a' + i % 26));
  const std::string key = "HKCU" + toUtf8(path);
  EXPECT_EQ(tool.run({"add", key}), 0) << tool.errors;
  EXPECT_EQ(tool.run({"query", "HKU", "/s"}), 0) << tool.errors;
  EXPECT_NE(tool.out.find("\nHKEY_USERS\\S-1-22-1-1000" + toUtf8(path) + "\n"), std::string::npos);
  EXPECT_EQ(tool.run({"add", key + "\\k"}), 1);
  EXPECT_EQ(tool.run({"delete", "HKCU\\ka", "/f"}), 0) << tool.errors;
  EXPECT_EQ(tool.exported("HKCU"), regFile("[HKEY_CURRENT_USER]\n\n"));
}

}  // namespace
}  // namespace tessaly::tests
