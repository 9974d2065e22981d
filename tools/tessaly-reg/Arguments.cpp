#include "tools/tessaly-reg/Arguments.h"

#include <algorithm>
#include <array>
#include <set>

#include "tessaly/base/Ascii.h"
#include "tools/support/Utf8.h"
#include "tools/support/Visible.h"
#include "tools/tessaly-reg/ValueText.h"

namespace tessaly::reg {
namespace {

/// What the words of a command may be.
struct Syntax {
  Command command;
  std::string_view word;
  bool takesKey;
  bool takesFile;
  bool needsFile;

  /// Option words, each between blanks; behind one that a word follows stands a '='.
  std::string_view options;
};

constexpr std::array kCommands = {
    Syntax{Command::Query, "query", true, false, false, " v= ve s f= t= "},
    Syntax{Command::Add, "add", true, false, false, " v= ve t= s= d= f "},
    Syntax{Command::Delete, "delete", true, false, false, " v= ve va f "},
    Syntax{Command::Export, "export", true, true, true, " y "},
    Syntax{Command::Import, "import", false, true, true, " n "},
    Syntax{Command::Repair, "repair", false, true, false, " n "},
};

/// The effort of a search grows with the pattern's length.
constexpr std::size_t kLongestPattern = 1000;

std::string quotedWord(std::string_view word) { return '"' + tools::visible(word) + '"'; }

class Parser {
 public:
  Parser(const std::vector<std::string>& words, Arguments& arguments)
      : words_(words), arguments_(arguments) {}

  std::string parse();

 private:
  bool fileOption(const std::string& word, const std::string& name, std::optional<std::string>& file);
  bool common(const std::string& word);
  bool option(const std::string& word);
  void store(const std::string& option, const std::string& word);
  void storeText(const std::string& option, const String& text);
  void storeFlag(const std::string& option);
  bool looksLikeOption(const std::string& word) const;
  void plain(const std::string& word);
  void command(const std::string& word);
  void key(const std::string& word);
  void checkWhole();
  void checkAdd();
  std::string next(const std::string& option);
  void fail(std::string message);

