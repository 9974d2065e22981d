#include "tools/support/Visible.h"
#include "tools/tessaly-reg/Commands.h"
#include "tools/tessaly-reg/Failure.h"
#include "tools/tessaly-reg/ValueText.h"

namespace tessaly::reg {
namespace {

using namespace platform::registry_result;
using platform::KeyStore;
using platform::KeyValue;

class Deletion {
 public:
  Deletion(const Arguments& arguments, Context& context) : arguments_(arguments), context_(context) {}

  int run();

 private:
  int deleteValue();
  int deleteAllValues();
  int deleteKey();
  Long removeAllValues();
  int end(Long result);

  const Arguments& arguments_;
  Context& context_;
  FoundKey key_;
};

int Deletion::end(Long result) {
  if (result != kSuccess) return fail(context_, "can't change", arguments_.key, result);
  context_.out << "The operation completed successfully.\n";
  return kDone;
}

int Deletion::deleteValue() {
  const std::string name = tools::visible(shownName(*arguments_.valueName));
  const std::string what = "can't delete the value " + name + " of " + tools::visible(key_.name);
  KeyValue ignored;
  const Long result =
      key_.store != nullptr ? key_.store->value(key_.id, *arguments_.valueName, ignored) : kNotFound;
  if (result == kNotFound) return fail(context_, what, "there is no such value");
  if (result != kSuccess) return end(result);
  const std::string question = "Delete the registry value " + name + " (Yes/No)? ";
  if (const int code = confirm(context_, arguments_.isForced, question, what); code != kDone) return code;
  return end(key_.store->removeValue(key_.id, *arguments_.valueName));
}

Long Deletion::removeAllValues() {
  if (key_.store == nullptr) return kSuccess;
  std::vector<platform::NamedValue> values;
  if (const Long result = Keys::values(key_, values); result != kSuccess) return result;
  for (const platform::NamedValue& value : values) {
    if (const Long result = key_.store->removeValue(key_.id, value.name); result != kSuccess) return result;
  }
  return kSuccess;
}

int Deletion::deleteAllValues() {
  const std::string name = tools::visible(key_.name);
  const std::string question = "Delete all values under the registry key " + name + " (Yes/No)? ";
  const int code = confirm(context_, arguments_.isForced, question, "can't delete the values of " + name);
  if (code != kDone) return code;
  return end(key_.store != nullptr ? key_.store->transact([this] { return removeAllValues(); }) : kSuccess);
}

int Deletion::deleteKey() {
  const std::string name = tools::visible(key_.name);
  const std::string what = "can't delete the key " + name;
  if (arguments_.key.path.empty() || key_.id == KeyStore::kRoot)
    return fail(context_, what, "it is always there; /va deletes its values");
  const std::string question = "Permanently delete the registry key " + name + " (Yes/No)? ";
  if (const int code = confirm(context_, arguments_.isForced, question, what); code != kDone) return code;
  return end(key_.store->transact([this] { return deleteTree(*key_.store, key_.id); }));
}

int Deletion::run() {
  const Long result = context_.keys.find(arguments_.key, key_);
  if (result != kSuccess) return fail(context_, "can't delete", arguments_.key, result);
  if (key_.store != nullptr && !key_.store->isWritable()) return end(kAccessDenied);
  if (arguments_.valueName) return deleteValue();
  return arguments_.allValues ? deleteAllValues() : deleteKey();
}

}  // namespace

int deleteKeyOrValue(const Arguments& arguments, Context& context) {
  return Deletion(arguments, context).run();
}

}  // namespace tessaly::reg
