#include "examples/showcase/window/Report.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "examples/showcase/window/Folded.h"
#include "tessaly/base/Text.h"

namespace showcase {
namespace {

using tessaly::Long;
using tessaly::String;

constexpr Long kRowsOfPage = 16;
constexpr Long kLeastZoom = 50;
constexpr Long kMostZoom = 200;

/// The first cell with a text, which is folded already.
std::optional<Long> columnWith(const ReportRow& row, std::u16string_view text) {
  const auto* const cell = std::find_if(row.cells.begin(), row.cells.end(), [&](const String& each) {
    return folded(each).find(text) != String::npos;
  });
  if (cell == row.cells.end()) return std::nullopt;
  return static_cast<Long>(cell - row.cells.begin());
}

}  // namespace

void Report::begin() {
  filter_.clear();
  seen_ = rowsWith(u"");
  sortedColumn_.reset();
  isDescending_ = false;
  selected_ = 0;
  page_ = 1;
}

void Report::beginNew() {
  name_.clear();
  rows_.clear();
  begin();
  isChanged_ = true;
}

void Report::take(std::u16string_view name, std::vector<ReportRow> rows) {
  name_ = name;
  rows_ = std::move(rows);
  begin();
  isChanged_ = false;
}

void Report::markSaved(std::u16string_view name) {
  name_ = name;
  isChanged_ = false;
}

void Report::sort(Column column, bool isDescending) {
  const auto isBefore = [column](const ReportRow& one, const ReportRow& other) {
    if (column == Column::Amount) return one.amount < other.amount;
    return folded(one.cell(column)) < folded(other.cell(column));
  };
  if (isDescending) {
    std::stable_sort(rows_.rbegin(), rows_.rend(), isBefore);  // equal rows keep their order from here too
  } else {
    std::stable_sort(rows_.begin(), rows_.end(), isBefore);
  }
  seen_ = rowsWith(filter_);
  sortedColumn_ = column;
  isDescending_ = isDescending;
  isChanged_ = true;
  select(0);
}

std::vector<std::size_t> Report::rowsWith(std::u16string_view text) const {
  std::vector<std::size_t> places;
  const String sought = folded(text);
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    if (sought.empty() || columnWith(rows_[i], sought)) places.push_back(i);
  }
  return places;
}

bool Report::filter(std::u16string_view text) {
  auto found = rowsWith(text);
  if (found.empty() && !text.empty()) return false;
  seen_ = std::move(found);
  filter_ = text;
  select(0);
  return true;
}

std::optional<Report::Place> Report::find(std::u16string_view text, Long from) const {
  const String sought = folded(text);
  for (auto place = static_cast<std::size_t>(std::max(from, 0)); place < seen_.size(); ++place) {
    const auto column = columnWith(rows_[seen_[place]], sought);
    if (column) return Place{static_cast<Long>(place), *column};
  }
  return std::nullopt;
}

void Report::turnTo(Long page) {
  page_ = std::clamp(page, 1, pages());
  selected_ = (page_ - 1) * kRowsOfPage;
}

void Report::select(Long row) {
  selected_ = std::clamp(row, 0, std::max(seenCount() - 1, 0));
  page_ = selected_ / kRowsOfPage + 1;
}

void Report::selectOnPage(Long row) { selected_ = (page_ - 1) * kRowsOfPage + row; }

void Report::zoomTo(Long percent) { zoom_ = std::clamp(percent, kLeastZoom, kMostZoom); }

Long Report::pages() const { return std::max(1, (seenCount() + kRowsOfPage - 1) / kRowsOfPage); }
bool Report::canZoomOut() const { return zoom_ > kLeastZoom; }
bool Report::canZoomIn() const { return zoom_ < kMostZoom; }

std::int64_t Report::total() const {
  return std::accumulate(seen_.begin(), seen_.end(), std::int64_t{0},
                         [&](std::int64_t sum, std::size_t place) { return sum + rows_[place].amount; });
}

std::vector<ReportRow> Report::seenRows() const {
  std::vector<ReportRow> rows;
  rows.reserve(seen_.size());
  for (const std::size_t place : seen_) rows.push_back(rows_[place]);
  return rows;
}

std::vector<ReportRow> Report::pageRows() const {
  std::vector<ReportRow> rows = seenRows();
  const auto begin = rows.begin() + std::ptrdiff_t{page_ - 1} * kRowsOfPage;
  return {begin, begin + std::min<std::ptrdiff_t>(kRowsOfPage, rows.end() - begin)};
}

Long Report::selectedOnPage() const { return seen_.empty() ? -1 : selected_ % kRowsOfPage; }

String amountText(std::int64_t amount) {
  std::string digits = std::to_string(amount < 0 ? -amount : amount);
  if (digits.size() < 3) digits.insert(0, 3 - digits.size(), '0');
  digits.insert(digits.size() - 2, 1, '.');
  return tessaly::fromUtf8((amount < 0 ? "-" : "") + digits);
}

}  // namespace showcase
