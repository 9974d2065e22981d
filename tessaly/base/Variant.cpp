#include "tessaly/base/Variant.h"

#include "tessaly/base/NumberText.h"
#include "tessaly/base/Rounding.h"
#include "tessaly/base/RuntimeError.h"

namespace tessaly {
namespace {

struct ToLong {
  Long operator()(Boolean value) const { return value; }
  Long operator()(std::int16_t value) const { return value; }
  Long operator()(Long value) const { return value; }
  Long operator()(double value) const { return roundToLong(value); }
  Long operator()(const String& text) const {
    const auto number = parseNumber(text, u".");
    if (!number) throw RuntimeError(RuntimeError::TypeMismatch);
    return roundToLong(*number);
  }
};

}  // namespace

Long Variant::toLong() const { return std::visit(ToLong{}, value_); }

}  // namespace tessaly
