#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "examples/showcase/window/ReportRow.h"

namespace showcase {

/// The report that is open: its rows, which of them are seen and in which order, page by page. It knows
/// neither of files nor of languages.
class Report {
 public:
  /// An empty one without a name, which is not saved yet.
  void beginNew();

  /// The rows of a file.
  void take(std::u16string_view name, std::vector<ReportRow> rows);

  /// It is in that file now, as it is.
  void markSaved(std::u16string_view name);

  /// Puts the rows in the order of a column.
  void sort(Column column, bool isDescending);

  /// Shows only rows with a cell that has this text, capitals or not; with an empty text all of them. Where
  /// no row has it, false, and all stays as it is.
  bool filter(std::u16string_view text);

  /// A cell by its row among those that are seen, and its column, from 0.
  struct Place {
    tessaly::Long row = 0;
    tessaly::Long column = 0;
  };

  /// The first row with this text, from a seen row on, and the first of its cells that has it.
  std::optional<Place> find(std::u16string_view text, tessaly::Long from) const;

  void turnTo(tessaly::Long page);

  /// Turns to a seen row's page and selects it, counted from 0.
  void select(tessaly::Long row);

  /// Selects a row of the page, which has it.
  void selectOnPage(tessaly::Long row);
  void zoomTo(tessaly::Long percent);

  /// Empty for one that has no file yet.
  const tessaly::String& name() const { return name_; }
  bool isChanged() const { return isChanged_; }
  bool isFiltered() const { return !filter_.empty(); }
  const tessaly::String& filterText() const { return filter_; }
  std::optional<Column> sortedColumn() const { return sortedColumn_; }
  bool isDescending() const { return isDescending_; }
  tessaly::Long rowCount() const { return static_cast<tessaly::Long>(rows_.size()); }
  tessaly::Long seenCount() const { return static_cast<tessaly::Long>(seen_.size()); }
  tessaly::Long selected() const { return selected_; }
  tessaly::Long page() const { return page_; }
  tessaly::Long pages() const;
  tessaly::Long zoom() const { return zoom_; }
  bool canZoomOut() const;
  bool canZoomIn() const;

  /// The amount of the rows that are seen, in hundredths.
  std::int64_t total() const;

  const std::vector<ReportRow>& rows() const { return rows_; }

  /// The rows that are seen, all of them, and those of the page; and which of the page's is selected, -1 for
  /// none.
  std::vector<ReportRow> seenRows() const;
  std::vector<ReportRow> pageRows() const;
  tessaly::Long selectedOnPage() const;

 private:
  std::vector<std::size_t> rowsWith(std::u16string_view text) const;
  void begin();

  tessaly::String name_;
  std::vector<ReportRow> rows_;
  std::vector<std::size_t> seen_;
  tessaly::String filter_;
  std::optional<Column> sortedColumn_;
  bool isDescending_ = false;
  bool isChanged_ = false;
  tessaly::Long selected_ = 0;
  tessaly::Long page_ = 1;
  tessaly::Long zoom_ = 100;
};

/// An amount in hundredths as text: "1250.00".
tessaly::String amountText(std::int64_t amount);

}  // namespace showcase
