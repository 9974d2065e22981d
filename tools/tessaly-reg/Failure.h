#pragma once

#include <string>

#include "tools/tessaly-reg/Context.h"

/// Messages of what went wrong, on the stream for errors.
namespace tessaly::reg {

/// A number of `registry_result` in words.
std::string words(Long result);

/// The result of a change that makes the keys it needs: what it did not find is the folder of the file.
Long resultOfChange(Long result);

/// Says what was tried and why it failed, with a hint where there is one, and gives `kFailed`. The store is
/// the one that gave the result, or nothing.
int fail(Context& context, const std::string& what, Long result, const platform::KeyStore* store);

/// The same, with a reason in words.
int fail(Context& context, const std::string& what, const std::string& why);

/// The same, of a key that was named.
int fail(Context& context, const std::string& what, const KeyName& key, Long result);

/// A key as it was named, with the long name of its predefined key, for people.
std::string shownKey(const KeyName& key);

/// Asks before something is lost; `kDone` where it may be. `what` is said where nobody is there to ask.
int confirm(Context& context, bool isForced, const std::string& question, const std::string& what);

}  // namespace tessaly::reg
