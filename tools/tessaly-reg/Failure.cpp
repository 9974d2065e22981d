#include "tools/tessaly-reg/Failure.h"

#include "tools/support/Visible.h"

namespace tessaly::reg {
namespace {

using namespace platform::registry_result;

std::string fileOf(const NamedStore& named) { return tools::visible(named.file.string()); }

std::string hint(const Context& context, Long result, const platform::KeyStore* store) {
  const bool isMachines = store == context.stores.machine.store.get();
  const std::string file = fileOf(isMachines ? context.stores.machine : context.stores.user);
  if (result == kNotAHive || result == kCorrupt)
    return "The file is " + file +
           ". \"tessaly-reg repair\" saves what can be read of it, with /n it only looks.";
  if (result == kAccessDenied && isMachines)
    return "The machine's settings, " + file + ", are an administrator's to change: try sudo.";
  if (result == kAccessDenied) return "The file is " + file + "; it or its folder is not yours to use.";
  if (result == kBusy) return "The file is " + file + "; try again when they have written.";
  if (result == kDiskFull || result == kIoFailed) return "The file is " + file + ".";
  return {};
}

}  // namespace

std::string words(Long result) {
  switch (result) {
    case kNotFound:
      return "there is no such key";
    case kKeyDeleted:
      return "another program has just deleted the key";
    case kAccessDenied:
      return "permission denied";
    case kInvalidParameter:
      return "a name is too long or holds half a character, or there are too many of them";
    case kNoResources:
      return "the data is larger than 1 MiB";
    case kDiskFull:
      return "the disk is full";
    case kBadPathname:
      return "the name begins with a backslash";
    case kBusy:
      return "other programs are writing and gave no turn";
    case kNotAHive:
      return "the file is not one that holds settings, or of a later version";
    case kCorrupt:
      return "the file that holds the settings is damaged";
    case kIoFailed:
      return "the file that holds the settings can't be read or written";
    default:
      return "error " + std::to_string(result);
  }
}

int fail(Context& context, const std::string& what, Long result, const platform::KeyStore* store) {
  fail(context, what, words(result));
  const std::string more = store != nullptr ? hint(context, result, store) : std::string();
  if (!more.empty()) context.errors << more << '\n';
  return kFailed;
}

int fail(Context& context, const std::string& what, const std::string& why) {
  context.errors << "tessaly-reg: " << what << ": " << why << '\n';
  return kFailed;
}

int fail(Context& context, const std::string& what, const KeyName& key, Long result) {
  platform::KeyPlace place;
  context.keys.place(key, place);
  fail(context, what + ' ' + shownKey(key), result, place.store);
  if (place.store == nullptr && key.root == platform::kUsers) {
    context.errors << "HKEY_USERS shows the keys of the user who asks and no others, under "
                   << tools::visible(context.keys.userName()) << ".\n";
  }
  return kFailed;
}

std::string shownKey(const KeyName& key) {
  const String name(longName(key.root));
  return tools::visible(key.path.empty() ? name : name + u'\\' + key.path);
}

Long resultOfChange(Long result) { return result == kNotFound ? kIoFailed : result; }

int confirm(Context& context, bool isForced, const std::string& question, const std::string& what) {
  if (isForced) return kDone;
  const std::optional<bool> answer = context.ask(question);
  if (!answer)
    return fail(context, what, "there is no terminal to ask on; with /f it is done without asking");
  if (*answer) return kDone;
  context.errors << "Nothing was changed.\n";
  return kFailed;
}

}  // namespace tessaly::reg
