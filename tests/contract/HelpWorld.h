#pragma once

#include <memory>
#include <optional>
#include <ostream>
#include <vector>

#include "tessaly/platform/Desktop.h"
#include "tessaly/platform/fake/HtmlHelp.h"
#include "tests/support/World.h"

namespace tessaly::platform::fake {

inline void PrintTo(const HtmlHelp::Shown& call, std::ostream* out) {
  *out << call.owner << " '" << call.file << "' " << call.command << ' ' << call.data;
}

}  // namespace tessaly::platform::fake

namespace tessaly::tests {

using HelpCall = platform::fake::HtmlHelp::Shown;

/// What stands in the place of the platform's viewer of help and keeps what is asked of it, or sees it on a
/// viewer that shows it.
class RecordingViewer {
 public:
  /// The bodies that show help in this program.
  static std::vector<Body> bodies();

  /// That of the platform or of the toolkit; none where nothing shows help.
  static std::unique_ptr<RecordingViewer> make();

  RecordingViewer() = default;
  RecordingViewer(const RecordingViewer&) = delete;
  RecordingViewer& operator=(const RecordingViewer&) = delete;
  virtual ~RecordingViewer() = default;

  /// A window of the host's that stands where others are.
  virtual platform::WindowHandle window() = 0;

  /// Whether the viewer's window is before all others; `window` where it has none of its own.
  virtual bool isOnTop() = 0;

  /// From now on the viewer's window is this one; false where it always has a window of its own.
  virtual bool answer(platform::WindowHandle viewer) = 0;

  /// What was asked for, the latest at the end; a viewer that shows it has no more than that, and of a
  /// long text the beginning.
  virtual std::vector<HelpCall> shown() = 0;
};

/// The body of the area HtmlHelp that a contract runs on, in force as long as the world lives.
class HelpWorld {
 public:
  explicit HelpWorld(Body body);

  /// Null where nothing shows help, as it may be on the platform's own body.
  RecordingViewer* viewer() { return viewer_.get(); }

 private:
  platform::fake::HtmlHelp fake_;
  std::optional<platform::Override> inForce_;
  std::unique_ptr<RecordingViewer> viewer_;
};

}  // namespace tessaly::tests
