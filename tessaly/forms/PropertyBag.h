#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "tessaly/base/Types.h"
#include "tessaly/base/Variant.h"
#include "tessaly/forms/Picture.h"
#include "tessaly/platform/DesktopExport.h"

namespace tessaly {

/// A property's value: a plain one, or a reference to a picture, which may be none.
using PropertyValue = std::variant<Variant, PictureReference>;

/// The values of a control that its container keeps, by key; a key is found in any case. One thread uses it.
class TESSALY_DESKTOP_API PropertyBag {
 public:
  PropertyBag();
  PropertyBag(const PropertyBag& bag);
  PropertyBag& operator=(const PropertyBag& bag);
  virtual ~PropertyBag();

  /// The value of a key, or the default where it has none. Error 481 for a picture that came from a text and
  /// is damaged.
  virtual PropertyValue ReadProperty(std::u16string_view name, const PropertyValue& defaultValue) const;

  /// Keeps a value under a key. One that equals the default is not kept, and what was there before goes.
  virtual void WriteProperty(std::u16string_view name, const PropertyValue& value,
                             const PropertyValue& defaultValue);

  /// All keys and values as text that a host can keep in a file, one line each in the order in which they
  /// were written first; docs/forms.md tells its form. Error 481 for a picture that can't be written as a
  /// file.
  String text() const;

  /// The bag that a text holds; empty lines don't count. Error 380 where a line is none, or a key comes
  /// twice. A picture is decoded when it is read first, and is the same one each time.
  static PropertyBag fromText(std::u16string_view text);

 private:
  struct Entry;

  std::vector<Entry>::const_iterator find(std::u16string_view name) const;
  void refuseEqualNames() const;

  std::vector<Entry> entries_;
};

/// A bag's value as the type that a property has. Error 13 where it is of another kind and does not convert,
/// and error 6 for a number outside 32 bits. A Boolean takes any number, all but 0 being true, and the texts
/// True and False in any case. A text takes all plain values: True or False, or a number's digits with the
/// user's decimal separator, and error 6 where that is infinite or none.
TESSALY_DESKTOP_API Long longOf(const PropertyValue& value);
TESSALY_DESKTOP_API Boolean booleanOf(const PropertyValue& value);
TESSALY_DESKTOP_API String stringOf(const PropertyValue& value);
TESSALY_DESKTOP_API PictureReference pictureOf(const PropertyValue& value);

}  // namespace tessaly
