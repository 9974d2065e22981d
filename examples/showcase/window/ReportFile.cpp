#include "examples/showcase/window/ReportFile.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "examples/showcase/window/Paths.h"
#include "tessaly/base/Text.h"

namespace showcase {
namespace {

using tessaly::String;

constexpr std::string_view kHeadings = "Date,Owner,Type,Amount,Comment";
constexpr std::size_t kMostBytes = 1 << 20;
constexpr std::size_t kMostRows = 10000;
constexpr std::size_t kMostDigits = 12;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Cuts a line off the front of a text, with the end that any system gives it.
std::string_view takeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

/// Cuts a cell in quotation marks off the front of a line; none where the closing one is missing.
std::optional<std::string> takeQuoted(std::string_view& line) {
  std::string cell;
  for (std::size_t i = 1; i < line.size(); ++i) {
    if (line[i] != '"') {
      cell += line[i];
    } else if (line.substr(i + 1).starts_with('"')) {
      cell += line[i++];
    } else {
      line.remove_prefix(i + 1);
      return cell;
    }
  }
  return std::nullopt;
}

std::optional<std::string> takeCell(std::string_view& line) {
  if (line.starts_with('"')) return takeQuoted(line);
  const std::string_view cell = line.substr(0, line.find(','));
  line.remove_prefix(cell.size());
  if (cell.find('"') != std::string_view::npos) return std::nullopt;
  return std::string(cell);
}

/// The cells of a line, where it has just as many as there are columns.
std::optional<std::vector<std::string>> cellsOf(std::string_view line) {
  std::vector<std::string> cells;
  for (;;) {
    auto cell = takeCell(line);
    if (!cell) return std::nullopt;
    cells.push_back(std::move(*cell));
    if (line.empty()) break;
    if (!line.starts_with(',') || cells.size() == kReportColumns) return std::nullopt;
    line.remove_prefix(1);
  }
  return cells.size() == kReportColumns ? std::optional(std::move(cells)) : std::nullopt;
}

/// "2025-07".
bool isMonth(std::string_view text) {
  if (text.size() != 7 || text[4] != '-') return false;
  for (const std::size_t i : {0U, 1U, 2U, 3U, 5U, 6U}) {
    if (!isDigit(text[i])) return false;
  }
  const int month = (text[5] - '0') * 10 + (text[6] - '0');
  return month >= 1 && month <= 12;
}

/// "1250.00" in hundredths.
std::optional<std::int64_t> amountOf(std::string_view text) {
  const bool isNegative = text.starts_with('-');
  if (isNegative) text.remove_prefix(1);
  if (text.size() < 4 || text.size() > kMostDigits + 1 || text[text.size() - 3] != '.') return std::nullopt;
  std::int64_t amount = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i + 3 == text.size()) continue;
    if (!isDigit(text[i])) return std::nullopt;
    amount = amount * 10 + (text[i] - '0');
  }
  return isNegative ? -amount : amount;
}

bool isSeen(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

std::optional<ReportRow> rowOf(std::string_view line) {
  const auto cells = isSeen(line) ? cellsOf(line) : std::nullopt;
  if (!cells || !isMonth((*cells)[0])) return std::nullopt;
  const auto amount = amountOf((*cells)[static_cast<std::size_t>(Column::Amount)]);
  if (!amount) return std::nullopt;
  ReportRow row;
  row.amount = *amount;
  std::transform(cells->begin(), cells->end(), row.cells.begin(),
                 [](const std::string& cell) { return tessaly::fromUtf8(cell); });
  return row;
}

void addQuoted(std::string& text, const std::string& cell) {
  if (cell.find_first_of(",\"") == std::string::npos) {
    text += cell;
    return;
  }
  text += '"';
  for (const char c : cell) text.append(c == '"' ? 2 : 1, c);
  text += '"';
}

}  // namespace

std::optional<std::vector<ReportRow>> parseReport(std::string_view text) {
  if (text.size() > kMostBytes || tessaly::toUtf8(tessaly::fromUtf8(text)) != text) return std::nullopt;
  if (takeLine(text) != kHeadings) return std::nullopt;
  std::vector<ReportRow> rows;
  while (!text.empty()) {
    auto row = rowOf(takeLine(text));
    if (!row || rows.size() == kMostRows) return std::nullopt;
    rows.push_back(std::move(*row));
  }
  return rows;
}

std::string reportText(const std::vector<ReportRow>& rows) {
  std::string text = std::string(kHeadings) + '\n';
  for (const ReportRow& row : rows) {
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      if (i > 0) text += ',';
      addQuoted(text, tessaly::toUtf8(row.cells[i]));
    }
    text += '\n';
  }
  return text;
}

ReadReport readReport(const String& path) {
  std::error_code ignored;
  if (!std::filesystem::exists(pathOf(path), ignored)) return {FileFault::NotFound, {}};
  if (!std::filesystem::is_regular_file(pathOf(path), ignored)) return {FileFault::NotOpened, {}};
  std::ifstream file(pathOf(path), std::ios::binary);
  std::string text(kMostBytes + 1, '\0');
  if (!file) return {FileFault::NotOpened, {}};
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (file.bad()) return {FileFault::NotOpened, {}};
  text.resize(static_cast<std::size_t>(file.gcount()));
  auto rows = parseReport(text);
  if (!rows) return {FileFault::Damaged, {}};
  return {FileFault::None, std::move(*rows)};
}

bool writeReport(const String& path, const std::vector<ReportRow>& rows) {
  std::ofstream file(pathOf(path), std::ios::binary);
  file << reportText(rows);
  file.close();
  return !file.fail();
}

}  // namespace showcase
