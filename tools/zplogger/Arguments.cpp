#include "tools/zplogger/Arguments.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

#include "tools/support/Utf8.h"
#include "tools/support/Visible.h"

namespace tessaly::zplogger {
namespace {

constexpr std::string_view kSuffixes = "KMG";
constexpr std::uint64_t kLargestSize = std::uint64_t{1} << 62U;

std::string quotedWord(std::string_view word) { return '"' + tools::visible(word) + '"'; }

std::optional<std::uint64_t> wholeNumber(std::string_view word) {
  std::uint64_t number = 0;
  const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), number);
  if (word.empty() || fault != std::errc() || end != word.data() + word.size()) return std::nullopt;
  return number;
}

/// A number of bytes, behind which K, M or G may stand.
std::optional<std::uint64_t> sizeIn(std::string_view word) {
  unsigned shift = 0;
  if (!word.empty()) {
    const char last = word.back() >= 'a' ? static_cast<char>(word.back() - 'a' + 'A') : word.back();
    const auto place = kSuffixes.find(last);
    if (place != std::string_view::npos) {
      shift = 10 * (static_cast<unsigned>(place) + 1);
      word.remove_suffix(1);
    }
  }
  const auto number = wholeNumber(word);
  if (!number || *number == 0 || *number > kLargestSize >> shift) return std::nullopt;
  return *number << shift;
}

class Parser {
 public:
  Parser(const std::vector<std::string>& words, Arguments& arguments)
      : words_(words), arguments_(arguments) {}

  std::string parse();

 private:
  void option(const std::string& word);
  bool flag(const std::string& word);
  bool followed(std::string_view name, const std::string& word, void (Parser::*store)(const std::string&));
  void storeLevel(const std::string& word);
  void storeText(const std::string& word);
  void storeSize(const std::string& word);
  void storeColour(const std::string& word);
  void fail(std::string message);

  const std::vector<std::string>& words_;
  Arguments& arguments_;
  std::size_t at_ = 0;
  std::string fault_;
};

void Parser::fail(std::string message) {
  if (fault_.empty()) fault_ = std::move(message);
}

std::string Parser::parse() {
  while (at_ < words_.size() && fault_.empty() && !arguments_.wantsHelp) option(words_[at_++]);
  if (arguments_.wantsHelp) return {};
  if (arguments_.wantsVersion && words_.size() > 1) fail("--version stands alone");
  return std::move(fault_);
}

void Parser::option(const std::string& word) {
  if (flag(word) || followed("--level", word, &Parser::storeLevel) ||
      followed("--text", word, &Parser::storeText) || followed("--max-size", word, &Parser::storeSize) ||
      followed("--color", word, &Parser::storeColour))
    return;
  fail((word.starts_with('-') ? "there is no option " : "there is a word too many, ") + quotedWord(word));
}

bool Parser::flag(const std::string& word) {
  if (word == "--no-log") {
    arguments_.writesLogs = false;
  } else if (word == "--version") {
    arguments_.wantsVersion = true;
  } else if (word == "--help" || word == "-h" || word == "/?" || word == "-?") {
    arguments_.wantsHelp = true;
  } else {
    return false;
  }
  return true;
}

/// Takes an option with a word, as --name WORD or --name=WORD.
bool Parser::followed(std::string_view name, const std::string& word,
                      void (Parser::*store)(const std::string&)) {
  if (word != name && !word.starts_with(std::string(name) + '=')) return false;
  if (word != name) {
    (this->*store)(word.substr(name.size() + 1));
  } else if (at_ < words_.size()) {
    (this->*store)(words_[at_++]);
  } else {
    fail("a word is missing behind " + word);
  }
  return true;
}

void Parser::storeLevel(const std::string& word) {
  const auto number = wholeNumber(word);
  if (!number || *number > 255) return fail(quotedWord(word) + " is no level; levels are 0 to 255");
  arguments_.level = static_cast<std::uint8_t>(*number);
}

void Parser::storeText(const std::string& word) {
  const auto text = tools::strictUtf8(word);
  if (!text) return fail("the word behind --text is no UTF-8");
  arguments_.text = *text;
}

void Parser::storeSize(const std::string& word) {
  const auto number = sizeIn(word);
  if (!number) return fail(quotedWord(word) + " is no size; sizes are such as 500K, 1M or 2G");
  arguments_.maxSize = *number;
}

void Parser::storeColour(const std::string& word) {
  if (word == "auto") {
    arguments_.colour = ColourChoice::Automatic;
  } else if (word == "always") {
    arguments_.colour = ColourChoice::Always;
  } else if (word == "never") {
    arguments_.colour = ColourChoice::Never;
  } else {
    fail("--color is auto, always or never, not " + quotedWord(word));
  }
}

}  // namespace

std::string parseArguments(const std::vector<std::string>& words, Arguments& arguments) {
  return Parser(words, arguments).parse();
}

}  // namespace tessaly::zplogger
