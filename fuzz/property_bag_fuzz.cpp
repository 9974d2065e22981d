// Any bytes as the text of a bag: it is refused, or it comes back from the bag's own text, key by key.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "tessaly/base/RuntimeError.h"
#include "tessaly/base/Text.h"
#include "tessaly/forms/BagText.h"
#include "tessaly/forms/PropertyBag.h"

namespace {

using tessaly::PropertyBag;
using tessaly::PropertyValue;
using tessaly::RuntimeError;
using tessaly::String;

void require(bool condition) {
  if (!condition) std::abort();
}

/// An odd number of bytes is UTF-8, an even one UTF-16, in which lone surrogates come too.
String textOf(const std::uint8_t* data, std::size_t size) {
  if (size % 2 == 1) return tessaly::fromUtf8({reinterpret_cast<const char*>(data), size});
  String text;
  for (std::size_t i = 0; i < size; i += 2) text += static_cast<char16_t>(data[i] | (data[i + 1] << 8));
  return text;
}

template <class Call>
bool succeeds(Call call, tessaly::Long expected) {
  try {
    call();
  } catch (const RuntimeError& error) {
    require(error.number() == expected);
    return false;
  }
  return true;
}

void readAs(const PropertyValue& value) {
  for (const auto& read : {+[](const PropertyValue& each) { tessaly::longOf(each); },
                           +[](const PropertyValue& each) { tessaly::booleanOf(each); }}) {
    try {
      read(value);
    } catch (const RuntimeError& error) {
      require(error.number() == RuntimeError::TypeMismatch || error.number() == RuntimeError::Overflow);
    }
  }
}

/// Reads each key that the bag's own text names; none of them is missing.
void readAll(const PropertyBag& bag, const String& text) {
  const PropertyValue missing = std::make_shared<const tessaly::Picture>();
  for (std::u16string_view rest = text; !rest.empty();) {
    const std::size_t end = rest.find(u'\n');
    require(end != std::u16string_view::npos);
    const String name = tessaly::propertyOf(rest.substr(0, end)).name;
    const auto read = [&] {
      const PropertyValue value = bag.ReadProperty(name, missing);
      require(value != missing);
      readAs(value);
    };
    succeeds(read, RuntimeError::InvalidPicture);
    rest.remove_prefix(end + 1);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const String given = textOf(data, size);
  PropertyBag bag;
  if (!succeeds([&] { bag = PropertyBag::fromText(given); }, RuntimeError::InvalidPropertyValue)) return 0;
  const String text = bag.text();
  require(PropertyBag::fromText(text).text() == text);
  require(tessaly::fromUtf8(tessaly::toUtf8(text)) == text);
  readAll(bag, text);
  return 0;
}
