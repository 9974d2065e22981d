#include "tessaly/platform/Core.h"
#include "tools/support/Visible.h"
#include "tools/tessaly-reg/Commands.h"
#include "tools/tessaly-reg/Failure.h"
#include "tools/tessaly-reg/Pattern.h"
#include "tools/tessaly-reg/ValueText.h"

namespace tessaly::reg {
namespace {

using namespace platform::registry_result;
using platform::NamedValue;

constexpr std::string_view kIndent = "    ";

std::u16string_view lastName(std::u16string_view name) { return name.substr(name.rfind(u'\\') + 1); }

class Query {
 public:
  Query(const Arguments& arguments, Context& context);

  int run();

 private:
  bool isSearch() const { return hasFilter_ && (arguments_.subkeysToo || pattern_ || arguments_.type); }
  bool matches(const NamedValue& value) const;
  bool matchesName(const FoundKey& key) const;
  Long show(const FoundKey& key, bool isFirst);
  void showKey(const FoundKey& key, const std::vector<NamedValue>& values);
  Long showSubkeys(const FoundKey& key);
  Long visit(const FoundKey& key);
  Long visitAll(const FoundKey& key);
  int end(const FoundKey& key, Long result);

  const Arguments& arguments_;
  Context& context_;
  std::optional<Pattern> pattern_;
  std::optional<String> upperName_;
  bool hasFilter_;
  std::size_t found_ = 0;
};

Query::Query(const Arguments& arguments, Context& context)
    : arguments_(arguments),
      context_(context),
      hasFilter_(arguments.valueName || arguments.pattern || arguments.type) {
  if (arguments.pattern) pattern_.emplace(*arguments.pattern);
  if (arguments.valueName) upperName_ = platform::core().locale->CharUpperW(*arguments.valueName);
}

bool Query::matches(const NamedValue& value) const {
  if (upperName_ && platform::core().locale->CharUpperW(value.name) != *upperName_) return false;
  if (arguments_.type && value.value.type != *arguments_.type) return false;
  if (!pattern_ || pattern_->isIn(shownData(value.value))) return true;
  return !upperName_ && pattern_->isIn(shownName(value.name));
}

/// Keys are looked for by name only where no value is.
bool Query::matchesName(const FoundKey& key) const {
  return pattern_ && !upperName_ && !arguments_.type && pattern_->isIn(lastName(key.name));
}

void Query::showKey(const FoundKey& key, const std::vector<NamedValue>& values) {
  context_.out << '\n' << tools::visible(key.name) << '\n';
  for (const NamedValue& value : values) {
    context_.out << kIndent << tools::visible(shownName(value.name)) << kIndent
                 << tools::visible(typeName(value.value.type)) << kIndent
                 << tools::visible(shownData(value.value)) << '\n';
  }
}

/// A key with those of its values that are asked for. The first key's own name is no find.
Long Query::show(const FoundKey& key, bool isFirst) {
  std::vector<NamedValue> values;
  if (const Long result = Keys::values(key, values); result != kSuccess) return result;
  std::erase_if(values, [this](const NamedValue& value) { return !matches(value); });
  const bool isNamed = !isFirst && matchesName(key);
  found_ += values.size() + (isNamed ? 1 : 0);
  if (!hasFilter_ || isNamed || !values.empty()) showKey(key, values);
  return kSuccess;
}

Long Query::showSubkeys(const FoundKey& key) {
  std::vector<String> names;
  if (const Long result = context_.keys.subkeys(key, names); result != kSuccess) return result;
  FoundKey subkey;
  for (const String& name : names) {
    subkey.name = key.name + u'\\' + name;
    if (hasFilter_ && !matchesName(subkey)) continue;
    // The subkeys of a whole key are one list, found ones stand for themselves.
    if (found_++ == 0 || hasFilter_) context_.out << '\n';
    context_.out << tools::visible(subkey.name) << '\n';
  }
  return kSuccess;
}

Long Query::visitAll(const FoundKey& key) {
  bool isFirst = true;
  return context_.keys.walk(key, [&](const FoundKey& inner) {
    const Long result = show(inner, isFirst);
    isFirst = false;
    return result;
  });
}

Long Query::visit(const FoundKey& key) {
  if (arguments_.subkeysToo) return visitAll(key);
  if (const Long result = show(key, true); result != kSuccess) return result;
  if (!hasFilter_) found_ = 0;
  return !hasFilter_ || pattern_ ? showSubkeys(key) : kSuccess;
}

int Query::end(const FoundKey& key, Long result) {
  const std::string name = tools::visible(key.name);
  if (result != kSuccess) return fail(context_, "can't read " + name, result, key.store);
  if (isSearch()) {
    context_.out << "\nEnd of search: " << found_ << (found_ == 1 ? " match" : " matches") << " found.\n";
    return found_ > 0 ? kDone : kFailed;
  }
  if (hasFilter_ && found_ == 0) {
    const std::string value = tools::visible(shownName(*arguments_.valueName));
    return fail(context_, "can't read the value " + value + " of " + name, "there is no such value");
  }
  context_.out << '\n';
  return kDone;
}

int Query::run() {
  FoundKey key;
  const Long result = context_.keys.find(arguments_.key, key);
  if (result != kSuccess) return fail(context_, "can't read", arguments_.key, result);
  return end(key, visit(key));
}

}  // namespace

int query(const Arguments& arguments, Context& context) { return Query(arguments, context).run(); }

}  // namespace tessaly::reg
