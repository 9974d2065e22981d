// Any bytes as the block: whatever record they make, what is shown and written of it is one line without an
// order to a terminal, and a path is refused or in its plain form.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>

#include "tessaly/base/Text.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Locale.h"
#include "tools/support/Visible.h"
#include "tools/zplogger/LineFormat.h"
#include "tools/zplogger/LogLine.h"
#include "tools/zplogger/LogPath.h"

namespace {

using namespace tessaly;
using namespace tessaly::zplogger;

constexpr Long kCodePages[] = {874,  932,  936,  949,  950,  1250, 1251, 1252,
                               1253, 1254, 1255, 1256, 1257, 1258, 65001};

void require(bool condition) {
  if (!condition) std::abort();
}

bool isOneLine(std::string_view text) {
  if (!text.ends_with('\n')) return false;
  text.remove_suffix(1);
  const String wide = fromUtf8(text);
  return tools::isShowable(wide) && toUtf8(wide) == text;
}

/// Takes the orders away that give colours: digits and semicolons between "ESC[" and 'm'.
std::string withoutColours(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::size_t end = text.starts_with("\x1b[") ? text.find_first_not_of("0123456789;", 2) : 0;
    const bool isColour = end > 2 && end < text.size() && text[end] == 'm';
    if (!isColour) result += text.front();
    text.remove_prefix(isColour ? end + 1 : 1);
  }
  return result;
}

void useLine(const Line& line) {
  require(isOneLine(LineFormat(false).line(line)));
  require(isOneLine(withoutColours(LineFormat(true).line(line))));
}

void useTrace(const TraceRecord& record) {
  require(record.text.size() <= kBlockSize);
  const std::string line = logLine({}, record, u"Host");
  require(isOneLine(line) && beginsAsLog(line));
  useLine({{}, u"Host", 7, record});
}

void usePath(const String& text) {
  const LogPath path = logPath(text);
  require(path.path.empty() == path.key.empty());
  require(path.fault.empty() || path.path.empty());
  if (path.path.empty()) return;
  const LogPath again = logPath(path.path);
  require(again.path == path.path && again.key == path.key);
}

void useClient(const ClientRecord& record) {
  require(record.name.size() + record.logFile.size() + record.backupFile.size() <= kBlockSize);
  require(isOneLine(logLine({}, {}, record.name)));
  useLine({{}, record.name, 4'294'967'295, {}});
  usePath(record.logFile);
  usePath(record.backupFile);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  platform::fake::Locale locale(1033, u".", kCodePages[size % std::size(kCodePages)]);
  const platform::Override localeInForce(locale);
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (const auto trace = readTraceRecord(bytes)) useTrace(*trace);
  if (const auto client = readClientRecord(bytes)) useClient(*client);
  return 0;
}
