#include "tools/zplogger/LineFormat.h"

#include <algorithm>

#include "tessaly/base/Text.h"
#include "tools/support/Visible.h"
#include "tools/zplogger/Columns.h"
#include "tools/zplogger/LogLine.h"

namespace tessaly::zplogger {
namespace {

constexpr std::size_t kMostClientColumns = 28;
constexpr std::size_t kLevelColumns = 3;
constexpr const char* kPlain = "\x1b[0m";

String visibleText(std::u16string_view text) { return fromUtf8(tools::visible(text)); }

/// Red stands in the lowest byte; the highest one means nothing.
std::string parts(std::uint32_t color) {
  return std::to_string(color & 0xFFU) + ';' + std::to_string((color >> 8U) & 0xFFU) + ';' +
         std::to_string((color >> 16U) & 0xFFU);
}

/// A blank on each side keeps the text clear of the edge of its background.
std::string inColours(const TraceRecord& record, const std::string& text) {
  return "\x1b[38;2;" + parts(record.foreColor) + ";48;2;" + parts(record.backColor) + "m " + text + ' ' +
         kPlain;
}

std::string levelText(std::uint8_t level) {
  std::string text = std::to_string(level);
  text.insert(0, kLevelColumns - text.size(), ' ');
  return text;
}

}  // namespace

std::string LineFormat::dim(const std::string& text) const {
  return hasColours_ ? "\x1b[2m" + text + kPlain : text;
}

std::string LineFormat::client(const Line& line) {
  const std::string process = line.process == 0 ? "" : '[' + std::to_string(line.process) + ']';
  const String name = fitting(visibleText(line.client), kMostClientColumns - process.size());
  const std::size_t columns = columnsOf(name) + process.size();
  clientColumns_ = std::max(clientColumns_, columns);
  return toUtf8(name) + (process.empty() ? process : dim(process)) +
         std::string(clientColumns_ - columns, ' ');
}

std::string LineFormat::line(const Line& line) {
  const std::string level = levelText(line.record.level);
  std::string result = dim(timeText(line.time)) + "  " + client(line) + "  ";
  result += line.record.level == 0 ? dim(level) : level;
  const std::string text = tools::visible(line.record.text);
  if (!text.empty()) result += hasColours_ ? ' ' + inColours(line.record, text) : "  " + text;
  return result + '\n';
}

std::string LineFormat::missed(const Missed& missed) const {
  const std::string count = std::to_string(missed.count);
  return dim("… " + count + (missed.count == 1 ? " line was not shown" : " lines were not shown")) + '\n';
}

std::string LineFormat::notice(const Notice& notice) const { return dim("zplogger: " + notice.text) + '\n'; }

}  // namespace tessaly::zplogger
