#include "tools/zplogger/Filter.h"

#include "tessaly/platform/Core.h"
#include "tools/support/Visible.h"

namespace tessaly::zplogger {
namespace {

String upperCased(std::u16string_view text) { return platform::core().locale->CharUpperW(text); }

}  // namespace

Filter::Filter(std::uint8_t level, std::u16string_view text)
    : level_(level), text_(text), upperCased_(text.empty() ? String() : zplogger::upperCased(text)) {}

bool Filter::takes(const Line& line) const {
  if (line.record.level < level_) return false;
  return upperCased_.empty() || zplogger::upperCased(line.record.text).find(upperCased_) != String::npos;
}

std::string Filter::inWords() const {
  const std::string which = level_ == 0 ? "every level" : "level " + std::to_string(level_) + " and above";
  return "lines of " + which + (text_.empty() ? "" : " with " + tools::inQuotes(text_));
}

}  // namespace tessaly::zplogger
