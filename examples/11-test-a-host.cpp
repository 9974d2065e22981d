// A host is tested without files, without a certain user and with faults that a disk seldom has: stand-ins
// take the platform's place for as long as an `Override` lives.

#include "examples/support/Print.h"
#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Files.h"
#include "tessaly/platform/fake/Locale.h"
#include "tessaly/platform/fake/Xml.h"

using examples::printLine;
using tessaly::CResources;
using tessaly::String;
namespace platform = tessaly::platform;

namespace {

// What is under test: how this host starts, and the text on its button.
String captionAtStart() {
  CResources resources;
  resources.applicationGUID(u"CA2C7606-C0B7-47c8-A153-F1FC278BBEB3");
  resources.resourcesPath(u"languages");
  resources.SetDefaultLang();
  return resources.res(0);
}

constexpr const char* kDanish = R"(<?xml version="1.0" encoding="UTF-8"?>
<LANGUAGE>
  <GENERAL>
    <GUID>CA2C7606-C0B7-47c8-A153-F1FC278BBEB3</GUID><LANG>Dansk</LANG><LANGID>1030</LANGID>
  </GENERAL>
  <STRING><ID>1</ID><VALUE>&amp;Annuller</VALUE></STRING>
</LANGUAGE>)";

bool check(std::u16string_view what, std::u16string_view expected) {
  const String caption = captionAtStart();
  const bool passed = caption == expected;
  printLine(passed ? u"passed: " : u"FAILED: ", what, u" gives \"", caption, u"\"");
  return passed;
}

}  // namespace

int main() {
  platform::fake::Files files;
  const platform::Override filesInMemory(files);
  platform::fake::Locale locale(1030, u",");
  const platform::Override danishUser(locale);

  bool passed = check(u"an empty folder", u"&Cancel");

  files.put(u"languages/danish.xml", kDanish);
  passed = check(u"a file in the user's language", u"&Annuller") && passed;

  {
    platform::fake::Xml xml;
    const platform::Override xmlOutOfOrder(xml);
    xml.failCreate();
    passed = check(u"a system without XML", u"&Cancel") && passed;
  }
  passed = check(u"the same system in order again", u"&Annuller") && passed;

  files.failRead(u"languages/danish.xml");
  passed = check(u"a file that can't be read", u"&Cancel") && passed;

  return passed ? 0 : 1;
}
