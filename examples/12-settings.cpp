// A tool keeps typed settings under a key of the user's, and finds them at its next start.

#include "examples/support/Print.h"
#include "tessaly/settings/CRegistry.h"

using examples::printLine;
using tessaly::CRegistry;
using tessaly::Long;

namespace {

constexpr Long kCurrentUser = 2;
constexpr std::u16string_view kKey = u"Software\\Example Editor";

// An object is made for a task and let go; it keeps no key open.
CRegistry toolSettings() {
  CRegistry settings;
  settings.root(kCurrentUser);
  settings.rootPath(kKey);
  return settings;
}

void save() {
  CRegistry settings = toolSettings();
  settings.SetString(u"Author", u"Anna Weber");
  settings.SetLong(u"Window width", 800);
  settings.SetBool(u"Show toolbar", tessaly::True);
  settings.SetColor(u"Paper", 0xE0FFFF);
  settings.SetDate(u"Last start", 46346);
  // The star names the value that has no name.
  settings.SetString(u"*", u"Settings of the editor");
}

// What is not there gives the default, and so a first start needs no case of its own.
void load(std::u16string_view when) {
  const CRegistry settings = toolSettings();
  printLine(when, u":");
  printLine(u"  author       ", settings.GetString(u"Author", u"nobody"));
  printLine(u"  width        ", settings.GetLong(u"Window width", 640));
  printLine(u"  toolbar      ", settings.GetBool(u"Show toolbar", tessaly::False) ? u"shown" : u"hidden");
  printLine(u"  paper        ", settings.GetColor(u"Paper", 0xFFFFFF));
  printLine(u"  last start   day ", static_cast<Long>(settings.GetDate(u"Last start", u"0")));
  printLine(u"  unnamed      ", settings.GetString(u"*", u"nothing"));
}

}  // namespace

int main() {
  load(u"The first start");
  save();
  load(u"The next start");

  // The tests ask for a value's size and not for its type.
  const CRegistry settings = toolSettings();
  printLine(u"The author fits into a number: ", settings.LongKeyExists(u"Author") ? u"yes" : u"no");
  printLine(u"The width fits into a text: ", settings.StringKeyExists(u"Window width") ? u"yes" : u"no");

  // False says that all went well.
  const bool failed = CRegistry().DeletePath(kCurrentUser, kKey).toLong() != 0;
  printLine(u"Deleting the settings ", failed ? u"failed" : u"went well");
}
