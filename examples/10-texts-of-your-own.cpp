// A host's own built-in English and its own identity. What stands in the library is the showcase's.

#include "examples/support/Print.h"
#include "tessaly/localisation/BuiltInStrings.h"
#include "tessaly/localisation/CResources.h"

using examples::printLine;
using tessaly::Long;

namespace {

// The table outlives every catalogue of it. This clock has few texts; a slot that is left out is empty.
constexpr tessaly::BuiltInStrings kClockTexts = {
    u"&Start",
    u"S&top",
    u"%a1 h %a2 min",
};

enum Text : Long { Start, Stop, Elapsed };

}  // namespace

int main() {
  tessaly::CResources resources(kClockTexts);

  // A file of another application stands in the same folder without harm: its identity is another one.
  resources.applicationGUID(u"3D0F8B5E-6A41-4D0C-9C5B-7E2A1F60D894");
  resources.resourcesPath(u"examples/showcase/samples");
  resources.lang(2057);

  printLine(u"Built in:  ", resources.res(Start), u", ", resources.res(Stop), u", ",
            resources.resWithArg(Elapsed, 1, 25));
  resources.lang(1031);
  printLine(resources.langName(), u":   ", resources.res(Start), u", ", resources.res(Stop), u", ",
            resources.resWithArg(Elapsed, 1, 25));
  printLine(u"Slot 174:  \"", resources.res(174), u"\"");
}
