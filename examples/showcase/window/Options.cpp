#include "examples/showcase/window/Options.h"

#include "examples/showcase/window/Numbers.h"

namespace showcase {
namespace {

using tessaly::String;

void takeValue(Options& options, const String& word, const String& value) {
  if (word == u"--picture") {
    options.picture = value;
    if (value.empty()) options.fault = u"--picture needs the name of a file.";
  } else {
    options.language = numberOf(value);
    if (options.language.value_or(0) == 0) options.fault = u"\"" + value + u"\" is no number of a language.";
  }
}

}  // namespace

Options optionsOf(const std::vector<String>& words) {
  Options options;
  options.isHelpWanted = !words.empty() && words[0] == u"--help";
  if (options.isHelpWanted) return options;
  for (std::size_t i = 0; i < words.size() && options.fault.empty(); i += 2) {
    if (words[i] != u"--picture" && words[i] != u"--language") {
      options.fault = u"\"" + words[i] + u"\" is none of its arguments.";
    } else if (i + 1 == words.size()) {
      options.fault = words[i] + u" needs a word behind it.";
    } else {
      takeValue(options, words[i], words[i + 1]);
    }
  }
  return options;
}

}  // namespace showcase
