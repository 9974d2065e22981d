#include "tools/zplogger/Printer.h"

#include <algorithm>
#include <utility>

#include "tessaly/base/Text.h"
#include "tessaly/base/Unicode.h"
#include "tools/support/Visible.h"
#include "tools/zplogger/Columns.h"

namespace tessaly::zplogger {
namespace {

std::string waitingText(std::size_t count) {
  return count == 0 ? "" : count == 1 ? ", 1 line waits" : ", " + std::to_string(count) + " lines wait";
}

/// Of a text that is too long the end stays, since that is what is being typed.
String endOf(String text, std::size_t columns) {
  while (columnsOf(text) > columns)
    text.erase(0, unicode::frontOf(text).value_or(unicode::CodePoint{0, 1}).units);
  return text;
}

std::string statusText(const Status& status, std::size_t columns) {
  const std::size_t room = columns - std::min<std::size_t>(columns, 1);
  if (room == 0) return {};
  if (status.typed) return toUtf8(u'/' + endOf(fromUtf8(tools::visible(*status.typed)), room - 1));
  std::string text = "-- paused";
  text += waitingText(status.waiting) + "; space goes on --";
  return toUtf8(fitting(fromUtf8(text), room));
}

}  // namespace

Written Printer::run() {
  for (;;) {
    const View::Work work = view_.next();
    if (!work.entries.empty() || work.status != drawn_) clearStatus();
    const Written written = print(work.entries);
    if (written != Written::Done || work.isLast) return written;
    draw(work.status);
  }
}

Written Printer::print(const std::vector<Entry>& entries) {
  for (const Entry& entry : entries) {
    if (const Line* line = std::get_if<Line>(&entry)) {
      buffer_ += lines_.line(*line);
    } else if (const Missed* missed = std::get_if<Missed>(&entry)) {
      buffer_ += lines_.missed(*missed);
    } else {
      const Written written = flush();
      if (written != Written::Done) return written;
      // Where nobody reads what the tool says, it still shows lines.
      errors_.write(notices_.notice(std::get<Notice>(entry)));
    }
  }
  return flush();
}

Written Printer::flush() {
  const std::string bytes = std::exchange(buffer_, {});
  return bytes.empty() ? Written::Done : out_.write(bytes);
}

void Printer::draw(const Status& status) {
  if (!status.isHeld() || status == drawn_) return;
  const std::size_t columns = errors_.columns();
  if (columns == 0) return;
  errors_.write(statusText(status, columns));
  drawn_ = status;
}

void Printer::clearStatus() {
  if (std::exchange(drawn_, {}).isHeld()) errors_.write("\r\x1b[K");
}

}  // namespace tessaly::zplogger
