#include "examples/showcase/Sections.h"
#include "examples/showcase/Tracing.h"

namespace showcase {

void showHeading(const Screen& screen, std::u16string_view heading, std::u16string_view explanation) {
  tracePart(heading);
  screen.line();
  screen.line({{tessaly::String(heading), Style::Heading},
               {u"  ", Style::Plain},
               {tessaly::String(explanation), Style::Plain}});
}

}  // namespace showcase
