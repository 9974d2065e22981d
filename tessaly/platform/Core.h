#pragma once

#include <functional>

#include "tessaly/base/Export.h"
#include "tessaly/platform/Files.h"
#include "tessaly/platform/Locale.h"
#include "tessaly/platform/Messages.h"
#include "tessaly/platform/Registry.h"
#include "tessaly/platform/SharedMemory.h"
#include "tessaly/platform/Xml.h"

namespace tessaly::platform {

struct Drawing;
struct HtmlHelp;
struct MessageBoxes;
struct Pictures;
struct Shell;

/// The platform as the library sees it: one body for each area. The bodies live as long as the program.
struct Core {
  Files* files;
  Locale* locale;
  Messages* messages;
  Registry* registry;
  SharedMemory* sharedMemory;
  Xml* xml;
};

/// The bodies in force: the platform's own, or those that an `Override` has put in their place.
TESSALY_API const Core& core();

/// Puts another body in the place of one area, for as long as it lives; for tests, and for a host that brings
/// a body. The body must outlive it. Overrides end in the reverse of their order, and none begins or ends
/// while another thread uses the library.
class TESSALY_API Override {
 public:
  explicit Override(Files& body);
  explicit Override(Locale& body);
  explicit Override(Messages& body);
  explicit Override(Registry& body);
  explicit Override(SharedMemory& body);
  explicit Override(Xml& body);

  /// Those of `desktop()` come with Tessaly::desktop.
  explicit Override(Drawing& body);
  explicit Override(HtmlHelp& body);
  explicit Override(MessageBoxes& body);
  explicit Override(Pictures& body);
  explicit Override(Shell& body);

  Override(const Override&) = delete;
  Override& operator=(const Override&) = delete;
  ~Override();

 private:
  std::function<void()> restore_;
};

}  // namespace tessaly::platform
