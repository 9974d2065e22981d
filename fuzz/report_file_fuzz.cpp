// Any bytes as a report of the showcase: they are refused, or come back from a file with the same rows.

#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "examples/showcase/window/Report.h"
#include "examples/showcase/window/ReportFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto rows = showcase::parseReport({reinterpret_cast<const char*>(data), size});
  if (!rows) return 0;
  if (showcase::parseReport(showcase::reportText(*rows)) != rows) std::abort();
  showcase::Report report;
  report.take(u"Any.rep", *rows);
  report.sort(showcase::Column::Amount, true);
  for (tessaly::Long page = 1; page <= report.pages(); ++page) {
    report.turnTo(page);
    if (report.pageRows().empty() != rows->empty()) std::abort();
  }
  return 0;
}
