#include "tools/tessaly-reg/RegScanner.h"

#include <algorithm>

#include "tools/tessaly-reg/KeyName.h"

namespace tessaly::reg {
namespace {

constexpr std::u16string_view kLineEnds = u"\r\n";

bool isBlank(char16_t unit) { return unit == u' ' || unit == u'\t'; }
bool isLineEnd(char16_t unit) { return unit == u'\r' || unit == u'\n'; }

}  // namespace

bool RegScanner::atLineEnd() const { return atEnd() || isLineEnd(front()) || front() == u';'; }

bool RegScanner::take(char16_t unit) {
  if (atEnd() || front() != unit) return false;
  ++place_.at;
  return true;
}

bool RegScanner::takeWord(std::u16string_view word) {
  if (!isWord(rest().substr(0, word.size()), word)) return false;
  place_.at += word.size();
  return true;
}

void RegScanner::skipBlanks() {
  while (!atEnd() && isBlank(front())) ++place_.at;
}

void RegScanner::skipBlanksAndContinuations() {
  for (;;) {
    skipBlanks();
    const Place before = place_;
    if (!take(u'\\')) return;
    skipBlanks();
    if (!atLineEnd() || atEnd()) return goTo(before);
    nextLine();
  }
}

std::u16string_view RegScanner::takeLine() {
  const std::u16string_view line = rest().substr(0, rest().find_first_of(kLineEnds));
  place_.at += line.size();
  return line;
}

void RegScanner::nextLine() {
  takeLine();
  if (atEnd()) return;
  if (!(take(u'\r') && !take(u'\n'))) take(u'\n');
  ++place_.line;
}

void RegScanner::skipContinuedLines() {
  for (;;) {
    const std::u16string_view line = takeLine();
    const std::size_t last = line.find_last_not_of(u" \t");
    const bool isContinued = last != std::u16string_view::npos && line[last] == u'\\';
    if (!isContinued || atEnd()) return;
    nextLine();
  }
}

void RegScanner::advanceOver(std::u16string_view passed) {
  for (std::size_t i = 0; i < passed.size(); ++i) {
    const bool isPair = passed[i] == u'\r' && i + 1 < passed.size() && passed[i + 1] == u'\n';
    if (isLineEnd(passed[i]) && !isPair) ++place_.line;
  }
  place_.at += passed.size();
}

RegScanner::Quote RegScanner::takeQuoted(String& text) {
  for (;;) {
    const std::u16string_view plain = rest().substr(0, rest().find_first_of(u"\"\\"));
    text += plain;
    advanceOver(plain);
    if (atEnd()) return Quote::Open;
    if (take(u'"')) return Quote::Closed;
    const std::u16string_view escape = rest().substr(0, 2);
    if (escape != u"\\\\" && escape != u"\\\"") return Quote::BadEscape;
    text += escape.back();
    place_.at += escape.size();
  }
}

}  // namespace tessaly::reg
