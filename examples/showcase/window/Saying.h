#pragma once

#include <optional>
#include <utility>

#include "examples/showcase/Host.h"
#include "examples/showcase/window/Names.h"

namespace showcase {

/// A text of the catalogue with its values, to be said in whatever language is in force then; or a text that
/// is the same in every language.
class Saying {
 public:
  Saying(Text slot) : slot_(slot) {}
  Saying(Text slot, tessaly::Variant first, tessaly::Variant second = u"")
      : slot_(slot), values_({std::move(first), std::move(second)}) {}
  explicit Saying(tessaly::String text) : text_(std::move(text)) {}

  /// A menu's text as a name.
  static Saying named(Text slot) {
    Saying result(slot);
    result.isName_ = true;
    return result;
  }

  tessaly::String in(const tessaly::CResources& resources) const {
    if (!slot_) return text_;
    if (isName_) return nameOf(resources.res(*slot_));
    return values_ ? resources.resWithArg(*slot_, values_->first, values_->second) : resources.res(*slot_);
  }

 private:
  std::optional<Text> slot_;
  std::optional<std::pair<tessaly::Variant, tessaly::Variant>> values_;
  tessaly::String text_;
  bool isName_ = false;
};

}  // namespace showcase
