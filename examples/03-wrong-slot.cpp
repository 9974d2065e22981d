// A slot number outside 0 to 174 is the caller's mistake and comes back as error 9.

#include <limits>

#include "examples/support/Print.h"
#include "tessaly/base/RuntimeError.h"
#include "tessaly/localisation/CResources.h"

using examples::printLine;
using tessaly::RuntimeError;

namespace {

template <class Call>
void printError(std::u16string_view name, Call call) {
  try {
    printLine(name, u" gives \"", call(), u"\"");
  } catch (const RuntimeError& error) {
    printLine(name, u" raises error ", error.number(), u": ", tessaly::fromUtf8(error.what()));
  }
}

}  // namespace

int main() {
  tessaly::CResources resources;
  resources.lang(2057);

  printError(u"res(174)", [&] { return resources.res(174); });
  printError(u"res(175)", [&] { return resources.res(175); });
  printError(u"res(-1)", [&] { return resources.res(-1); });

  // A value that has no text is an error too, but the slot is looked at first.
  const double infinite = std::numeric_limits<double>::infinity();
  printError(u"resWithArg(13, infinite, 9)", [&] { return resources.resWithArg(13, infinite, 9); });
  printError(u"resWithArg(175, infinite, 9)", [&] { return resources.resWithArg(175, infinite, 9); });
}
