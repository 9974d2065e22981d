#pragma once

#include <string>
#include <vector>

#include "tessaly/base/Export.h"
#include "tessaly/platform/Xml.h"

namespace tessaly::platform::fake {

/// The platform's own XML behind scripted failures, with a record of what was asked of it. Documents come
/// from `core().files`, so with `fake::Files` they need no disk.
class TESSALY_API Xml final : public platform::Xml {
 public:
  /// Hands on to the body that was in force; it must outlive this one.
  Xml();

  /// From now on, `createDocument` gives none.
  void failCreate() { createFails_ = true; }

  /// From now on, `load` gives false and no element.
  void failLoad() { loadFails_ = true; }

  /// The calls on documents in their order, such as "createDocument", "async false", "load", "release".
  const std::vector<std::string>& calls() const { return calls_; }

  std::unique_ptr<XmlDocument> createDocument() override;

 private:
  class Recorder;

  platform::Xml* real_;
  bool createFails_ = false;
  bool loadFails_ = false;
  std::vector<std::string> calls_;
};

}  // namespace tessaly::platform::fake
