#include "tessaly/platform/keys/KeyLimits.h"
#include "tools/support/Visible.h"
#include "tools/tessaly-reg/Commands.h"
#include "tools/tessaly-reg/Failure.h"
#include "tools/tessaly-reg/ValueText.h"

namespace tessaly::reg {
namespace {

using namespace platform::registry_result;
using platform::KeyPlace;
using platform::KeyStore;
using platform::KeyValue;

constexpr std::u16string_view kDefaultSeparator = u"\\0";

/// Whether the value is there; `result` is not `kSuccess` where that can't be told.
bool exists(const KeyPlace& place, std::u16string_view name, Long& result) {
  KeyStore::Id key = 0;
  KeyValue ignored;
  result = place.store->find(place.from, place.names, key);
  if (result == kSuccess) result = place.store->value(key, name, ignored);
  const bool isThere = result == kSuccess;
  if (result == kNotFound || result == kKeyDeleted) result = kSuccess;
  return isThere;
}

Long check(const KeyPlace& place, const Arguments& arguments, const KeyValue& value) {
  if (place.store == nullptr || !place.store->isWritable()) return kAccessDenied;
  Long result = platform::checkPath(place.names);
  if (result == kSuccess) result = platform::checkValueName(arguments.valueName.value_or(String()));
  return result == kSuccess ? platform::checkValue(value) : result;
}

Long store(const KeyPlace& place, const Arguments& arguments, const KeyValue& value) {
  return resultOfChange(place.store->transact([&] {
    KeyStore::Id key = 0;
    const Long result = place.store->create(place.from, place.names, key);
    if (result != kSuccess || !arguments.valueName) return result;
    return place.store->setValue(key, *arguments.valueName, value);
  }));
}

/// Asks where there is a value already.
int confirmNew(const KeyPlace& place, const Arguments& arguments, Context& context) {
  Long result = kSuccess;
  if (!arguments.valueName || !exists(place, *arguments.valueName, result))
    return result == kSuccess ? kDone : fail(context, "can't change", arguments.key, result);
  const std::string name = tools::visible(shownName(*arguments.valueName));
  return confirm(context, arguments.isForced, "Value " + name + " exists, overwrite(Yes/No)? ",
                 "the value " + name + " exists already");
}

}  // namespace

int add(const Arguments& arguments, Context& context) {
  std::string fault;
  const std::u16string_view data = arguments.data ? *arguments.data : std::u16string_view();
  const auto value = typedValue(arguments.type.value_or(platform::kText), data,
                                arguments.separator ? *arguments.separator : kDefaultSeparator, fault);
  if (!value) {
    fail(context, "can't take the data " + tools::inQuotes(data), fault);
    return kWrongUsage;
  }
  KeyPlace place;
  Long result = context.keys.place(arguments.key, place);
  if (result == kSuccess) result = check(place, arguments, *value);
  if (result != kSuccess) return fail(context, "can't change", arguments.key, result);
  if (const int code = confirmNew(place, arguments, context); code != kDone) return code;
  result = store(place, arguments, *value);
  if (result != kSuccess) return fail(context, "can't change", arguments.key, result);
  context.out << "The operation completed successfully.\n";
  return kDone;
}

}  // namespace tessaly::reg
