#pragma once

#include <memory>
#include <ostream>
#include <string_view>

#include "tessaly/base/Types.h"
#include "tessaly/platform/Files.h"
#include "tessaly/platform/Xml.h"

namespace tessaly::tests {

/// Which bodies a contract runs on: the platform's own on a real folder, the shipped stand-ins, or those that
/// a toolkit puts in the platform's place.
enum class Body { Own, Fake, Toolkit };
void PrintTo(Body body, std::ostream* out);

/// A folder of files and the bodies that see it, in force as long as the world lives.
class World {
 public:
  static std::unique_ptr<World> make(Body body);

  World() = default;
  World(const World&) = delete;
  World& operator=(const World&) = delete;
  virtual ~World() = default;

  /// The folder, without a separator at its end.
  virtual String folder() const = 0;

  /// Puts a file into the folder and gives its path.
  virtual String put(std::u16string_view name, std::string_view bytes) = 0;

  static platform::Files& files();
  static platform::Xml& xml();
};

}  // namespace tessaly::tests
