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

/// What stands in the place of the platform's viewer of help, and keeps what is asked of it.
class RecordingViewer {
 public:
  /// None where the platform has no viewer.
  static std::unique_ptr<RecordingViewer> make();

  RecordingViewer() = default;
  RecordingViewer(const RecordingViewer&) = delete;
  RecordingViewer& operator=(const RecordingViewer&) = delete;
  virtual ~RecordingViewer() = default;

  /// A window of the user's that stands where others are.
  virtual platform::WindowHandle window() = 0;

  virtual bool isTopMost(platform::WindowHandle window) = 0;
  virtual void answer(platform::WindowHandle viewer) = 0;
  virtual std::vector<HelpCall> shown() = 0;
};

/// The body of the area HtmlHelp that a contract runs on, in force as long as the world lives.
class HelpWorld {
 public:
  explicit HelpWorld(Body body);

  /// Null where nothing shows help.
  RecordingViewer* viewer() { return viewer_.get(); }

 private:
  platform::fake::HtmlHelp fake_;
  std::optional<platform::Override> inForce_;
  std::unique_ptr<RecordingViewer> viewer_;
};

}  // namespace tessaly::tests
