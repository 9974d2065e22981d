// A text with places for values: %a1 takes the first, %a2 the second, wherever the language puts them.

#include "examples/support/Print.h"
#include "tessaly/localisation/CResources.h"

using examples::printLine;

int main() {
  tessaly::CResources resources;
  resources.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");
  resources.resourcesPath(u"examples/showcase/languages");
  resources.lang(1031);

  printLine(u"Two numbers:       ", resources.resWithArg(13, 3, 9));
  printLine(u"Two texts:         ", resources.resWithArg(157, u"Umsatz.rep", u"kein Zugriff"));
  printLine(u"Twice the first:   ", resources.resWithArg(155, u"Umsatz.rep", u""));

  // A number with a fraction is written as the user writes it: with a comma in Germany.
  printLine(u"A fraction:        ", resources.resWithArg(169, 0.5, 2.25));

  // A text without places takes two values all the same and is left as it is.
  printLine(u"No places:         ", resources.resWithArg(12, 3, 9));

  // The second value goes in behind the first, so it reaches a %a2 that came with the first.
  printLine(u"%a2 in the first:  ", resources.resWithArg(172, u"1.%a2", 4));
}
