#include "examples/showcase/Table.h"

#include <algorithm>
#include <numeric>

namespace showcase {
namespace {

constexpr int kGap = 2;

tessaly::String repeated(char16_t c, int count) {
  return tessaly::String().append(static_cast<std::size_t>(count), c);
}

}  // namespace

Table::Table(const std::vector<tessaly::String>& headings) {
  for (const tessaly::String& heading : headings) {
    headings_.push_back(styled(heading, Style::Faint));
    widths_.push_back(displayWidth(headings_.back()));
  }
}

void Table::addRow(std::vector<StyledText> cells) {
  for (std::size_t i = 0; i < cells.size(); ++i) {
    cells[i] = inItsDirection(std::move(cells[i]));
    widths_[i] = std::max(widths_[i], displayWidth(cells[i]));
  }
  rows_.push_back(std::move(cells));
}

void Table::print(const Screen& screen) const {
  const int gaps = kGap * static_cast<int>(widths_.size() - 1);
  screen.line(lineOf(headings_));
  screen.line(repeated(u'─', std::accumulate(widths_.begin(), widths_.end(), gaps)), Style::Faint);
  for (const Row& row : rows_) screen.line(lineOf(row));
}

StyledText Table::lineOf(const Row& row) const {
  StyledText line;
  for (std::size_t i = 0; i < row.size(); ++i) {
    line.insert(line.end(), row[i].begin(), row[i].end());
    // Blanks behind the last cell would only be in the way of who copies the line.
    if (i + 1 < row.size())
      line.push_back({repeated(u' ', widths_[i] - displayWidth(row[i]) + kGap), Style::Plain});
  }
  return line;
}

}  // namespace showcase
