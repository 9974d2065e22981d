#include <array>

#include "examples/showcase/Host.h"
#include "examples/showcase/Sections.h"
#include "examples/showcase/Table.h"
#include "examples/showcase/Tracing.h"
#include "examples/showcase/check/LoadedFile.h"
#include "examples/support/Print.h"

namespace showcase {

using tessaly::CResources;
using tessaly::String;

namespace {

struct Sample {
  std::u16string_view file;
  std::u16string_view fault;
};

constexpr std::array kSamples = {
    Sample{u"unfinished.xml", u"three texts only"},
    Sample{u"bad-number.xml", u"\"13o\" for a string number"},
    Sample{u"not-well-formed.xml", u"a closing tag is missing"},
    Sample{u"other-application.xml", u"another program's identity"},
    Sample{u"no-such-file.xml", u"there is no such file"},
};

StyledText listEntry(const LoadedFile& file) {
  if (!file.listed) return styled(u"no", Style::Bad);
  if (file.name.empty()) return styled(u"without a name", Style::Bad);
  return styled(u"yes, as " + file.name, Style::Good);
}

/// A text, marked by its colour where it is the language file's and not the built-in one.
StyledText textAfterLoading(const CResources& resources, const LoadedFile& file, Text slot) {
  const bool translated = !file.texts[static_cast<std::size_t>(slot)].empty();
  return styled(resources.res(slot), translated ? Style::Good : Style::Plain);
}

}  // namespace

void showSampleFiles(const Screen& screen) {
  showHeading(screen, u"Faulty files", u"raise no error: what they don't give stays in English");
  Table table({u"File", u"What is wrong", u"In the list", u"res(0)", u"res(12)"});
  for (const Sample& sample : kSamples) {
    const String path = String(kSamplesFolder) + u"/" + String(sample.file);
    const LoadedFile file = loadAlone(path);
    CResources resources;
    start(resources);
    resources.LoadXMLFile(path);
    traceFault(String(sample.file) + u": " + String(sample.fault));
    table.addRow({styled(sample.file), styled(sample.fault), listEntry(file),
                  textAfterLoading(resources, file, Cancel), textAfterLoading(resources, file, Open)});
  }
  table.print(screen);
}

}  // namespace showcase
