// A host sends lines to the logger, where the machine's settings switch tracing on.

#include "examples/support/Print.h"
#include "tessaly/trace/Trace.h"

using examples::printLine;
using tessaly::Long;
using tessaly::Trace;

namespace {

constexpr Long kDarkRed = 0x000080;  // red stands in the low byte
constexpr Long kWhite = 0xFFFFFF;

std::u16string_view state() {
  if (tessaly::logger == nullptr) return u"off";
  return tessaly::logger->Connected() ? u"on" : u"on, but no logger was there";
}

// A ready text costs next to nothing where tracing is off, so such lines may stand anywhere.
Long openReport(std::u16string_view name) {
  Trace(u"Opening a report:");
  Trace(name);
  return name == u"Sales.rep" ? 0 : 53;
}

}  // namespace

int main() {
  // First of all, before the host's first line.
  tessaly::StartLogger();
  printLine(u"Tracing is ", state());

  for (const std::u16string_view name : {u"Sales.rep", u"Costs.rep"}) {
    const Long status = openReport(name);
    printLine(name, u": status ", status);
    // A status that is not zero is reported with level 2, by which a logger's user can pick it out.
    if (status != 0) Trace(u"Can't open " + tessaly::String(name), 2, kDarkRed, kWhite);
  }
}
