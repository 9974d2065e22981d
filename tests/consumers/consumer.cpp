// A host that takes the library as its users do.

#include <cstdio>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/base/Text.h"
#include "tessaly/controls/transparentBitmap.h"
#include "tessaly/forms/headless/Form.h"
#include "tessaly/localisation/CResources.h"
#include "tessaly/platform/Core.h"
#include "tessaly/platform/fake/Files.h"

int main() {
  tessaly::platform::fake::Files files;
  files.put(u"/a.xml", "<L><GENERAL><LANG>Test</LANG><LANGID>7</LANGID></GENERAL></L>");
  const tessaly::platform::Override override(files);
  tessaly::CResources resources;
  resources.lang(7);
  try {
    resources.res(175);
  } catch (const tessaly::RuntimeError& error) {
    std::printf("%s, %s, error %d\n", tessaly::toUtf8(resources.langName()).c_str(),
                tessaly::toUtf8(resources.resWithArg(13, 3, 9)).c_str(), error.number());
  }
  tessaly::headless::Form form;
  const auto& button = form.add<tessaly::transparentBitmap>({0, 0, 48, 32});
  const auto size = form.placeOf(button).picture()->size();
  std::printf("button %d by %d\n", size.width, size.height);
  return 0;
}