  const std::vector<std::string>& words_;
  Arguments& arguments_;
  std::size_t at_ = 0;
  const Syntax* syntax_ = nullptr;
  bool hasKey_ = false;
  bool hasUnnamed_ = false;
  std::set<std::string> given_;
  std::string fault_;
};

void Parser::fail(std::string message) {
  if (fault_.empty()) fault_ = std::move(message);
}

std::string Parser::parse() {
  while (at_ < words_.size() && fault_.empty() && !arguments_.wantsHelp) {
    const std::string& word = words_[at_++];
    if (!common(word) && !option(word)) plain(word);
  }
  if (arguments_.wantsHelp) return {};
  if (!arguments_.wantsVersion) {
    checkWhole();
  } else if (words_.size() > 1) {
    fail("--version stands alone");
  }
  return std::move(fault_);
}

/// The word behind an option.
std::string Parser::next(const std::string& option) {
  if (at_ < words_.size()) return words_[at_++];
  fail("a word is missing behind " + option);
  return {};
}

/// Takes an option with a file, as --name FILE or --name=FILE.
bool Parser::fileOption(const std::string& word, const std::string& name, std::optional<std::string>& file) {
  if (word != name && !word.starts_with(name + '=')) return false;
  if (file) fail(name + " is given twice");
  file = word == name ? next(word) : word.substr(name.size() + 1);
  if (file->empty()) fail("the name of the file behind " + name + " is empty");
  return true;
}

bool Parser::common(const std::string& word) {
  if (fileOption(word, "--user", arguments_.userFile) ||
      fileOption(word, "--machine", arguments_.machineFile))
    return true;
  if (word == "--version") {
    arguments_.wantsVersion = true;
  } else if (word == "--help" || word == "-h" || word == "/?" || word == "-?") {
    arguments_.wantsHelp = true;
  } else {
    return false;
  }
  return true;
}

/// A word that begins as an option does and is none of the command's may still be a file's path.
bool Parser::option(const std::string& word) {
  if (syntax_ == nullptr || word.size() < 2 || (word[0] != '/' && word[0] != '-')) return false;
  const std::string option = asciiLowerText(std::string_view(word).substr(1));
  const bool isFlag = syntax_->options.find(' ' + option + ' ') != std::string_view::npos;
  const bool isFollowed = syntax_->options.find(' ' + option + "= ") != std::string_view::npos;
  if (!isFlag && !isFollowed) return false;
  if (!given_.insert(option).second) {
    fail("/" + option + " is given twice");
  } else if (isFollowed) {
    store(option, next(word));
  } else {
    storeFlag(option);
  }
  return true;
}

void Parser::store(const std::string& option, const std::string& word) {
  const auto text = tools::strictUtf8(word);
  if (!text) return fail("the word behind /" + option + " is no UTF-8");
  if (option == "t") {
    arguments_.type = typeNamed(*text);
    if (!arguments_.type)
      fail("there is no type " + quotedWord(word) + "; types are REG_SZ, REG_DWORD and so on");
  } else {
    storeText(option, *text);
  }
}

void Parser::storeText(const std::string& option, const String& text) {
  if (option == "v") {
    arguments_.valueName = text;
  } else if (option == "d") {
    arguments_.data = text;
  } else if (option == "f") {
    arguments_.pattern = text;
    if (text.size() > kLongestPattern)
      fail("the pattern behind /f is over " + std::to_string(kLongestPattern) + " characters long");
  } else {
    arguments_.separator = text;
    if (text.empty()) fail("the separator behind /s is empty");
  }
}

void Parser::storeFlag(const std::string& option) {
  if (option == "ve") {
    hasUnnamed_ = true;
  } else if (option == "va") {
    arguments_.allValues = true;
  } else if (option == "s") {
    arguments_.subkeysToo = true;
  } else if (option == "n") {
    arguments_.isPreview = true;
  } else {
    arguments_.isForced = true;
  }
}

/// A path may begin with a slash too, but then it is longer.
bool Parser::looksLikeOption(const std::string& word) const {
  if (word.size() < 2) return false;
  return word[0] == '-' || (word[0] == '/' && (word.size() <= 3 || !syntax_->takesFile));
}

void Parser::plain(const std::string& word) {
  if (syntax_ == nullptr) return command(word);
  if (syntax_->takesKey && !hasKey_) return key(word);
  if (looksLikeOption(word)) return fail(std::string(syntax_->word) + " has no option " + quotedWord(word));
  if (!syntax_->takesFile || arguments_.file) return fail("there is a word too many, " + quotedWord(word));
  arguments_.file = word;
  if (word.empty()) fail("the name of the file is empty");
}

void Parser::command(const std::string& word) {
  const std::string lower = asciiLowerText(word);
  const auto* const found = std::find_if(kCommands.begin(), kCommands.end(),
                                         [&](const Syntax& known) { return known.word == lower; });
  if (found == kCommands.end()) return fail("there is no command " + quotedWord(word));
  syntax_ = found;
  arguments_.command = found->command;
}

void Parser::key(const std::string& word) {
  hasKey_ = true;
  const auto text = tools::strictUtf8(word);
  if (!text) return fail("the name of the key is no UTF-8");
  const auto named = keyNamed(*text);
  if (named) {
    arguments_.key = *named;
    return;
  }
  // A shell takes a backslash away where no quotes are around it.
  const bool isUnquoted = text->starts_with(u"HK") && text->find(u'\\') == String::npos;
  fail(quotedWord(word) +
       (isUnquoted ? " is no key. Put the key in quotes, or the shell takes the backslashes: 'HKCU\\Software'"
                   : " is no key; keys begin with HKLM, HKCU, HKCR, HKU or HKCC"));
}

void Parser::checkWhole() {
  if (syntax_ == nullptr) return fail("a command is missing: query, add, delete, export, import or repair");
  const std::string command(syntax_->word);
  if (syntax_->takesKey && !hasKey_) return fail(command + " needs a key, such as 'HKCU\\Software'");
  if (syntax_->needsFile && !arguments_.file) return fail(command + " needs the name of a file");
  const int values = int(arguments_.valueName.has_value()) + int(hasUnnamed_) + int(arguments_.allValues);
  if (values > 1) return fail("only one of /v, /ve and /va can be given");
  if (hasUnnamed_) arguments_.valueName = String();
  if (arguments_.command == Command::Add) checkAdd();
}

void Parser::checkAdd() {
  if (arguments_.separator && arguments_.type != platform::kTexts)
    return fail("/s is for the texts of REG_MULTI_SZ: give /t REG_MULTI_SZ too");
  // As data without a name goes to the unnamed value on Windows.
  if ((arguments_.type || arguments_.data) && !arguments_.valueName) arguments_.valueName = String();
}

}  // namespace

std::string parseArguments(const std::vector<std::string>& words, Arguments& arguments) {
  return Parser(words, arguments).parse();
}

}  // namespace tessaly::reg
