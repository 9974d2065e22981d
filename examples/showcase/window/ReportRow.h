#pragma once

#include <array>
#include <cstdint>

#include "tessaly/base/Types.h"

namespace showcase {

/// The columns of a report, in their order.
enum class Column : tessaly::Long { Month, Owner, Type, Amount, Comment };
inline constexpr tessaly::Long kReportColumns = 5;

/// One row of a report: its cells as they are seen, and the amount in hundredths.
struct ReportRow {
  std::array<tessaly::String, kReportColumns> cells;
  std::int64_t amount = 0;

  const tessaly::String& cell(Column column) const { return cells[static_cast<std::size_t>(column)]; }
  bool operator==(const ReportRow&) const = default;
};

}  // namespace showcase
