#include "tools/tessaly-reg/RegExport.h"

#include "tools/support/Visible.h"

namespace tessaly::reg {
namespace {

using namespace platform::registry_result;

/// What ends a walk at a name that can't be written.
constexpr Long kBadName = -1;

/// Others may write meanwhile; so often it is tried to see all keys in one state.
constexpr int kMostTries = 5;

class Export {
 public:
  Export(ExportNames names, std::u16string_view lineEnd) : names_(names), text_(lineEnd) {}

  Long key(const FoundKey& key);
  Exported take();

 private:
  bool mayWrite(std::u16string_view name) const;
  Long stopAt(const FoundKey& key, std::u16string_view name);

  ExportNames names_;
  RegText text_;
  Exported exported_;
};

bool Export::mayWrite(std::u16string_view name) const {
  return names_ == ExportNames::All || tools::isShowable(name);
}

Long Export::stopAt(const FoundKey& key, std::u16string_view name) {
  exported_.badName = name;
  exported_.culprit = key.name;
  return kBadName;
}

Long Export::key(const FoundKey& key) {
  std::vector<platform::NamedValue> values;
  if (const Long result = Keys::values(key, values); result != kSuccess) return result;
  if (!mayWrite(key.name) || !text_.key(key.name)) return stopAt(key, key.name);
  for (const platform::NamedValue& value : values) {
    if (!mayWrite(value.name) || !text_.value(value)) return stopAt(key, value.name);
  }
  ++exported_.keys;
  exported_.values += values.size();
  return kSuccess;
}

Exported Export::take() {
  exported_.text = text_.finish();
  return std::move(exported_);
}

std::uint64_t revisionOf(const FoundKey& key) { return key.store != nullptr ? key.store->revision() : 0; }

}  // namespace

Long exportTree(const Keys& keys, const FoundKey& key, ExportNames names, std::u16string_view lineEnd,
                Exported& exported) {
  Long result = kSuccess;
  for (int tries = 0; tries < kMostTries; ++tries) {
    const std::uint64_t before = revisionOf(key);
    Export attempt(names, lineEnd);
    result = keys.walk(key, [&](const FoundKey& inner) { return attempt.key(inner); });
    exported = attempt.take();
    if (result == kBadName || revisionOf(key) == before) break;
  }
  return result == kBadName ? kSuccess : result;
}

}  // namespace tessaly::reg
