#include "examples/showcase/Tracing.h"

#include "tessaly/trace/Trace.h"

namespace showcase {
namespace {

using tessaly::Long;

constexpr Long kFaultLevel = 2;
constexpr Long kWhite = 0xFFFFFF;
constexpr Long kBlue = 0x994400;
constexpr Long kDarkRed = 0x000080;

}  // namespace

void tracePart(std::u16string_view heading) { tessaly::Trace(heading, 0, kWhite, kBlue); }
void traceStep(std::u16string_view text) { tessaly::Trace(text); }
void traceFault(std::u16string_view text) { tessaly::Trace(text, kFaultLevel, kDarkRed, kWhite); }

}  // namespace showcase
