#pragma once

#include <memory>
#include <string_view>
#include <variant>

#include "tessaly/base/Types.h"
#include "tessaly/base/Variant.h"
#include "tessaly/forms/EncodedPicture.h"
#include "tessaly/forms/Picture.h"

namespace tessaly {

/// A property as a bag keeps it: a picture that came from a text stays a file until it is read.
using KeptValue = std::variant<Variant, PictureReference, std::shared_ptr<EncodedPicture>>;

struct KeptProperty {
  String name;
  KeptValue value;
};

/// The line of a property, without an end; docs/forms.md tells its form. Error 481 for a picture that can't
/// be written as a file.
String lineOf(const KeptProperty& property);

/// The property of a line; error 380 where it is none.
KeptProperty propertyOf(std::u16string_view line);

}  // namespace tessaly
