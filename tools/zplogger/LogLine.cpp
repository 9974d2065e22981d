#include "tools/zplogger/LogLine.h"

#include <algorithm>

#include "tools/support/Visible.h"

namespace tessaly::zplogger {
namespace {

constexpr std::string_view kStampForm = "0000-00-00 00:00:00.000 ";
static_assert(kStampForm.size() == kStampSize);

bool suits(char form, char c) { return form == '0' ? c >= '0' && c <= '9' : c == form; }

void append(std::string& text, int number, std::size_t digits) {
  const std::string plain = std::to_string(number);
  text.append(digits - std::min(digits, plain.size()), '0');
  text += plain;
}

std::string dateText(const LocalTime& time) {
  std::string result;
  append(result, time.year, 4);
  append(result += '-', time.month, 2);
  append(result += '-', time.day, 2);
  return result;
}

}  // namespace

std::string timeText(const LocalTime& time) {
  std::string result;
  append(result, time.hour, 2);
  append(result += ':', time.minute, 2);
  append(result += ':', time.second, 2);
  append(result += '.', time.millisecond, 3);
  return result;
}

std::string logLine(const LocalTime& time, const TraceRecord& record, std::u16string_view client) {
  std::string line = dateText(time) + ' ' + timeText(time) + ' ' + std::to_string(record.level) + ' ';
  line += tools::visible(client);
  line += ' ';
  line += tools::visible(record.text);
  line += '\n';
  return line;
}

bool beginsAsLog(std::string_view bytes) {
  return bytes.size() >= kStampSize &&
         std::equal(kStampForm.begin(), kStampForm.end(), bytes.begin(), &suits);
}

}  // namespace tessaly::zplogger
