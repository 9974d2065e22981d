#include "bench/DrawingGoals.h"

#include "bench/ButtonScene.h"
#include "bench/CopyScenes.h"
#include "bench/QtButtons.h"

namespace tessaly::bench {
namespace {

Goal overLimit(const std::string& scene, const std::string& limit, double atMost) {
  return {scene + ": over memcpy", scene + "/Tessaly", {scene + "/limit: " + limit}, atMost};
}

Goal aheadOfPainter(const std::string& scene, const std::string& painter) {
  return {scene + ": ahead of QPainter", scene + "/Tessaly", {scene + '/' + painter}, 1};
}

Goal notBehindQt(const std::string& what) {
  return {what + ": not behind Qt", what + '/' + kPictureButton, {what + '/' + kToolButton}, 1};
}

}  // namespace

std::vector<Goal> drawingGoals() {
  const std::string bytes = "as many bytes by memcpy";
  const std::string painter = "QPainter, a masked pixmap";
  return {overLimit(kInCircle, bytes, 1.4),
          overLimit(kAtRandom, bytes, 1.4),
          overLimit(kScaled, bytes, 2.0),
          overLimit(kIcon, "its rows by memcpy", 2.5),
          aheadOfPainter(kAtRandom, painter),
          aheadOfPainter(kIcon, painter),
          aheadOfPainter(kComposition, "QPainter"),
          notBehindQt(kMove),
          notBehindQt(kClick),
          notBehindQt(kVisit),
          notBehindQt(kCreation)};
}

}  // namespace tessaly::bench
